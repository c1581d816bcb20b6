// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panel/PreviewContent.h"

/// The buttons of the preview: which are there, what they say and what they do.
namespace vellumry::preview {

[[nodiscard]] std::vector<PreviewContent::Button> buttonsOfOne(const Clip& clip, const PreviewSources& sources);
/// For at least two clips.
[[nodiscard]] std::vector<PreviewContent::Button> buttonsOfSeveral(const PreviewSources& sources);

} // namespace vellumry::preview
