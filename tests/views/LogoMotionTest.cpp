// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/LogoMotion.h"

#include <cmath>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace LogoMotion;

TEST(LogoMotion, BeginsWithNothingAndEndsAsTheStillPicture) {
    const Frame first = frameAt(0);
    EXPECT_EQ(first.tile, 0);
    EXPECT_EQ(first.clips, 0);
    EXPECT_EQ(first.head, 0);
    EXPECT_EQ(frameAt(duration), Frame());
    EXPECT_EQ(frameAt(1000), Frame());
}

TEST(LogoMotion, NothingJumps) {
    Frame before = frameAt(0);
    for (double time = 0.01; time < duration + 0.1; time += 0.01) {
        const Frame now = frameAt(time);
        for (const double Frame::*part :
             {&Frame::tile, &Frame::clips, &Frame::head, &Frame::peck, &Frame::tap, &Frame::eyeOpen}) {
            EXPECT_LE(std::abs(now.*part - before.*part), 0.2) << time;
            EXPECT_GE(now.*part, -1e-9);
            EXPECT_LE(now.*part, 1.0);
        }
        before = now;
    }
}

TEST(LogoMotion, TheBirdPecksAndBlinks) {
    double peck = 0;
    double eye = 1;
    for (double time = 0; time < duration; time += 0.01) {
        peck = std::max(peck, frameAt(time).peck);
        eye = std::min(eye, frameAt(time).eyeOpen);
    }
    EXPECT_GT(peck, 0.95);
    EXPECT_LT(eye, 0.05);
}

} // namespace
} // namespace vellumry
