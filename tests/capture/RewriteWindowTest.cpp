// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/RewriteWindow.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

TEST(RewriteWindow, ACopyIsHeldBackForAMoment) {
    EXPECT_EQ(RewriteWindow(1000).end(), 1020);
}

TEST(RewriteWindow, ANextCopyThatIsReadEndsIt) {
    RewriteWindow window(1000);
    window.noteNext(1010, true);
    EXPECT_LE(window.end(), 1010);
}

TEST(RewriteWindow, ANextCopyThatCameSoonIsWaitedForButNotForLong) {
    RewriteWindow window(1000);
    window.noteNext(1019, false);
    EXPECT_EQ(window.end(), 1250);
}

TEST(RewriteWindow, ALaterCopyNeverPostponesAnEarlierOne) {
    RewriteWindow window(1000);
    window.noteNext(1020, false);
    EXPECT_LE(window.end(), 1020);
}

TEST(RewriteWindow, OnlyWhatCameSoonMayBeTheSameCopy) {
    EXPECT_TRUE(RewriteWindow(1000).covers(1019));
    EXPECT_FALSE(RewriteWindow(1000).covers(1020));
}

} // namespace
} // namespace vellumry
