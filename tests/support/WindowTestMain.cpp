// SPDX-License-Identifier: GPL-3.0-or-later
#include <QGuiApplication>
#include <gtest/gtest.h>

/// For tests of windows: without any display, drawn by the software renderer.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    ::testing::InitGoogleTest(&argc, argv);
    QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
