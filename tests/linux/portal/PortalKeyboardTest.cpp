// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/portal/PortalKeyboard.h"

#include "linux/portal/PortalWorld.h"

#include <linux/input-event-codes.h>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

class PortalKeyboardTest : public PortalWorld {
protected:
    PortalKeyboardTest() { start(60s, 60s); }

    void start(std::chrono::milliseconds rest, std::chrono::milliseconds patience) {
        PortalKeyboard::Options options;
        options.token = [this] { return token; };
        options.keepToken = [this](const QString& next) { token = next; };
        options.rest = rest;
        options.patience = patience;
        keyboard = std::make_unique<PortalKeyboard>(link, std::move(options));
    }
    void allow() {
        keyboard->requestPermission();
        runUntil([this] { return keyboard->isReady(); });
    }
    bool prepared() { return awaited(keyboard->prepare()); }
    void paste() { keyboard->press({{KEY_LEFTCTRL, nullptr}}, KEY_V); }

    QString token;
    std::unique_ptr<PortalKeyboard> keyboard;
};

} // namespace

TEST_F(PortalKeyboardTest, AsksOnceForAKeyboardUntilRevoked) {
    EXPECT_FALSE(keyboard->isReady());
    EXPECT_FALSE(keyboard->capability().isFound);
    EXPECT_EQ(portal.count("Start"), 0) << "nothing is asked before the user wants it";
    allow();
    const QVariantMap options = portal.last("SelectDevices").options();
    EXPECT_EQ(options.value(QStringLiteral("types")).toUInt(), 1U);
    EXPECT_EQ(options.value(QStringLiteral("persist_mode")).toUInt(), 2U);
    EXPECT_FALSE(options.contains(QStringLiteral("restore_token")));
    EXPECT_EQ(token, u"token-1");
    EXPECT_TRUE(keyboard->capability().isFound);
}

TEST_F(PortalKeyboardTest, TheProgramMayEndDuringTheQuestion) {
    portal.responses[QStringLiteral("Start")].isSilent = true;
    keyboard->requestPermission();
    runUntil([this] { return portal.count("Start") == 1; });
    link.reset();
    keyboard.reset();
    EXPECT_EQ(token, QString());
}

TEST_F(PortalKeyboardTest, PressesTheModifiersAroundTheKey) {
    allow();
    EXPECT_TRUE(prepared());
    keyboard->press({{KEY_LEFTCTRL, nullptr}, {KEY_LEFTSHIFT, nullptr}}, KEY_V);
    runUntil([this] { return portal.keys.size() == 6; });
    EXPECT_EQ(portal.keys, (std::vector<ScriptedPortal::Key>{{KEY_LEFTCTRL, true},
                                                             {KEY_LEFTSHIFT, true},
                                                             {KEY_V, true},
                                                             {KEY_V, false},
                                                             {KEY_LEFTSHIFT, false},
                                                             {KEY_LEFTCTRL, false}}));
}

TEST_F(PortalKeyboardTest, AKeyIsPressedWhenThePortalHasTakenTheOneBefore) {
    allow();
    EXPECT_TRUE(prepared());
    portal.holdsKeys = true;
    paste();
    for (std::size_t taken = 1; taken <= 4; ++taken) {
        runUntil([&] { return portal.keys.size() >= taken; });
        // What else has been sent by now is answered behind it.
        EXPECT_NE(awaited(link->openSession(QStringLiteral("org.freedesktop.portal.GlobalShortcuts"))), QString());
        EXPECT_EQ(portal.keys.size(), taken) << "a portal with many threads would mix them up";
        portal.answerKeys();
    }
    EXPECT_EQ(portal.keys, (std::vector<ScriptedPortal::Key>{
                               {KEY_LEFTCTRL, true}, {KEY_V, true}, {KEY_V, false}, {KEY_LEFTCTRL, false}}));
}

TEST_F(PortalKeyboardTest, ThePasteKeyIsNotPressedWithoutItsModifier) {
    allow();
    EXPECT_TRUE(prepared());
    portal.holdsKeys = true;
    paste();
    runUntil([this] { return portal.keys.size() == 1; });
    portal.closeSession(portal.session());
    EXPECT_NE(awaited(link->openSession(QStringLiteral("org.freedesktop.portal.GlobalShortcuts"))), QString());
    portal.holdsKeys = false;
    EXPECT_TRUE(prepared()) << "of a new session";
    portal.answerKeys();
    paste();
    runUntil([this] { return portal.keys.size() >= 5; });
    EXPECT_EQ(portal.keys[1], (ScriptedPortal::Key{KEY_LEFTCTRL, true}));
}

TEST_F(PortalKeyboardTest, ATokenOpensASessionWithoutAQuestionAndTheNextOneIsKept) {
    token = QStringLiteral("of the last run");
    EXPECT_TRUE(keyboard->isReady());
    EXPECT_TRUE(prepared());
    EXPECT_EQ(portal.last("SelectDevices").options().value(QStringLiteral("restore_token")),
              QStringLiteral("of the last run"));
    EXPECT_EQ(token, u"token-1");
}

TEST_F(PortalKeyboardTest, ASpentTokenIsNotKept) {
    token = QStringLiteral("of the last run");
    portal.responses[QStringLiteral("Start")].results = QVariantMap{{QStringLiteral("devices"), 1U}};
    EXPECT_TRUE(prepared());
    EXPECT_EQ(token, QString());
}

TEST_F(PortalKeyboardTest, OneSessionServesThePastesThatFollowEachOther) {
    allow();
    for (int paste = 0; paste < 3; ++paste) {
        EXPECT_TRUE(prepared());
        this->paste();
    }
    runUntil([this] { return portal.keys.size() == 12; });
    EXPECT_EQ(portal.count("Start"), 1);
}

TEST_F(PortalKeyboardTest, TheSessionEndsAfterARest) {
    token = QStringLiteral("of the last run");
    start(1ms, 60s);
    EXPECT_TRUE(prepared());
    runUntil([this] { return portal.count("Close") == 1; });
    EXPECT_EQ(portal.last("Close").path, portal.session());
    EXPECT_TRUE(keyboard->isReady());
    EXPECT_TRUE(prepared());
    EXPECT_EQ(portal.count("Start"), 2);
}

TEST_F(PortalKeyboardTest, ARefusalIsForGood) {
    token = QStringLiteral("of the last run");
    portal.responses[QStringLiteral("Start")] = {.code = 1, .results = QVariantMap()};
    EXPECT_FALSE(prepared());
    EXPECT_FALSE(keyboard->isReady());
    EXPECT_EQ(token, QString());
    EXPECT_TRUE(keyboard->capability().detail.contains(u"not to allow"));
    // Until the user wants it after all.
    portal.responses.clear();
    allow();
    EXPECT_TRUE(keyboard->capability().isFound);
}

TEST_F(PortalKeyboardTest, APermissionWithoutAKeyboardIsARefusal) {
    portal.responses[QStringLiteral("Start")].results = QVariantMap{
        {QStringLiteral("devices"), 2U}, {QStringLiteral("restore_token"), QStringLiteral("for a pointer")}};
    EXPECT_FALSE(prepared());
    EXPECT_FALSE(keyboard->isReady());
    EXPECT_EQ(token, QString());
}

TEST_F(PortalKeyboardTest, AFailureLeavesTheTokenForTheNextPaste) {
    token = QStringLiteral("of the last run");
    portal.responses[QStringLiteral("Start")] = {.code = 2, .results = QVariantMap()};
    EXPECT_FALSE(prepared()) << "the screen is locked, perhaps";
    EXPECT_EQ(token, u"of the last run");
    portal.responses.clear();
    EXPECT_TRUE(prepared());
}

TEST_F(PortalKeyboardTest, APasteDoesNotWaitForTheUsersAnswer) {
    token = QStringLiteral("revoked");
    start(60s, 20ms);
    portal.responses[QStringLiteral("Start")].isSilent = true;
    EXPECT_FALSE(prepared());
    EXPECT_FALSE(prepared());
    EXPECT_EQ(portal.count("Start"), 1) << "the question stands already";
    portal.respond("Start", 0,
                   {{QStringLiteral("devices"), 1U}, {QStringLiteral("restore_token"), QStringLiteral("new")}});
    runUntil([this] { return token == u"new"; });
    EXPECT_TRUE(prepared());
}

TEST_F(PortalKeyboardTest, APermissionThatIsRevokedAmidAPasteIsNoticed) {
    allow();
    EXPECT_TRUE(prepared());
    portal.responses[QStringLiteral("NotifyKeyboardKeycode")].isError = true;
    paste();
    runUntil([this] { return portal.count("Close") == 1; });
    EXPECT_TRUE(portal.keys.empty());
    portal.responses.clear();
    EXPECT_TRUE(prepared());
    EXPECT_EQ(portal.count("Start"), 2);
}

TEST_F(PortalKeyboardTest, ASessionThatTheDesktopEndsIsOpenedAnewByTheNextPaste) {
    allow();
    EXPECT_TRUE(prepared());
    portal.closeSession(portal.session());
    runUntil([this] {
        return awaited(link->openSession(QStringLiteral("org.freedesktop.portal.GlobalShortcuts"))) != QString();
    });
    paste();
    EXPECT_TRUE(prepared());
    EXPECT_EQ(portal.count("Start"), 2);
    EXPECT_EQ(portal.count("NotifyKeyboardKeycode"), 0) << "no key without a session";
}

TEST_F(PortalKeyboardTest, WhatIsLeftOfASessionEndsWithThePortal) {
    FakePortalBackend backend(bus.address());
    allow();
    EXPECT_TRUE(prepared());
    const QString session = portal.session();
    portal.end();
    runUntil([&] { return !backend.closed.isEmpty(); });
    EXPECT_EQ(backend.closed, QStringList{session});
}

TEST_F(PortalKeyboardTest, APortalThatRestartsIsAskedAnew) {
    allow();
    EXPECT_TRUE(prepared());
    int ends = 0;
    QObject::connect(link.get(), &PortalLink::ended, [&ends] { ++ends; });
    portal.end();
    runUntil([&ends] { return ends == 1; });
    EXPECT_FALSE(prepared());
    portal.begin();
    EXPECT_TRUE(prepared());
    paste();
    runUntil([this] { return portal.keys.size() == 4; });
}

TEST_F(PortalKeyboardTest, APortalThatLacksTheInterfaceLetsNothingBePressed) {
    portal.responses[QStringLiteral("CreateSession")].isError = true;
    token = QStringLiteral("of another desktop");
    EXPECT_FALSE(prepared());
    paste();
    EXPECT_EQ(portal.count("NotifyKeyboardKeycode"), 0);
}

} // namespace vellumry
