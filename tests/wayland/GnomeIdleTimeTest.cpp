// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/gnome/GnomeIdleTime.h"

#include "wayland/WaylandPeer.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

TEST(GnomeIdleTime, ARestIsCountedFromTheLastKeyAndAnotherKeyEndsIt) {
    const GnomeIdleTime idle(QDBusConnection::sessionBus(), 1000ms);
    for (int rest = 0; rest < 2; ++rest) {
        pressKey("escape");
        const auto pressed = std::chrono::steady_clock::now();
        runUntil([&] { return idle.seconds() == 0; });
        runUntil([&] { return idle.seconds() > 0; });
        EXPECT_GE(idle.seconds(), 1);
        const std::chrono::duration<double> since = std::chrono::steady_clock::now() - pressed;
        EXPECT_LE(idle.seconds(), since.count() + 0.5);
    }
    pressKey("escape");
    runUntil([&] { return idle.seconds() == 0; });
}

TEST(GnomeIdleTime, ARestTooShortToCountIsNone) {
    const GnomeIdleTime usual;
    const GnomeIdleTime quick(QDBusConnection::sessionBus(), 1000ms);
    pressKey("escape");
    runUntil([&] { return quick.seconds() > 0; });
    EXPECT_EQ(usual.seconds(), 0);
}

} // namespace

} // namespace vellumry
