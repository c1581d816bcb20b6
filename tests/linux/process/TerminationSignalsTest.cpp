// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/process/TerminationSignals.h"

#include "support/Awaited.h"

#include <csignal>
#include <gtest/gtest.h>
#include <unistd.h>

namespace vellumry {
namespace {

class TerminationSignalsTest : public ::testing::TestWithParam<int> {};

TEST_P(TerminationSignalsTest, ASignalIsACallOnTheMainThread) {
    int calls = 0;
    const TerminationSignals signals([&calls] { ++calls; });
    std::raise(GetParam());
    EXPECT_EQ(calls, 0) << "not inside the handler";
    runUntil([&calls] { return calls > 0; });
    EXPECT_EQ(calls, 1);
}

INSTANTIATE_TEST_SUITE_P(Each, TerminationSignalsTest, ::testing::Values(SIGTERM, SIGINT, SIGHUP));

TEST(TerminationSignals, ASecondSignalEndsTheProcessAtOnce) {
    EXPECT_EXIT(
        {
            const TerminationSignals signals([] {});
            std::raise(SIGTERM);
            std::raise(SIGTERM);
        },
        ::testing::KilledBySignal(SIGTERM), "");
}

TEST(TerminationSignals, NothingIsCaughtAfterwards) {
    EXPECT_EXIT(
        {
            {
                const TerminationSignals signals([] {});
            }
            std::raise(SIGINT);
        },
        ::testing::KilledBySignal(SIGINT), "");
}

TEST(TerminationSignals, AProcessThatHangsAtItsEndIsEnded) {
    EXPECT_EXIT(
        {
            endProcessWithin(std::chrono::seconds(1));
            for (;;)
                pause();
        },
        ::testing::KilledBySignal(SIGALRM), "");
}

} // namespace
} // namespace vellumry
