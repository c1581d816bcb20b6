// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/input/XSession.h"

#include <QGuiApplication>
#include <cstdio>
#include <gtest/gtest.h>

// The tests of this program need a display, so each run brings its own.
int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (::testing::GTEST_FLAG(list_tests)) {
        return RUN_ALL_TESTS();
    }
    qunsetenv("WAYLAND_DISPLAY");
    qputenv("QT_QPA_PLATFORM", "xcb");
    // The window manager's connection check turns an event dispatcher, which the application brings.
    vellumry::XSession session;
    {
        QCoreApplication starter(argc, argv);
        if (!session.start()) {
            std::fputs("the X server or its window manager did not start\n", stderr);
            return 1;
        }
    }
    QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
