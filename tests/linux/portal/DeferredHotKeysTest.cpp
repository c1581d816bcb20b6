// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/portal/DeferredHotKeys.h"

#include "support/FakeHotKeyRegistrar.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

const FakeHotKeyRegistrar::Combination open{KeyCode::v, Modifier::control | Modifier::command};
const FakeHotKeyRegistrar::Combination stack{KeyCode::c, Modifier::control | Modifier::command};

class DeferredHotKeysTest : public ::testing::Test {
protected:
    FakeHotKeyRegistrar& choose() {
        auto made = std::make_unique<FakeHotKeyRegistrar>();
        FakeHotKeyRegistrar& chosen = *made;
        keys.choose(std::move(made));
        return chosen;
    }
    bool grab(quint32 id, const FakeHotKeyRegistrar::Combination& key) { return keys.grab(id, key.first, key.second); }

    DeferredHotKeys keys;
};

} // namespace

TEST_F(DeferredHotKeysTest, WhatWasGrabbedBeforeTheChoiceIsHeldFromItOn) {
    keys.announce(1, {QStringLiteral("open-panel"), QStringLiteral("Open")});
    EXPECT_TRUE(grab(1, open));
    EXPECT_TRUE(grab(2, stack));
    keys.release(2);
    keys.announce(3, {QStringLiteral("not-grabbed"), QStringLiteral("Later")});
    std::vector<quint32> pressed;
    keys.onPressed = [&pressed](quint32 id) { pressed.push_back(id); };
    FakeHotKeyRegistrar& chosen = choose();
    EXPECT_EQ(chosen.grabbed, (std::map<quint32, FakeHotKeyRegistrar::Combination>{{1, open}}));
    EXPECT_EQ(chosen.purposes.at(1).name, u"open-panel");
    EXPECT_EQ(chosen.purposes.at(3).name, u"not-grabbed");
    EXPECT_TRUE(chosen.press(open));
    EXPECT_EQ(pressed, std::vector<quint32>{1});
}

TEST_F(DeferredHotKeysTest, BehindTheChoiceEverythingIsTheChosenOnes) {
    FakeHotKeyRegistrar& chosen = choose();
    chosen.taken = {stack};
    EXPECT_TRUE(grab(1, open));
    EXPECT_FALSE(grab(2, stack));
    keys.release(1);
    EXPECT_TRUE(chosen.grabbed.empty());
}

TEST_F(DeferredHotKeysTest, HasKeysUntilItIsKnownOtherwise) {
    EXPECT_TRUE(keys.hasKeys());
    EXPECT_EQ(keys.ownBindings().lines, QStringList());
    choose().anyKeys = false;
    EXPECT_FALSE(keys.hasKeys());
}

} // namespace vellumry
