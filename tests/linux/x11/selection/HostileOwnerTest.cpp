// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/UniformType.h"
#include "linux/x11/selection/X11PasteboardWorld.h"

#include <QElapsedTimer>

namespace vellumry {

namespace {

using Manner = HostileOwner::Manner;
using namespace std::chrono_literals;

/// What an owner that misbehaves may cost: its representation, or its copy; never the next one.
class HostileOwnerReading : public X11PasteboardWorld {
protected:
    std::optional<QByteArray> read(PasteboardReading& reading, const QString& type, qint64 maxBytes = 1 << 30) {
        return resultOf(reading.data(0, type, maxBytes));
    }
    void expectNextCopyIsRead() {
        copied({{"UTF8_STRING", "next"}});
        const auto next = reading();
        ASSERT_NE(next, nullptr);
        EXPECT_EQ(read(*next, uniformtype::utf8PlainText), "next");
    }
    void own(HostileOwner& owner, std::vector<HostileOwner::Offer> offers) {
        const qint64 count = pasteboard->changeCount();
        EXPECT_TRUE(owner.own("CLIPBOARD", std::move(offers)));
        EXPECT_TRUE(waitForChange(count));
    }
    QElapsedTimer timer;
};

/// A word processor under load.
TEST_F(HostileOwnerReading, ThatSaysLateWhatItOffersIsWaitedFor) {
    HostileOwner& owner = peer();
    owner.targetsWork = 700ms;
    own(owner, {{"UTF8_STRING", "late"}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    EXPECT_EQ(read(*look, uniformtype::utf8PlainText), "late");
}

TEST_F(HostileOwnerReading, ThatNeverSaysWhatItOffersCostsItsCopyOnly) {
    PasteboardLimits limits;
    limits.targetList = 200ms;
    setLimits(limits);
    HostileOwner& owner = peer();
    owner.targetsManner = Manner::silence;
    own(owner, {{"UTF8_STRING", "t"}});
    EXPECT_EQ(reading(), nullptr);
    expectNextCopyIsRead();
}

TEST_F(HostileOwnerReading, IsAskedForItsTypesBeforeAnybodyWantsToKnow) {
    HostileOwner& owner = copied({{"UTF8_STRING", "t"}});
    EXPECT_TRUE(eventually([&] { return owner.requests.contains("TARGETS"); }));
    catchUp();
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    EXPECT_EQ(owner.requests, QByteArrayList{"TARGETS"});
}

TEST_F(HostileOwnerReading, ThatTakesItsTimeForATextIsWaitedFor) {
    copied({{"UTF8_STRING", "slow", Manner::whole, {}, 8, {}, 1500ms}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    EXPECT_EQ(read(*look, uniformtype::utf8PlainText), "slow");
}

/// A spreadsheet that renders a large table, which was given up, before it comes to the text.
TEST_F(HostileOwnerReading, ThatIsBusyWithOneTypeIsNotSilentAboutTheNext) {
    PasteboardLimits limits;
    limits.silence = limits.rendering = 300ms;
    setLimits(limits);
    copied({{"application/x-sheet", "sheet", Manner::whole, {}, 8, {}, 900ms}, {"UTF8_STRING", "cells"}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    EXPECT_EQ(read(*look, QStringLiteral("application/x-sheet")), std::nullopt);
    EXPECT_EQ(read(*look, uniformtype::utf8PlainText), "cells");
}

TEST_F(HostileOwnerReading, WhoseAnswerComesAfterManyCopiesIsNotTakenForAnothers) {
    PasteboardLimits limits;
    limits.silence = 10ms;
    setLimits(limits);
    const QString slow = QStringLiteral("application/x-slow");
    const std::vector<HostileOwner::Offer> held{{"application/x-slow", "of the first", Manner::silence}};
    HostileOwner& first = copied(held);
    EXPECT_EQ(read(*reading(), slow), std::nullopt);
    HostileOwner& others = peer();
    for (int i = 0; i < 63; ++i) {
        own(others, held);
        EXPECT_EQ(read(*reading(), slow), std::nullopt);
    }
    HostileOwner& last = copied({{"text/html", "<b>", Manner::silence}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    auto pending = look->data(0, uniformtype::html, 1000);
    EXPECT_TRUE(eventually([&] { return last.requests.contains("text/html"); }));
    first.breakSilence();
    catchUp();
    last.breakSilence();
    EXPECT_EQ(resultOf(std::move(pending)), "<b>");
}

TEST_F(HostileOwnerReading, ThatRefusesToSayWhatItOffersIsLeftAlone) {
    HostileOwner& owner = peer();
    owner.targetsManner = Manner::refusal;
    own(owner, {{"UTF8_STRING", "t"}});
    EXPECT_EQ(reading(), nullptr);
    expectNextCopyIsRead();
}

TEST_F(HostileOwnerReading, ThatHangsOnOneTargetLeavesTheOthersReadable) {
    const QString hanging = QStringLiteral("application/x-hangs");
    copied({{"application/x-hangs", {}, Manner::silence},
            {"text/html", "<b>"},
            {"application/x-no", {}, Manner::refusal}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    timer.start();
    EXPECT_EQ(read(*look, hanging), std::nullopt);
    EXPECT_GE(timer.elapsed(), 900);
    EXPECT_FALSE(look->wasLarger());
    EXPECT_EQ(read(*look, uniformtype::html), "<b>");
    EXPECT_EQ(read(*look, QStringLiteral("application/x-no")), std::nullopt);
    EXPECT_TRUE(look->isCurrent());
}

TEST_F(HostileOwnerReading, ThatAnswersWithAtomsGivesNoContent) {
    copied({{"image/png", QByteArray(8, 'x'), Manner::whole, "ATOM", 32}, {"UTF8_STRING", "t"}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    EXPECT_EQ(read(*look, uniformtype::png), std::nullopt);
    EXPECT_EQ(read(*look, uniformtype::utf8PlainText), "t");
}

TEST_F(HostileOwnerReading, ThatDiesHalfWayEndsTheReadingAtOnce) {
    copied({{"image/png", patternOf(4 << 20), Manner::deathHalfWay}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    timer.start();
    EXPECT_EQ(read(*look, uniformtype::png), std::nullopt);
    EXPECT_LT(timer.elapsed(), 900);
    EXPECT_FALSE(look->isCurrent());
    expectNextCopyIsRead();
}

TEST_F(HostileOwnerReading, ThatFallsSilentHalfWayCostsThatTypeOnly) {
    copied({{"text/html", patternOf(4 << 20), Manner::silenceHalfWay}, {"UTF8_STRING", "t"}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    EXPECT_EQ(read(*look, uniformtype::html), std::nullopt);
    EXPECT_EQ(read(*look, uniformtype::utf8PlainText), "t");
}

TEST_F(HostileOwnerReading, ThatNeverEndsIsCutOffAtTheLimit) {
    HostileOwner& owner = copied({{"image/png", {}, Manner::endless}, {"UTF8_STRING", "t"}});
    owner.chunkBytes = 16 * 1024;
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    EXPECT_EQ(read(*look, uniformtype::png, 1 << 20), std::nullopt);
    EXPECT_EQ(read(*look, uniformtype::utf8PlainText), "t");
    // The owner is kept going for a while, not for ever.
    int sent = -1;
    EXPECT_TRUE(eventually([&] { return std::exchange(sent, owner.chunksSent) == owner.chunksSent; }));
}

TEST_F(HostileOwnerReading, ThatLiesAboutTheSizeIsTakenByWhatItGives) {
    const QByteArray bytes = patternOf(500000);
    copied({{"image/png", bytes, Manner::increments, {}, 8, 1},
            {"image/jpeg", bytes, Manner::increments, {}, 8, 0xffffffff}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    EXPECT_EQ(read(*look, uniformtype::png), bytes);
    EXPECT_EQ(read(*look, uniformtype::jpeg), bytes);
}

TEST_F(HostileOwnerReading, ThatIsReplacedInTheMiddleEndsTheReading) {
    copied({{"image/png", {}, Manner::silence}, {"UTF8_STRING", "old"}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    auto pending = look->data(0, uniformtype::png, 1 << 20);
    timer.start();
    copied({{"UTF8_STRING", "new"}});
    EXPECT_EQ(resultOf(std::move(pending)), std::nullopt);
    EXPECT_LT(timer.elapsed(), 900);
    EXPECT_FALSE(look->isCurrent());
    EXPECT_EQ(read(*look, uniformtype::utf8PlainText), std::nullopt);
    EXPECT_TRUE(resultOf(look->itemTypes()).empty());
    EXPECT_EQ(read(*reading(), uniformtype::utf8PlainText), "new");
}

TEST_F(HostileOwnerReading, ThatOffersTenThousandTargetsIsLookedAtInPart) {
    HostileOwner& owner = peer();
    std::vector<quint32> atoms{owner.atom("UTF8_STRING")};
    for (int i = 0; i < 10000; ++i)
        atoms.push_back(i % 3 == 0 ? 0x7fffff00 + quint32(i) : owner.atom("x/t" + QByteArray::number(i)));
    owner.targetAtoms = atoms;
    own(owner, {{"UTF8_STRING", "t"}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    EXPECT_GT(look->types().size(), 100);
    EXPECT_LE(look->types().size(), 1001);
    EXPECT_EQ(read(*look, uniformtype::utf8PlainText), "t");
}

TEST_F(HostileOwnerReading, ThatPutsItsTextOrItsMarkBehindThousandsOfTypesHasThemSeen) {
    for (const auto& [last, type] :
         {std::pair{"UTF8_STRING", uniformtype::utf8PlainText},
          std::pair{"x-kde-passwordManagerHint", uniformtype::concealed},
          std::pair{"com.agilebits.onepassword", QStringLiteral("com.agilebits.onepassword")}}) {
        HostileOwner& owner = peer();
        std::vector<quint32> atoms;
        for (int i = 0; i < 3000; ++i)
            atoms.push_back(owner.atom("x/t" + QByteArray::number(i)));
        atoms.push_back(owner.atom(last));
        owner.targetAtoms = atoms;
        own(owner, {{last, "t"}});
        const auto look = reading();
        ASSERT_NE(look, nullptr);
        EXPECT_TRUE(look->types().contains(type)) << last;
    }
}

TEST_F(HostileOwnerReading, ThatUsesHugeNamesHasThemLeftOut) {
    copied({{"x/" + QByteArray(60000, 'n'), "huge"}, {"UTF8_STRING", "t"}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    EXPECT_EQ(look->types(), QStringList{uniformtype::utf8PlainText});
}

TEST_F(HostileOwnerReading, ThatHangsOnEverythingEndsWithTheDeadlineOfTheCopy) {
    std::vector<HostileOwner::Offer> offers;
    for (int i = 0; i < 10; ++i)
        offers.push_back({"x/t" + QByteArray::number(i), {}, Manner::silence});
    copied(std::move(offers));
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(read(*look, QStringLiteral("x/t%1").arg(i)), std::nullopt);
    EXPECT_FALSE(look->isCurrent());
    expectNextCopyIsRead();
}

TEST_F(HostileOwnerReading, ThatMakesAPictureForSecondsIsWaitedForButNotForEver) {
    copied({{"image/png", {}, Manner::silence}, {"UTF8_STRING", "t"}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    timer.start();
    EXPECT_EQ(read(*look, uniformtype::png), std::nullopt);
    EXPECT_GE(timer.elapsed(), 4500);
    EXPECT_EQ(read(*look, uniformtype::utf8PlainText), "t");
}

TEST_F(HostileOwnerReading, ThatGivesMoreThanIsWantedIsSaidToHave) {
    const QByteArray bytes = patternOf(300'000);
    copied({{"image/png", bytes, Manner::increments},
            {"text/html", bytes.first(1000)},
            {"UTF8_STRING", "t"},
            {"text/rtf", {}, Manner::refusal}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    EXPECT_EQ(read(*look, uniformtype::png, bytes.size() - 1), std::nullopt);
    EXPECT_TRUE(look->wasLarger());
    EXPECT_EQ(read(*look, uniformtype::utf8PlainText), "t");
    EXPECT_FALSE(look->wasLarger());
    EXPECT_EQ(read(*look, uniformtype::html, 999), std::nullopt);
    EXPECT_TRUE(look->wasLarger());
    EXPECT_EQ(read(*look, uniformtype::rtf), std::nullopt);
    EXPECT_FALSE(look->wasLarger());
    EXPECT_EQ(read(*look, uniformtype::html, 1000), bytes.first(1000));
}

TEST_F(HostileOwnerReading, ThatGoesIsReportedWithWhatItHeld) {
    std::vector<qint64> gone;
    pasteboard->onOwnerGone = [&gone](qint64 count) { gone.push_back(count); };
    HostileOwner& owner = copied({{"UTF8_STRING", "t"}});
    const qint64 held = pasteboard->changeCount();
    owner.leave();
    EXPECT_TRUE(eventually([&gone] { return !gone.empty(); }));
    EXPECT_EQ(gone, std::vector<qint64>{held});
    EXPECT_NE(pasteboard->changeCount(), held);
}

TEST_F(HostileOwnerReading, ThatClearsThePasteboardOnPurposeHasNotGone) {
    std::vector<qint64> gone;
    pasteboard->onOwnerGone = [&gone](qint64 count) { gone.push_back(count); };
    HostileOwner& owner = copied({{"UTF8_STRING", "password"}});
    const qint64 held = pasteboard->changeCount();
    owner.clear("CLIPBOARD");
    EXPECT_TRUE(waitForChange(held));
    EXPECT_EQ(reading(), nullptr);
    EXPECT_TRUE(gone.empty());
}

} // namespace

} // namespace vellumry
