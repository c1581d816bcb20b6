// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/keys/X11HotKeys.h"

#include "linux/x11/input/XClient.h"
#include "linux/x11/input/XSession.h"
#include "support/Eventually.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

namespace vellumry {

namespace {

constexpr Modifiers superCtrl = Modifier::control | Modifier::command;
constexpr Modifiers superAlt = Modifier::control | Modifier::option;

class X11HotKeysTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_NE(connection, nullptr);
        ASSERT_TRUE(XSession::setLayout(QStringLiteral("us")));
        // The first key of another device gives the server's keyboard a new map.
        client.chord({KEY_LEFTSHIFT});
        keys.onPressed = [this](quint32 id) { pressed.push_back(id); };
    }
    void TearDown() override { EXPECT_TRUE(XSession::setLayout(QStringLiteral("us"))); }

    bool fires(const std::vector<unsigned int>& chord, quint32 id) {
        pressed.clear();
        client.chord(chord);
        return eventually([&] { return !pressed.empty(); }) && pressed == std::vector<quint32>{id};
    }
    /// Presses the chord, then a hot key that is known to work: had the chord fired, it would have come first.
    bool staysSilent(const std::vector<unsigned int>& chord) {
        EXPECT_TRUE(keys.grab(999, KeyCode::f8, superCtrl));
        pressed.clear();
        client.chord(chord);
        client.chord({KEY_LEFTCTRL, KEY_LEFTMETA, KEY_F8});
        const bool came = eventually([&] { return !pressed.empty(); });
        keys.release(999);
        return came && pressed == std::vector<quint32>{999};
    }

    std::shared_ptr<XlibConnection> connection = XlibConnection::create().value();
    X11HotKeys keys{connection};
    XClient client;
    std::vector<quint32> pressed;
};

const std::vector<unsigned int> ctrlSuperV = {KEY_LEFTCTRL, KEY_LEFTMETA, KEY_V};

} // namespace

TEST_F(X11HotKeysTest, AGrabbedCombinationIsTold) {
    ASSERT_TRUE(keys.grab(7, KeyCode::v, superCtrl));
    EXPECT_TRUE(fires(ctrlSuperV, 7));
    EXPECT_TRUE(staysSilent({KEY_LEFTCTRL, KEY_V}));
    EXPECT_TRUE(staysSilent({KEY_LEFTCTRL, KEY_LEFTMETA, KEY_LEFTALT, KEY_V}));
}

TEST_F(X11HotKeysTest, EachOfManyIsToldByItsOwnId) {
    const std::vector<std::pair<KeyCode, unsigned int>> digits = {
        {KeyCode::digit1, KEY_1}, {KeyCode::digit2, KEY_2}, {KeyCode::digit3, KEY_3},
        {KeyCode::digit4, KEY_4}, {KeyCode::digit5, KEY_5}, {KeyCode::digit6, KEY_6},
        {KeyCode::digit7, KEY_7}, {KeyCode::digit8, KEY_8}, {KeyCode::digit9, KEY_9}};
    quint32 id = 1;
    for (const auto& [keyCode, code] : digits)
        ASSERT_TRUE(keys.grab(id++, keyCode, superAlt));
    id = 1;
    for (const auto& [keyCode, code] : digits)
        EXPECT_TRUE(fires({KEY_LEFTMETA, KEY_LEFTALT, code}, id++));
}

TEST_F(X11HotKeysTest, LocksDoNotMatter) {
    ASSERT_TRUE(keys.grab(1, KeyCode::v, superCtrl));
    for (const unsigned int lock : {KEY_CAPSLOCK, KEY_NUMLOCK}) {
        client.chord({lock});
        EXPECT_TRUE(fires(ctrlSuperV, 1));
    }
    client.chord({KEY_CAPSLOCK});
    EXPECT_TRUE(fires(ctrlSuperV, 1));
    client.chord({KEY_NUMLOCK});
}

TEST_F(X11HotKeysTest, AHeldKeyIsToldOnce) {
    ASSERT_TRUE(keys.grab(1, KeyCode::v, superCtrl));
    ASSERT_TRUE(keys.grab(2, KeyCode::s, superCtrl));
    // Repeats begin after 660 ms; two keys pressed after a second's repeats are in order behind them.
    for (const unsigned int code : ctrlSuperV)
        client.press(code);
    QElapsedTimer timer;
    timer.start();
    EXPECT_TRUE(eventually([&] { return timer.elapsed() > 1200; }));
    client.release(KEY_V);
    client.press(KEY_S);
    EXPECT_TRUE(eventually([&] { return pressed.size() > 1; }));
    for (const unsigned int code : {KEY_S, KEY_LEFTMETA, KEY_LEFTCTRL})
        client.release(code);
    EXPECT_EQ(pressed, (std::vector<quint32>{1, 2}));
}

// A panel that opens on the key gets what is typed after it, however long it takes to get there.
TEST_F(X11HotKeysTest, WhatIsTypedMeanwhileWaitsForTheAnswer) {
    XClient below;
    XClient panel;
    ASSERT_TRUE(panel.open("panel", "Panel"));
    ASSERT_TRUE(below.open("editor", "Editor"));
    ASSERT_TRUE(keys.grab(1, KeyCode::v, superCtrl));
    keys.onPressed = [&](quint32 id) {
        client.release(KEY_V);
        client.chord({KEY_A});
        panel.focus();
        QElapsedTimer timer;
        timer.start();
        while (!panel.hasFocus() && timer.elapsed() < 2000) {
        }
        pressed.push_back(id);
    };
    for (const unsigned int code : ctrlSuperV)
        client.press(code);
    ASSERT_TRUE(eventually([&] { return !pressed.empty(); }));
    std::vector<unsigned long> typed;
    EXPECT_TRUE(eventually([&] {
        for (const XClient::Key& key : panel.takeKeys()) {
            if (key.isPress)
                typed.push_back(key.symbol);
        }
        return !typed.empty();
    }));
    EXPECT_EQ(typed, (std::vector<unsigned long>{'a'}));
    for (const XClient::Key& key : below.takeKeys())
        EXPECT_NE(key.symbol, (unsigned long)('a'));
    client.release(KEY_LEFTMETA);
    client.release(KEY_LEFTCTRL);
}

TEST_F(X11HotKeysTest, AnotherProgramsCoreGrabIsFound) {
    ASSERT_TRUE(client.grabKey(KEY_V, 0x44));
    EXPECT_FALSE(keys.grab(1, KeyCode::v, superCtrl));
    EXPECT_TRUE(keys.grab(1, KeyCode::s, superCtrl));
}

TEST_F(X11HotKeysTest, AnotherProgramsInputExtensionGrabIsFound) {
    X11HotKeys other(XlibConnection::create().value());
    ASSERT_TRUE(other.grab(1, KeyCode::v, superCtrl));
    EXPECT_FALSE(keys.grab(1, KeyCode::v, superCtrl));
    other.release(1);
    EXPECT_TRUE(keys.grab(1, KeyCode::v, superCtrl));
}

TEST_F(X11HotKeysTest, ARefusedCombinationLeavesNothingBehind) {
    ASSERT_TRUE(client.grabKey(KEY_V, 0x46));
    EXPECT_FALSE(keys.grab(1, KeyCode::v, superCtrl));
    XClient third;
    EXPECT_TRUE(third.grabKey(KEY_V, 0x44));
}

TEST_F(X11HotKeysTest, OnesOwnCombinationIsTakenToo) {
    ASSERT_TRUE(keys.grab(1, KeyCode::v, superCtrl));
    EXPECT_FALSE(keys.grab(2, KeyCode::v, superCtrl));
    EXPECT_TRUE(fires(ctrlSuperV, 1));
}

TEST_F(X11HotKeysTest, AReleasedCombinationIsFreeAgain) {
    ASSERT_TRUE(keys.grab(1, KeyCode::v, superCtrl));
    keys.release(1);
    keys.release(1);
    EXPECT_TRUE(staysSilent(ctrlSuperV));
    EXPECT_TRUE(client.grabKey(KEY_V, 0x44));
}

TEST_F(X11HotKeysTest, WhatTheKeyboardLacksIsRefused) {
    EXPECT_FALSE(keys.grab(1, KeyCode(200), superCtrl));
    EXPECT_FALSE(keys.grab(1, KeyCode(52), superCtrl));
}

TEST_F(X11HotKeysTest, TheKeyboardCanBeTakenWhileTheHotKeyIsStillDown) {
    ASSERT_TRUE(keys.grab(1, KeyCode::v, superCtrl));
    bool couldGrab = false;
    for (const unsigned int code : ctrlSuperV)
        client.press(code);
    EXPECT_TRUE(eventually([&] { return !pressed.empty(); }));
    {
        XClient other;
        couldGrab = other.grabKeyboard();
    }
    for (const unsigned int code : ctrlSuperV)
        client.release(code);
    EXPECT_TRUE(couldGrab);
}

TEST_F(X11HotKeysTest, ALetterFollowsTheLayout) {
    ASSERT_TRUE(keys.grab(1, KeyCode::v, superCtrl));
    ASSERT_TRUE(XSession::setLayout(QStringLiteral("us -variant dvorak")));
    EXPECT_TRUE(eventually([&] {
        client.chord({KEY_LEFTCTRL, KEY_LEFTMETA, KEY_DOT});
        QCoreApplication::processEvents();
        return !pressed.empty();
    }));
    EXPECT_TRUE(staysSilent(ctrlSuperV));
    ASSERT_TRUE(XSession::setLayout(QStringLiteral("us -variant basic")));
    pressed.clear();
    EXPECT_TRUE(eventually([&] {
        client.chord(ctrlSuperV);
        QCoreApplication::processEvents();
        return !pressed.empty();
    }));
}

TEST_F(X11HotKeysTest, WithoutLatinLettersTheKeyKeepsItsPlace) {
    ASSERT_TRUE(XSession::setLayout(QStringLiteral("ru")));
    ASSERT_TRUE(keys.grab(1, KeyCode::v, superCtrl));
    EXPECT_TRUE(fires(ctrlSuperV, 1));
}

TEST_F(X11HotKeysTest, AReplacedWindowManagerDoesNotTakeThemForGood) {
    ASSERT_TRUE(keys.grab(1, KeyCode::v, superCtrl));
    // The new one's core grab silently beats ours.
    ASSERT_TRUE(client.grabKey(KEY_V, 0x44));
    EXPECT_TRUE(staysSilent(ctrlSuperV));
    client.setRootProperty("_NET_SUPPORTING_WM_CHECK", 1);
    EXPECT_TRUE(eventually([&] {
        client.chord(ctrlSuperV);
        QCoreApplication::processEvents();
        return !pressed.empty() && pressed.back() == 1;
    }));
}

} // namespace vellumry
