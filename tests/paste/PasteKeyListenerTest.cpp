// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/PasteKeyListener.h"

#include "support/FakeKeyboardLayout.h"
#include "support/FakePasteKeys.h"

#include <gtest/gtest.h>
#include <vector>

namespace vellumry {

namespace {

using enum Modifier;

constexpr qint64 ownPID = 4711;
constexpr KeyCode period{47};

bool pastes(const KeyPress& press, KeyCode vKeyCode = KeyCode::v) {
    return PasteKeyListener::shouldPaste(press, vKeyCode, ownPID);
}

KeyPress with(Modifiers modifiers, const char* characters = "v", KeyCode keyCode = KeyCode::v) {
    return {keyCode, modifiers, false, QString::fromUtf8(characters), 0, 0};
}

struct ListenerWorld {
    ListenerWorld() {
        listener.onPaste = [this](std::shared_ptr<HeldKey> key) { held.push_back(std::move(key)); };
    }
    FakePasteKeys keys;
    FakeKeyboardLayout layout;
    PasteKeyListener listener{keys, layout, ownPID};
    std::vector<std::shared_ptr<HeldKey>> held;
};

} // namespace

TEST(PasteKeyListener, ControlVPastesWithShiftAndAltToo) {
    EXPECT_TRUE(pastes(with(command)));
    EXPECT_TRUE(pastes(with(command | shift)));
    EXPECT_TRUE(pastes(with(command | option)));
    EXPECT_TRUE(pastes(with(command | shift | option)));
    EXPECT_TRUE(pastes(with(command, "V")));
}

TEST(PasteKeyListener, SuperOrNoControlIsSomethingElse) {
    EXPECT_FALSE(pastes(with(command | control)));
    EXPECT_FALSE(pastes(with({})));
    EXPECT_FALSE(pastes(with(shift)));
    EXPECT_FALSE(pastes(with(option)));
    EXPECT_FALSE(pastes(with(control)));
}

TEST(PasteKeyListener, ShiftInsertPastesAlone) {
    const KeyCode insert = KeyCode::insert;
    EXPECT_TRUE(pastes(with(shift, "", insert)));
    EXPECT_FALSE(pastes(with(shift | command, "", insert))); // Ctrl+Shift+Insert
    EXPECT_FALSE(pastes(with(shift | control, "", insert)));
    EXPECT_FALSE(pastes(with(shift | option, "", insert)));
    EXPECT_FALSE(pastes(with(command, "", insert))); // Ctrl+Insert copies
    EXPECT_FALSE(pastes(with({}, "", insert)));
}

TEST(PasteKeyListener, ALayoutWithoutLatinLettersPastesByThePlaceOfTheKey) {
    EXPECT_TRUE(pastes(with(command, "м", KeyCode::v)));
    EXPECT_TRUE(pastes(with(command, "ر", period), period));
    EXPECT_TRUE(pastes(with(command, "", KeyCode::v)));
    EXPECT_FALSE(pastes(with(command, "м", KeyCode::c)));
}

TEST(PasteKeyListener, TheLetterCountsWhereverItIs) {
    EXPECT_TRUE(pastes(with(command, "v", period)));
    EXPECT_FALSE(pastes(with(command, "k", KeyCode::k)));
}

TEST(PasteKeyListener, HoldingTheKeysDownPastesOnce) {
    KeyPress press = with(command);
    press.isRepeat = true;
    EXPECT_FALSE(pastes(press));
    KeyPress insert = with(shift, "", KeyCode::insert);
    insert.isRepeat = true;
    EXPECT_FALSE(pastes(insert));
}

TEST(PasteKeyListener, OurOwnPressIsNone) {
    KeyPress press = with(command);
    press.sourceUserData = ownEventMark;
    EXPECT_FALSE(pastes(press));
    press.sourceUserData = 1;
    EXPECT_TRUE(pastes(press));
}

TEST(PasteKeyListener, APressIntoOurOwnWindowIsNone) {
    KeyPress press = with(command);
    press.targetPID = ownPID;
    EXPECT_FALSE(pastes(press));
    press.targetPID = ownPID + 1;
    EXPECT_TRUE(pastes(press));
    press.targetPID = 0;
    EXPECT_FALSE(PasteKeyListener::shouldPaste(with({}), KeyCode::v, 0));
    EXPECT_TRUE(PasteKeyListener::shouldPaste(press, KeyCode::v, 0)) << "an unknown process is not ours";
}

TEST(PasteKeyListener, HoldsAPasteUntilItIsHandledAndLetsOtherKeysGo) {
    ListenerWorld world;
    ASSERT_TRUE(world.listener.start());
    const auto paste = world.keys.press();
    EXPECT_TRUE(paste->isHeld);
    ASSERT_EQ(world.held.size(), 1u);
    const auto other = world.keys.press(with(command | control));
    EXPECT_FALSE(other->isHeld);
    EXPECT_EQ(other->contents, HeldKey::Contents::same);
    world.held.front()->letGo(HeldKey::Contents::fresh);
    EXPECT_FALSE(paste->isHeld);
    EXPECT_EQ(paste->contents, HeldKey::Contents::fresh);
    EXPECT_EQ(world.held.size(), 1u);
}

TEST(PasteKeyListener, AKeyThatNobodyKeepsGoes) {
    ListenerWorld world;
    world.listener.onPaste = [](const std::shared_ptr<HeldKey>&) {};
    ASSERT_TRUE(world.listener.start());
    EXPECT_FALSE(world.keys.press()->isHeld);
    world.listener.onPaste = nullptr;
    EXPECT_FALSE(world.keys.press()->isHeld);
}

TEST(PasteKeyListener, PressesInTheFocusedPanelGoOnTheirWay) {
    ListenerWorld world;
    world.listener.isOwnWindowFocused = [] { return true; };
    ASSERT_TRUE(world.listener.start());
    EXPECT_FALSE(world.keys.press()->isHeld);
    EXPECT_TRUE(world.held.empty());
}

TEST(PasteKeyListener, StartsOnceAndSaysWhenItCannot) {
    ListenerWorld world;
    world.keys.available = false;
    EXPECT_FALSE(world.listener.start());
    EXPECT_FALSE(world.listener.isListening());
    world.keys.available = true;
    EXPECT_TRUE(world.listener.start());
    EXPECT_TRUE(world.listener.start());
    EXPECT_EQ(world.keys.startCalls, 2);
    world.listener.stop();
    world.listener.stop();
    EXPECT_FALSE(world.keys.isStarted);
    (void)world.keys.press();
    EXPECT_TRUE(world.held.empty());
}

TEST(PasteKeyListener, TakesTheLettersPlaceAnewAtEachStart) {
    ListenerWorld world;
    world.layout.characters = {{period, QStringLiteral("v")}};
    ASSERT_TRUE(world.listener.start());
    EXPECT_TRUE(world.keys.press(with(command, "", period))->isHeld);
    EXPECT_FALSE(world.keys.press(with(command, "", KeyCode::v))->isHeld);
    world.listener.stop();
    world.layout.characters.clear();
    ASSERT_TRUE(world.listener.start());
    EXPECT_TRUE(world.keys.press(with(command, "", KeyCode::v))->isHeld);
}

} // namespace vellumry
