// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/SharedClips.h"

#include <gtest/gtest.h>

namespace vellumry {

TEST(SharedClips, TheLastReaderGivesAllClipsUp) {
    std::vector<ClipRef> clips;
    std::vector<std::weak_ptr<const Clip>> watched;
    for (std::size_t number = 0; number < 3 * clipsAhead + 1; ++number) {
        clips.push_back(std::make_shared<const Clip>());
        watched.push_back(clips.back());
    }
    const ClipRef kept = clips[2];
    SharedClips first = shared(std::move(clips));
    SharedClips second = first;
    first.reset();
    EXPECT_EQ(second->size(), watched.size());
    EXPECT_EQ(second->at(2), kept);
    second.reset();
    for (std::size_t number = 0; number < watched.size(); ++number)
        EXPECT_EQ(watched[number].expired(), number != 2) << number;
}

TEST(SharedClips, MayBeEmpty) {
    EXPECT_TRUE(shared({})->empty());
}

} // namespace vellumry
