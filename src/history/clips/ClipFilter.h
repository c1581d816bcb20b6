// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"

#include <array>

namespace vellumry {

/// What the chips above the list let through.
enum class ClipFilter : quint8 { all, text, links, images, files, colors, pinned };

inline constexpr std::array allClipFilters{ClipFilter::all,   ClipFilter::text,   ClipFilter::links, ClipFilter::images,
                                           ClipFilter::files, ClipFilter::colors, ClipFilter::pinned};

/// An image file passes both `images` and `files`.
[[nodiscard]] bool passes(const Clip& clip, ClipFilter filter);
/// "all", "text", …
[[nodiscard]] QString rawValue(ClipFilter filter);

} // namespace vellumry
