// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/ClipList.h"

#include <QRandomGenerator>
#include <algorithm>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

ClipRef clipAt(Date date, std::optional<Fingerprint> fingerprint = {}) {
    auto clip = std::make_shared<Clip>();
    clip->id = QUuid::createUuid();
    clip->lastUsedAt = date;
    clip->fingerprint = fingerprint.value_or(Fingerprint::ofText(clip->id.toByteArray()));
    return clip;
}

ClipRef usedAt(const ClipRef& clip, Date date) {
    auto copy = std::make_shared<Clip>(*clip);
    copy->lastUsedAt = date;
    return copy;
}

/// The order as it is defined, by walking.
void insertByWalking(std::vector<ClipRef>& clips, const ClipRef& clip) {
    const auto place =
        std::ranges::find_if(clips, [&](const ClipRef& other) { return other->lastUsedAt <= clip->lastUsedAt; });
    clips.insert(place, clip);
}

TEST(ClipList, AClipGoesBeforeItsEquals) {
    ClipList list;
    const ClipRef one = clipAt(5);
    const ClipRef two = clipAt(5);
    const ClipRef later = clipAt(6);
    const ClipRef earlier = clipAt(4);
    for (const ClipRef& clip : {one, two, later, earlier})
        list.insert(clip);
    EXPECT_EQ(list.clips(), (std::vector<ClipRef>{later, two, one, earlier}));
}

TEST(ClipList, KeepsTheOrderThatTheWalkGives) {
    QRandomGenerator random(3);
    ClipList list;
    std::vector<ClipRef> expected;
    for (int i = 0; i < 3000; ++i) {
        const int action = expected.empty() ? 0 : random.bounded(4);
        if (action <= 1) {
            const ClipRef clip = clipAt(random.bounded(20));
            list.insert(clip);
            insertByWalking(expected, clip);
        } else {
            const ClipRef old = expected[static_cast<std::size_t>(random.bounded(static_cast<int>(expected.size())))];
            std::erase(expected, old);
            if (action == 2) {
                const ClipRef moved = usedAt(old, random.bounded(20));
                list.replace(old, moved);
                insertByWalking(expected, moved);
            } else {
                EXPECT_EQ(list.remove({old->id}), std::vector<ClipRef>{old});
            }
        }
        ASSERT_EQ(list.clips(), expected);
    }
}

TEST(ClipList, RemovesManyInOnePassAndSaysWhich) {
    ClipList list;
    std::vector<ClipRef> clips;
    for (int i = 0; i < 10; ++i) {
        clips.push_back(clipAt(10 - i));
        list.insert(clips.back());
    }
    const auto removed = list.remove({clips[0]->id, clips[5]->id, clips[9]->id, QUuid::createUuid()});
    EXPECT_EQ(removed, (std::vector<ClipRef>{clips[0], clips[5], clips[9]}));
    EXPECT_EQ(list.clips().size(), 7U);
    EXPECT_EQ(list.find(clips[5]->id), nullptr);
    EXPECT_EQ(list.find(clips[6]->id), clips[6]);
}

TEST(ClipList, FindsTheFirstOfAFingerprintEvenWhenAFileHoldsItTwice) {
    ClipList list;
    const Fingerprint twin = Fingerprint::ofText("twin");
    const ClipRef first = clipAt(9, twin);
    const ClipRef second = clipAt(3, twin);
    const ClipRef other = clipAt(5);
    list.assign({second, other, first});
    EXPECT_EQ(list.findFingerprint(twin), first);
    list.remove({first->id});
    EXPECT_EQ(list.findFingerprint(twin), second);
    list.remove({second->id});
    EXPECT_EQ(list.findFingerprint(twin), nullptr);
    EXPECT_EQ(list.findFingerprint(other->fingerprint), other);
}

TEST(ClipList, AssigningSortsStablyAndKeepsTheFirstOfAnId) {
    ClipList list;
    const ClipRef one = clipAt(5);
    const ClipRef two = clipAt(5);
    const ClipRef later = clipAt(6);
    list.assign({one, two, later, usedAt(one, 1)});
    EXPECT_EQ(list.clips(), (std::vector<ClipRef>{later, one, two}));
}

TEST(ClipList, PinsOfOnePlaceStandInTheOrderOfCopying) {
    const auto pinned = [](Date created, qint64 order) {
        auto clip = std::make_shared<Clip>(*clipAt(100 - created));
        clip->createdAt = created;
        clip->isPinned = true;
        clip->pinOrder = order;
        return clip;
    };
    const ClipRef third = pinned(1, 2);
    const ClipRef second = pinned(3, 1);
    const ClipRef first = pinned(2, 1);
    ClipList list;
    list.assign({clipAt(50), third, second, first});
    EXPECT_EQ(list.pinned(), (std::vector<ClipRef>{first, second, third}));
    list.assign({first, third, second});
    EXPECT_EQ(list.pinned(), (std::vector<ClipRef>{first, second, third}));
}

TEST(ClipList, KnowsTheNextExpiry) {
    ClipList list;
    EXPECT_EQ(list.nextExpiry(), std::nullopt);
    auto expiring = std::make_shared<Clip>(*clipAt(1));
    expiring->expiresAt = 50;
    auto sooner = std::make_shared<Clip>(*clipAt(2));
    sooner->expiresAt = 40;
    list.insert(expiring);
    list.insert(sooner);
    list.insert(clipAt(3));
    EXPECT_EQ(list.nextExpiry(), 40);
    auto rescued = std::make_shared<Clip>(*sooner);
    rescued->expiresAt.reset();
    list.change(rescued);
    EXPECT_EQ(list.nextExpiry(), 50);
    list.remove({expiring->id});
    EXPECT_EQ(list.nextExpiry(), std::nullopt);
}

} // namespace
} // namespace vellumry
