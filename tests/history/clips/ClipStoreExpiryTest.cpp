// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/MemoryStoreTest.h"
#include "support/FakeTime.h"

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

class ClipStoreExpiryTest : public MemoryStoreTest {
protected:
    void runOn(const FakeTime& time) {
        m_store.setClock(time.clock());
        m_store.setExpiryTimer(std::make_unique<FakeTime::Timer>(time));
        m_store.setAutoExpire(true);
    }
    FakeTime m_time{10};
};

TEST_F(ClipStoreExpiryTest, NoTimerRunsUntilAskedFor) {
    Date now = 10;
    m_store.setClock([&] { return now; });
    add(drafts::secret(u"one"_s), 10);
    EXPECT_FALSE(m_store.isExpiryScheduled());
    EXPECT_EQ(m_store.nextExpiry(), 70);
    now = 80;
    addText(u"two"_s, now);
    EXPECT_EQ(titles(), QStringList{u"two"_s}) << "a due clip goes with the next copy all the same";
}

TEST_F(ClipStoreExpiryTest, TheTimerFollowsTheNextExpiry) {
    m_store.setClock([] { return 10.0; });
    m_store.setAutoExpire(true);
    EXPECT_FALSE(m_store.isExpiryScheduled());
    const ClipRef clip = add(drafts::secret(u"one"_s), 10);
    EXPECT_TRUE(m_store.isExpiryScheduled());
    pin(clip, true, 11);
    EXPECT_FALSE(m_store.isExpiryScheduled());
    add(drafts::secret(u"two"_s), 12);
    EXPECT_TRUE(m_store.isExpiryScheduled());
    m_store.setAutoExpire(false);
    EXPECT_FALSE(m_store.isExpiryScheduled());
}

TEST_F(ClipStoreExpiryTest, SecretsDeleteThemselvesOneAfterTheOther) {
    runOn(m_time);
    add(drafts::secret(u"one"_s), 10);
    add(drafts::secret(u"two"_s), 11);
    addText(u"three"_s, 12);
    m_time.pass(60.049);
    EXPECT_EQ(titles(), (QStringList{u"three"_s, u"two"_s, u"one"_s}));
    m_time.pass(0.001);
    EXPECT_EQ(titles(), (QStringList{u"three"_s, u"two"_s}));
    EXPECT_EQ(m_time.waitsFor(), 71.05);
    m_time.pass(1);
    EXPECT_EQ(titles(), QStringList{u"three"_s});
    EXPECT_FALSE(m_store.isExpiryScheduled());
}

TEST_F(ClipStoreExpiryTest, SecretsWhoseTimeCameInASleepGoTogetherOnWaking) {
    runOn(m_time);
    add(drafts::secret(u"one"_s), 10);
    add(drafts::secret(u"two"_s), 40);
    add(drafts::secret(u"three"_s), 3600);
    m_time.pass(3600);
    EXPECT_EQ(titles(), QStringList{u"three"_s});
    EXPECT_EQ(m_time.waitsFor(), 3660.05);
}

TEST_F(ClipStoreExpiryTest, AClockSetForwardEndsASecretAndOneSetBackSparesIt) {
    runOn(m_time);
    add(drafts::secret(u"one"_s), 10);
    m_time.set(69);
    EXPECT_EQ(m_store.clips().size(), 1U);
    m_time.set(5);
    m_time.pass(64);
    EXPECT_EQ(m_store.clips().size(), 1U) << "its date is by the wall clock";
    m_time.set(70);
    EXPECT_TRUE(m_store.clips().empty());
}

TEST_F(ClipStoreExpiryTest, AnExpiryInThePastIsDueAfterALittle) {
    runOn(m_time);
    m_store.setSensitiveLifetime(5);
    m_time.pass(100);
    // The copy was seen long ago and is stored only now.
    awaited(m_store.add(drafts::secret(u"late"_s), 10));
    EXPECT_EQ(m_store.nextExpiry(), 15);
    EXPECT_EQ(m_time.waitsFor(), 110.05);
    m_time.pass(0.05);
    EXPECT_TRUE(m_store.clips().empty());
}

TEST_F(ClipStoreExpiryTest, AskingForTheTimerAgainArmsItAgain) {
    runOn(m_time);
    add(drafts::secret(u"one"_s), 10);
    m_store.setAutoExpire(false);
    EXPECT_EQ(m_time.waitsFor(), std::nullopt);
    m_store.setAutoExpire(true);
    EXPECT_EQ(m_time.waitsFor(), 70.05);
    m_time.pass(30);
    m_store.setAutoExpire(true);
    EXPECT_EQ(m_time.waitsFor(), 70.05);
}

TEST_F(ClipStoreExpiryTest, UseDoesNotRestartTheCountdown) {
    runOn(m_time);
    const ClipRef clip = add(drafts::secret(u"one"_s), 10);
    awaited(m_store.markUsed(clip->id, 50));
    EXPECT_EQ(m_time.waitsFor(), 70.05);
    m_time.pass(60.05);
    EXPECT_TRUE(m_store.clips().empty());
}

TEST_F(ClipStoreExpiryTest, ASensitiveRecopyOfAPinGivesItAnEndThatItMeets) {
    const ClipRef clip = addText(u"one"_s, 1);
    pin(clip, true, 2);
    const ClipRef again = add(drafts::secret(u"one"_s), 10);
    EXPECT_TRUE(again->isPinned);
    EXPECT_EQ(again->expiresAt, 70);
    awaited(m_store.enforceRetention(69.9));
    EXPECT_TRUE(current(clip));
    awaited(m_store.enforceRetention(70));
    EXPECT_FALSE(current(clip));
}

TEST_F(ClipStoreExpiryTest, AnOrdinaryRecopyOfASecretLosesItsEnd) {
    EXPECT_EQ(add(drafts::secret(u"one"_s), 10)->expiresAt, 70);
    EXPECT_EQ(addText(u"one"_s, 20)->expiresAt, std::nullopt);
    EXPECT_EQ(m_store.nextExpiry(), std::nullopt);
}

TEST_F(ClipStoreExpiryTest, AnEndIsCountedFromTheCopyWithTheLifetimeOfThatMoment) {
    m_store.setSensitiveLifetime(5);
    const ClipRef clip = add(drafts::secret(u"one"_s), 10);
    EXPECT_EQ(clip->expiresAt, 15);
    m_store.setSensitiveLifetime(500);
    EXPECT_EQ(current(clip)->expiresAt, 15);
}

TEST_F(ClipStoreExpiryTest, PinsAreNumberedByTheTimeTheyWereMade) {
    const ClipRef one = addText(u"one"_s, 1);
    const ClipRef two = addText(u"two"_s, 2);
    const ClipRef three = addText(u"three"_s, 3);
    pin(two, true, 1000.0017);
    pin(one, true, 1000.0018);
    pin(three, true, 1000.5);
    EXPECT_EQ(current(two)->pinOrder, 1'000'001);
    EXPECT_EQ(current(one)->pinOrder, 1'000'002) << "the second of one millisecond goes behind the first";
    EXPECT_EQ(current(three)->pinOrder, 1'000'500);
    EXPECT_EQ(titles(), (QStringList{u"three"_s, u"two"_s, u"one"_s})) << "pinning moves nothing";
    std::vector<QUuid> ids;
    for (const ClipRef& clip : m_store.pinnedClips())
        ids.push_back(clip->id);
    EXPECT_EQ(ids, (std::vector<QUuid>{two->id, one->id, three->id}));
}

TEST_F(ClipStoreExpiryTest, PinningRescuesASecretAndUnpinningDoesNotCondemnIt) {
    const ClipRef clip = add(drafts::secret(u"one"_s), 1);
    pin(clip, true, 2);
    EXPECT_EQ(current(clip)->expiresAt, std::nullopt);
    pin(clip, false, 3);
    EXPECT_EQ(current(clip)->expiresAt, std::nullopt);
    EXPECT_EQ(current(clip)->pinOrder, 0);
    EXPECT_FALSE(current(clip)->isPinned);
}

TEST_F(ClipStoreExpiryTest, PinningWhatIsPinnedChangesNothing) {
    const ClipRef clip = addText(u"one"_s, 1);
    pin(clip, false, 2);
    pin(clip, true, 2);
    const qint64 before = m_store.revision();
    pin(clip, true, 9);
    awaited(m_store.setPinned(QUuid::createUuid(), true, 9));
    EXPECT_EQ(m_store.revision(), before);
    EXPECT_EQ(current(clip)->pinOrder, 2000);
}

} // namespace
} // namespace vellumry
