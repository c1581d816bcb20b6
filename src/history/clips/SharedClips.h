// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"

#include <memory>
#include <vector>

namespace vellumry {

/// A list of clips that its readers share. Copying references to a long history takes milliseconds: each counts in a
/// clip that is far away in memory. Never null where it stands for a list.
using SharedClips = std::shared_ptr<const std::vector<ClipRef>>;

/// So many clips ahead memory is asked for what the next ones need.
inline constexpr std::size_t clipsAhead = 16;

/// Has the place fetched where the references to a clip are counted, for copying or giving up one of them.
inline void prefetchCount(const ClipRef& clip) {
    // std::make_shared lays the count right before the clip.
    __builtin_prefetch(reinterpret_cast<const char*>(clip.get()) - sizeof(void*), 1);
}

/// The list as one that is shared; the last reader gives the references up in as little time as memory allows. Any
/// thread.
[[nodiscard]] SharedClips shared(std::vector<ClipRef> clips);

} // namespace vellumry
