// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/ClipIndex.h"

#include <QRandomGenerator>
#include <deque>
#include <gtest/gtest.h>
#include <map>

namespace vellumry {
namespace {

/// Clips told apart by their size in bytes, with so few hashes that most of them collide.
std::size_t coarseHash(const Clip& clip) {
    return static_cast<std::size_t>(clip.byteSize % 7) * 3;
}

bool sameSize(const Clip& one, const Clip& other) {
    return one.byteSize == other.byteSize;
}

Clip clipOfSize(qint64 size) {
    Clip clip;
    clip.byteSize = size;
    return clip;
}

TEST(ClipIndex, FindsWhatAMapFinds) {
    QRandomGenerator random(5);
    ClipIndex index(coarseHash, sameSize);
    std::map<qint64, const Clip*> expected;
    std::deque<Clip> clips;
    for (int i = 0; i < 5000; ++i) {
        const qint64 size = random.bounded(60);
        if (random.bounded(2) == 0) {
            clips.push_back(clipOfSize(size));
            EXPECT_EQ(index.insert(clips.back()), expected.try_emplace(size, &clips.back()).second);
        } else if (expected.contains(size)) {
            index.erase(*expected[size]);
            expected.erase(size);
        }
        ASSERT_EQ(index.size(), expected.size());
        for (qint64 other = 0; other < 60; ++other) {
            const auto found = expected.find(other);
            ASSERT_EQ(index.find(clipOfSize(other)), found == expected.end() ? nullptr : found->second);
        }
    }
}

TEST(ClipIndex, ErasingSparesATwin) {
    ClipIndex index(coarseHash, sameSize);
    const Clip entered = clipOfSize(1);
    const Clip twin = clipOfSize(1);
    EXPECT_TRUE(index.insert(entered));
    EXPECT_FALSE(index.insert(twin));
    index.erase(twin);
    EXPECT_EQ(index.find(twin), &entered);
    index.clear();
    EXPECT_EQ(index.find(twin), nullptr);
    index.erase(entered);
    EXPECT_EQ(index.size(), 0U);
}

} // namespace
} // namespace vellumry
