// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/windows/WaylandIdleTime.h"

#include "support/Awaited.h"

#include <QProcess>
#include <gtest/gtest.h>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

/// A key of the user's.
void press(const char* key) {
    QStringList command = qEnvironmentVariable("VELLUMRY_TYPE").split(u' ');
    const QString typist = command.takeFirst();
    command.append(QString::fromLatin1(key));
    ASSERT_EQ(QProcess::execute(typist, command), 0);
}

TEST(WaylandIdleTime, ARestIsCountedFromTheLastKeyAndAnotherKeyEndsIt) {
    auto connection = WaylandConnection::create();
    ASSERT_TRUE(connection);
    press("escape");
    const auto pressed = std::chrono::steady_clock::now();
    const WaylandIdleTime idle(*connection, 1000ms);
    EXPECT_EQ(idle.seconds(), 0);
    runUntil([&] { return idle.seconds() > 0; });
    EXPECT_GE(idle.seconds(), 1);
    const std::chrono::duration<double> since = std::chrono::steady_clock::now() - pressed;
    EXPECT_LE(idle.seconds(), since.count() + 0.1);
    press("escape");
    runUntil([&] { return idle.seconds() == 0; });
}

TEST(WaylandIdleTime, ARestTooShortToCountIsNone) {
    auto connection = WaylandConnection::create();
    ASSERT_TRUE(connection);
    const WaylandIdleTime usual(*connection);
    const WaylandIdleTime quick(*connection, 1000ms);
    press("escape");
    runUntil([&] { return quick.seconds() > 0; });
    EXPECT_EQ(usual.seconds(), 0);
}

} // namespace

} // namespace vellumry
