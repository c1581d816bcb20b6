// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/StartupAlert.h"

#include <gtest/gtest.h>

using namespace vellumry;

TEST(StartupAlert, AnOrdinaryStartHasNone) {
    EXPECT_EQ(startupAlert(false, false), std::nullopt);
}

TEST(StartupAlert, MemoryOnlyOutweighsAFreshHistory) {
    EXPECT_EQ(startupAlert(true, true)->title, QStringLiteral("Vellumry can't reach your Keychain"));
    EXPECT_EQ(startupAlert(true, false), startupAlert(true, true));
}

TEST(StartupAlert, AHistoryPutAsideIsTold) {
    EXPECT_EQ(startupAlert(false, true)->title, QStringLiteral("Vellumry started a fresh history"));
}
