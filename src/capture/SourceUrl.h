// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/PasteboardItem.h"

#include <QUrl>
#include <optional>

namespace vellumry {

/// The web page (http or https) that a copy came from, as browsers tell it beside the text: a source URL, else the main
/// resource of a web archive of less than 8,000,000 bytes. Pure; any thread.
[[nodiscard]] std::optional<QUrl> sourceURL(const PasteboardItem& item);

} // namespace vellumry
