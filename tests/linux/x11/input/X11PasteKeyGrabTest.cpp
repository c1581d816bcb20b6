// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/keys/X11PasteKeyGrab.h"

#include "linux/x11/input/X11PasteKeysWorld.h"

#include <QCoreApplication>

namespace vellumry {

using X11PasteKeyGrabTest = X11PasteKeysTest;

TEST_F(X11PasteKeyGrabTest, LocksDoNotMatter) {
    ASSERT_TRUE(keys.start());
    std::size_t count = 0;
    for (const unsigned int lock : {KEY_CAPSLOCK, KEY_NUMLOCK, KEY_CAPSLOCK, KEY_NUMLOCK}) {
        client.chord({lock});
        client.chord({KEY_LEFTCTRL, KEY_V});
        ASSERT_TRUE(isTold(++count));
        EXPECT_EQ(presses.back().press.characters, QStringLiteral("v"));
        letGo();
    }
}

TEST_F(X11PasteKeyGrabTest, TheKeyThatTypesVFollowsTheLayout) {
    ASSERT_TRUE(keys.start());
    const std::vector<std::pair<QString, unsigned int>> layouts = {{QStringLiteral("us -variant dvorak"), KEY_DOT},
                                                                   {QStringLiteral("de"), KEY_V},
                                                                   {QStringLiteral("ru"), KEY_V},
                                                                   {QStringLiteral("ara"), KEY_V},
                                                                   {QStringLiteral("gr"), KEY_V}};
    for (const auto& [layout, code] : layouts) {
        ASSERT_TRUE(XSession::setLayout(layout));
        presses.clear();
        EXPECT_TRUE(eventually([&, key = code] {
            client.chord({KEY_LEFTCTRL, key});
            QCoreApplication::processEvents();
            return !presses.empty();
        })) << qPrintable(layout);
        ASSERT_FALSE(presses.empty());
        EXPECT_EQ(presses.back().press.keyCode, KeyCode::v) << qPrintable(layout);
        presses.clear();
    }
}

TEST_F(X11PasteKeyGrabTest, OfTwoLayoutsTheOneInUseDecides) {
    ASSERT_TRUE(XSession::setLayout(QStringLiteral("us,us -variant ,dvorak -option grp:menu_toggle")));
    ASSERT_TRUE(keys.start());
    client.chord({KEY_LEFTCTRL, KEY_V});
    ASSERT_TRUE(isTold(1));
    EXPECT_EQ(presses[0].press.keyCode, KeyCode::v);
    letGo();
    client.chord({KEY_COMPOSE});
    client.chord({KEY_LEFTCTRL, KEY_V}); // types k there
    ASSERT_TRUE(isTold(2));
    EXPECT_EQ(presses[1].press.characters, QStringLiteral("k"));
    EXPECT_NE(presses[1].press.keyCode, KeyCode::v);
    letGo();
    client.chord({KEY_LEFTCTRL, KEY_DOT});
    ASSERT_TRUE(isTold(3));
    EXPECT_EQ(presses[2].press.characters, QStringLiteral("v"));
    EXPECT_EQ(presses[2].press.keyCode, KeyCode::v);
    letGo();
    EXPECT_TRUE(XSession::setLayout(QStringLiteral("us -option")));
}

TEST_F(X11PasteKeyGrabTest, AnotherHolderOfTheKeyIsFoundAndNothingIsKept) {
    XClient other;
    ASSERT_TRUE(other.grabKey(KEY_V, control));
    EXPECT_FALSE(keys.start());
    XClient third;
    EXPECT_TRUE(third.grabKey(KEY_INSERT, shift));
    EXPECT_TRUE(third.grabKey(KEY_V, control | alt));
}

TEST_F(X11PasteKeyGrabTest, ASecondListenerFindsTheFirst) {
    ASSERT_TRUE(keys.start());
    EXPECT_TRUE(keys.start());
    X11PasteKeys second(options());
    EXPECT_FALSE(second.start());
    keys.stop();
    EXPECT_TRUE(second.start());
}

TEST_F(X11PasteKeyGrabTest, WithoutThePrimaryChordsTheRestStillWorks) {
    XClient other;
    ASSERT_TRUE(other.grabKey(KEY_INSERT, shift));
    ASSERT_TRUE(keys.start());
    client.chord({KEY_LEFTCTRL, KEY_V});
    EXPECT_TRUE(isTold(1));
}

TEST_F(X11PasteKeyGrabTest, WhoeverHoldsTheKeyboardGetsTheKey) {
    ASSERT_TRUE(keys.start());
    XClient locker;
    ASSERT_TRUE(locker.grabKeyboard());
    client.chord({KEY_LEFTCTRL, KEY_V});
    locker.ungrabKeyboard();
    client.chord({KEY_LEFTCTRL, KEY_LEFTSHIFT, KEY_V});
    ASSERT_TRUE(isTold(1));
    EXPECT_EQ(presses[0].press.modifiers, Modifier::command | Modifier::shift);
}

TEST_F(X11PasteKeyGrabTest, StoppingLetsAKeyThatWaitsGo) {
    ASSERT_TRUE(keys.start());
    client.chord({KEY_LEFTCTRL, KEY_V});
    ASSERT_TRUE(isTold(1));
    keys.stop();
    EXPECT_FALSE(presses[0].key->isHeld());
    EXPECT_TRUE(arrives({{symbolV, control}}));
    client.chord({KEY_LEFTCTRL, KEY_V});
    EXPECT_TRUE(arrives(Chords(2, {symbolV, control})));
    EXPECT_EQ(presses.size(), 1U);
}

TEST_F(X11PasteKeyGrabTest, WhoeverIsToldMayStopIt) {
    keys.onPress = [this](const KeyPress&, const std::shared_ptr<HeldKey>& key) {
        key->letGo(HeldKey::Contents::fresh);
        keys.stop();
        keys.onPress = nullptr;
    };
    ASSERT_TRUE(keys.start());
    client.chord({KEY_LEFTCTRL, KEY_V});
    EXPECT_TRUE(arrives({{symbolV, control}}));
}

TEST_F(X11PasteKeyGrabTest, AReplacedWindowManagerChangesNothing) {
    ASSERT_TRUE(keys.start());
    client.setRootProperty("_NET_SUPPORTING_WM_CHECK", 1);
    for (std::size_t count = 1; count <= 20; ++count) {
        client.chord({KEY_LEFTCTRL, KEY_V});
        ASSERT_TRUE(isTold(count));
        letGo();
    }
}

} // namespace vellumry
