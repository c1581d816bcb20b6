// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/Retention.h"

#include "history/clips/ClipList.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

constexpr qint64 megabyte = 1 << 20;

struct Sample {
    std::vector<ClipRef> clips;

    /// Each clip was used a second before the one added before it.
    const Clip& add(const Clip& wanted) {
        auto clip = std::make_shared<Clip>(wanted);
        clip->id = QUuid::createUuid();
        clip->lastUsedAt = 1000 - static_cast<double>(clips.size());
        clips.push_back(clip);
        return *clip;
    }
    const Clip& text(bool isPinned = false) {
        Clip clip;
        clip.isPinned = isPinned;
        return add(clip);
    }
    const Clip& media(qint64 bytes, bool isPinned = false, ClipKind kind = ClipKind::image) {
        Clip clip;
        clip.kind = kind;
        clip.byteSize = bytes;
        clip.isPinned = isPinned;
        return add(clip);
    }
    const Clip& expiring(Date date, bool isPinned = false) {
        Clip clip;
        clip.expiresAt = date;
        clip.isPinned = isPinned;
        return add(clip);
    }
    [[nodiscard]] qint64 mediaBytes() const {
        qint64 sum = 0;
        for (const ClipRef& clip : clips)
            sum += clip->kind == ClipKind::image || clip->kind == ClipKind::file ? clip->byteSize : 0;
        return sum;
    }
    [[nodiscard]] QSet<QUuid> doomed(const RetentionPolicy& policy, Date now = 1000) const {
        return retention::doomedClips(clips, policy, now);
    }
};

TEST(Retention, AClipGoesAtTheMomentOfItsExpiry) {
    Sample sample;
    const auto due = sample.expiring(1000).id;
    sample.expiring(1000.001);
    EXPECT_EQ(sample.doomed({}), QSet<QUuid>{due});
}

TEST(Retention, ExpirySparesNoPinButAgeDoes) {
    Sample sample;
    const auto due = sample.expiring(999, true).id;
    sample.text(true);
    EXPECT_EQ(sample.doomed({.maxAge = 0.5, .maxCount = 10}, 5000), QSet<QUuid>{due});
}

TEST(Retention, AClipExactlyAsOldAsAllowedStays) {
    Sample sample;
    sample.text();
    sample.text();
    const auto old = sample.text().id;
    EXPECT_EQ(sample.doomed({.maxAge = 1}), QSet<QUuid>{old});
}

TEST(Retention, TheLeastRecentlyUsedGoBeyondTheCount) {
    Sample sample;
    sample.text();
    sample.text(true);
    sample.text();
    EXPECT_TRUE(sample.doomed({.maxCount = 2}).isEmpty());
    const auto third = sample.text().id;
    const auto fourth = sample.text().id;
    EXPECT_EQ(sample.doomed({.maxCount = 2}), (QSet<QUuid>{third, fourth}));
}

TEST(Retention, ACountOfNothingKeepsThePins) {
    Sample sample;
    const auto one = sample.text().id;
    sample.text(true);
    const auto two = sample.text().id;
    EXPECT_EQ(sample.doomed({.maxCount = 0}), (QSet<QUuid>{one, two}));
}

TEST(Retention, OldestUnpinnedMediaGoUntilTheRestFits) {
    Sample sample;
    sample.media(3 * megabyte);
    const auto file = sample.media(2 * megabyte, false, ClipKind::file).id;
    sample.text();
    const auto last = sample.media(megabyte).id;
    EXPECT_TRUE(sample.doomed({.maxMediaBytes = 6 * megabyte}).isEmpty());
    EXPECT_EQ(sample.doomed({.maxMediaBytes = 5 * megabyte}), QSet<QUuid>{last});
    EXPECT_EQ(sample.doomed({.maxMediaBytes = 5 * megabyte - 1}), (QSet<QUuid>{last, file}));
}

TEST(Retention, PinnedMediaCountAndStay) {
    Sample sample;
    const auto one = sample.media(megabyte).id;
    sample.media(8 * megabyte, true);
    const auto two = sample.media(megabyte).id;
    const RetentionPolicy policy{.maxMediaBytes = 5 * megabyte};
    EXPECT_EQ(sample.doomed(policy), (QSet<QUuid>{one, two}));
    std::erase_if(sample.clips, [](const ClipRef& clip) { return !clip->isPinned; });
    EXPECT_TRUE(sample.doomed(policy).isEmpty()) << "a second pass has nothing left to take";
}

TEST(Retention, MediaDoomedByTheCountNoLongerCountAsBytes) {
    Sample sample;
    sample.media(2 * megabyte);
    sample.media(2 * megabyte);
    const auto third = sample.media(2 * megabyte).id;
    EXPECT_EQ(sample.doomed({.maxCount = 2, .maxMediaBytes = 4 * megabyte}), QSet<QUuid>{third});
}

TEST(Retention, TextIsNeverRemovedForItsBytes) {
    Sample sample;
    Clip clip;
    clip.byteSize = 100 * megabyte;
    sample.add(clip);
    EXPECT_TRUE(sample.doomed({.maxMediaBytes = 0}).isEmpty());
}

TEST(Retention, SizesThatNoRowCanHaveDoNoHarm) {
    Sample sample;
    for (int i = 0; i < 4; ++i)
        sample.media(std::numeric_limits<qint64>::max());
    sample.media(-1);
    EXPECT_EQ(sample.doomed({}).size(), 5);
}

// The list's own sums must never call a history settled that the full walk would take something from.
TEST(Retention, TheQuickAnswerAgreesWithTheWalk) {
    QRandomGenerator random(7);
    int settled = 0;
    for (int round = 0; round < 2000; ++round) {
        Sample sample;
        for (int left = random.bounded(6); left > 0; --left) {
            Clip clip;
            clip.kind = static_cast<ClipKind>(random.bounded(6));
            clip.byteSize = random.bounded(5);
            clip.isPinned = random.bounded(3) == 0;
            if (random.bounded(4) == 0)
                clip.expiresAt = 998 + random.bounded(4);
            sample.add(clip);
        }
        RetentionPolicy policy{
            .maxAge = std::nullopt, .maxCount = random.bounded(5), .maxMediaBytes = random.bounded(12)};
        if (random.bounded(2))
            policy.maxAge = random.bounded(6);
        ClipList list;
        list.assign(sample.clips);
        const bool isWithin = list.isWithin(policy, 1000);
        settled += isWithin ? 1 : 0;
        ASSERT_TRUE(!isWithin || sample.doomed(policy) == list.expired(1000));
        // It may only err where pinned media alone hold the sum above the limit, or what expires did.
        ASSERT_TRUE(isWithin || !sample.doomed(policy).isEmpty() || sample.mediaBytes() > policy.maxMediaBytes);
    }
    EXPECT_GT(settled, 100);
}

} // namespace
} // namespace vellumry
