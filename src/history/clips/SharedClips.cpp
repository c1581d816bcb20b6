// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/SharedClips.h"

#include <utility>

namespace vellumry {

namespace {

/// Gives its references up in the order of the list, a few of them fetched ahead: a counter is changed by an atomic
/// instruction, for which the processor waits until its place in memory is there.
struct ClipsOfReaders {
    std::vector<ClipRef> clips;

    explicit ClipsOfReaders(std::vector<ClipRef> list)
        : clips(std::move(list)) {}
    ClipsOfReaders(const ClipsOfReaders&) = delete;
    ClipsOfReaders& operator=(const ClipsOfReaders&) = delete;
    ~ClipsOfReaders() {
        for (std::size_t index = 0; index < clips.size(); ++index) {
            if (index + clipsAhead < clips.size())
                prefetchCount(clips[index + clipsAhead]);
            clips[index].reset();
        }
    }
};

} // namespace

SharedClips shared(std::vector<ClipRef> clips) {
    auto owner = std::make_shared<ClipsOfReaders>(std::move(clips));
    const std::vector<ClipRef>* const list = &owner->clips;
    return {std::move(owner), list};
}

} // namespace vellumry
