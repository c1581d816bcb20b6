// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/windows/WaylandIdleTime.h"

#include "wayland/WaylandPeer.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

TEST(WaylandIdleTime, ARestIsCountedFromTheLastKeyAndAnotherKeyEndsIt) {
    auto connection = WaylandConnection::create();
    ASSERT_TRUE(connection);
    pressKey("escape");
    const auto pressed = std::chrono::steady_clock::now();
    const WaylandIdleTime idle(*connection, 1000ms);
    EXPECT_EQ(idle.seconds(), 0);
    runUntil([&] { return idle.seconds() > 0; });
    EXPECT_GE(idle.seconds(), 1);
    const std::chrono::duration<double> since = std::chrono::steady_clock::now() - pressed;
    EXPECT_LE(idle.seconds(), since.count() + 0.1);
    pressKey("escape");
    runUntil([&] { return idle.seconds() == 0; });
}

TEST(WaylandIdleTime, ARestTooShortToCountIsNone) {
    auto connection = WaylandConnection::create();
    ASSERT_TRUE(connection);
    const WaylandIdleTime usual(*connection);
    const WaylandIdleTime quick(*connection, 1000ms);
    pressKey("escape");
    runUntil([&] { return quick.seconds() > 0; });
    EXPECT_EQ(usual.seconds(), 0);
}

} // namespace

} // namespace vellumry
