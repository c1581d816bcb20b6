// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panel/PreviewTextModel.h"
#include "platform/display/PasteboardItem.h"

#include <optional>
#include <vector>

/// A clip's text with the styles that its source gave it. Any thread.
namespace vellumry::styledpreview {

/// From the first form that has styles: RTF, else HTML. Nothing where there is neither, where it holds no words, and
/// for documents above 4 MiB, of which the plain text says as much.
[[nodiscard]] std::optional<PreviewTextModel::Content> contentOf(const std::vector<PasteboardItem>& items);

} // namespace vellumry::styledpreview
