// SPDX-License-Identifier: GPL-3.0-or-later
// Mutter dies, and the session with it, when it refuses a request whose window is gone.
#include "linux/x11/selection/X11PasteboardWorld.h"

#include <QElapsedTimer>
#include <future>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

constexpr qint64 anySize = 1LL << 40;

class OwedAnswers : public X11PasteboardWorld {
protected:
    /// An owner of the clipboard that owes an answer which is not awaited any more.
    HostileOwner& debtor(std::chrono::milliseconds longestWait) {
        PasteboardLimits limits;
        limits.silence = 10ms;
        limits.owedAnswers = longestWait;
        setLimits(limits);
        HostileOwner& owner = copied({{"application/x-slow", "late", HostileOwner::Manner::silence}});
        EXPECT_EQ(resultOf(reading()->data(0, QStringLiteral("application/x-slow"), anySize)), std::nullopt);
        EXPECT_TRUE(owner.requests.contains("application/x-slow"));
        return owner;
    }
    qint64 millisecondsToEnd() {
        QElapsedTimer timer;
        timer.start();
        pasteboard.reset();
        return timer.elapsed();
    }
};

} // namespace

TEST_F(OwedAnswers, OfTheWindowManagerAreWaitedForUntilTheyCome) {
    HostileOwner& owner = debtor(1h);
    ASSERT_TRUE(owner.own("WM_S0", {}));
    auto answering = std::async(std::launch::async, [&] { owner.breakSilence(); });
    EXPECT_LT(millisecondsToEnd(), 60'000);
    answering.get();
}

TEST_F(OwedAnswers, OfTheWindowManagerThatNeverComeAreWaitedForAsLongAsIsSaid) {
    HostileOwner& owner = debtor(200ms);
    ASSERT_TRUE(owner.own("WM_S0", {}));
    const qint64 took = millisecondsToEnd();
    EXPECT_GE(took, 200);
    EXPECT_LT(took, 60'000);
}

TEST_F(OwedAnswers, OfOtherProgramsAreNotWaitedFor) {
    debtor(1h);
    HostileOwner& manager = peer();
    ASSERT_TRUE(manager.own("WM_S0", {}));
    EXPECT_LT(millisecondsToEnd(), 60'000);
}

TEST_F(OwedAnswers, OfAWindowManagerWhoseCopyWasReplacedAreStillOwed) {
    HostileOwner& owner = debtor(200ms);
    ASSERT_TRUE(owner.own("WM_S0", {}));
    copied({{"UTF8_STRING", "the next copy"}});
    EXPECT_GE(millisecondsToEnd(), 200);
}

} // namespace vellumry
