// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/X11IdleTime.h"

#include "support/Awaited.h"

#include <gtest/gtest.h>

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>

namespace vellumry {

TEST(X11IdleTime, ItGrowsUntilTheUserDoesSomething) {
    const auto connection = XlibConnection::create().value();
    const X11IdleTime idle(connection);
    runUntil([&idle] { return idle.seconds() > 0.3; });
    const double before = idle.seconds();
    XTestFakeRelativeMotionEvent(connection->display(), 1, 1, CurrentTime);
    XSync(connection->display(), False);
    EXPECT_LT(idle.seconds(), before);
}

} // namespace vellumry
