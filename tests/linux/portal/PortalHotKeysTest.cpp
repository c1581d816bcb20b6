// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/portal/PortalHotKeys.h"

#include "linux/portal/HotKeysWorld.h"
#include "linux/portal/PortalTrigger.h"

namespace vellumry {

TEST(PortalTrigger, IsWrittenInTheNotationOfThePortal) {
    EXPECT_EQ(portalTrigger(u'v', controlSuper), u"CTRL+LOGO+v");
    EXPECT_EQ(portalTrigger(u'V', Modifiers(Modifier::option) | Modifier::shift), u"ALT+SHIFT+v");
    EXPECT_EQ(portalTrigger(u'1', Modifier::control), u"LOGO+1");
    EXPECT_EQ(portalTrigger(u',', Modifier::command), u"CTRL+comma");
}

TEST_F(PortalHotKeysTest, AllKeysAreAskedForTogetherInWordsForTheUser) {
    grabBoth();
    untilStanding(Standing::given);
    EXPECT_EQ(portal.count("BindShortcuts"), 1);
    const QList<CarriedShortcut> shortcuts = portal.shortcuts();
    ASSERT_EQ(shortcuts.size(), 2);
    EXPECT_EQ(shortcuts[0].name, panelName);
    EXPECT_EQ(shortcuts[0].values.value(QStringLiteral("description")), QStringLiteral("What it does"));
    EXPECT_EQ(shortcuts[0].values.value(QStringLiteral("preferred_trigger")), QStringLiteral("CTRL+LOGO+v"));
    EXPECT_TRUE(hotKeys->capability().isFound);
}

TEST_F(PortalHotKeysTest, APressReachesItsKey) {
    grabBoth();
    untilStanding(Standing::given);
    portal.activate(portal.session(), stackName);
    runUntil([this] { return !pressed.empty(); });
    EXPECT_EQ(pressed, std::vector<quint32>{2});
}

TEST_F(PortalHotKeysTest, ThePressOfAnotherSessionIsNone) {
    grabBoth();
    untilStanding(Standing::given);
    portal.activate(QStringLiteral("/org/freedesktop/portal/desktop/session/x/another"), panelName);
    portal.activate(portal.session(), QStringLiteral("what was never asked for"));
    portal.activate(portal.session(), panelName);
    runUntil([this] { return !pressed.empty(); });
    EXPECT_EQ(pressed, std::vector<quint32>{1});
}

TEST_F(PortalHotKeysTest, AKeyWithoutANameIsRefusedAtOnce) {
    start();
    EXPECT_FALSE(grab(1, KeyCode::a, "open-panel"));
    settle();
    EXPECT_EQ(portal.count("BindShortcuts"), 0);
}

TEST_F(PortalHotKeysTest, AFailureThatListsTheShortcutsIsAGrant) {
    portal.responses[QStringLiteral("BindShortcuts")].code = 2;
    grabBoth();
    untilStanding(Standing::given);
}

TEST_F(PortalHotKeysTest, AFailureThatListsNothingIsARefusal) {
    portal.responses[QStringLiteral("BindShortcuts")] = {.code = 2, .results = QVariantMap()};
    grabBoth();
    untilStanding(Standing::refused);
    EXPECT_EQ(refused, (QStringList{panelName, stackName}));
}

TEST_F(PortalHotKeysTest, TheProgramMayEndDuringTheQuestion) {
    portal.responses[QStringLiteral("BindShortcuts")].isSilent = true;
    grabBoth();
    runUntil([this] { return portal.count("BindShortcuts") == 1; });
    link.reset();
    hotKeys.reset();
    EXPECT_TRUE(refused.isEmpty());
}

TEST_F(PortalHotKeysTest, ASuccessThatListsNothingIsARefusal) {
    portal.responses[QStringLiteral("BindShortcuts")].results = QVariantMap();
    grabBoth();
    untilStanding(Standing::refused);
    EXPECT_FALSE(hotKeys->capability().isFound);
    EXPECT_TRUE(hotKeys->capability().detail.contains(u"settings"));
}

TEST_F(PortalHotKeysTest, AListOfAnotherShapeIsARefusal) {
    portal.responses[QStringLiteral("BindShortcuts")].results =
        QVariantMap{{QStringLiteral("shortcuts"), QStringList{panelName, stackName}}};
    grabBoth();
    untilStanding(Standing::refused);
}

TEST_F(PortalHotKeysTest, AShortcutThatIsLeftWithoutAKeyIsMissed) {
    portal.responses[QStringLiteral("BindShortcuts")].results =
        ScriptedPortal::listing({{panelName, QStringLiteral("Press a key")}, {stackName, QString()}});
    grabBoth();
    untilStanding(Standing::partly);
    EXPECT_FALSE(hotKeys->capability().isFound);
}

TEST_F(PortalHotKeysTest, ATakenKeyThatPlasmaReportsAsGivenIsFoundOut) {
    FakeGlobalAccel accel(bus.address());
    accel.withoutKey = {panelName};
    grabBoth();
    untilStanding(Standing::partly);
    EXPECT_EQ(accel.components.value(0), u"com.vellumry.Vellumry");
}

TEST_F(PortalHotKeysTest, WhatTheUserRefusedIsNotAskedForAgain) {
    portal.responses[QStringLiteral("BindShortcuts")] = {.code = 1, .results = QVariantMap()};
    grabBoth();
    untilStanding(Standing::refused);
    EXPECT_EQ(refused, (QStringList{panelName, stackName}));
    // The next run.
    grabBoth();
    untilStanding(Standing::refused);
    EXPECT_EQ(portal.count("BindShortcuts"), 1);
    // Another shortcut is another question.
    hotKeys->release(2);
    portal.responses.clear();
    untilStanding(Standing::given);
    EXPECT_EQ(portal.count("BindShortcuts"), 2);
}

TEST_F(PortalHotKeysTest, TheSameKeysUnderOtherNumbersAreNotAskedForAgain) {
    grabBoth();
    untilStanding(Standing::given);
    hotKeys->release(1);
    hotKeys->release(2);
    EXPECT_TRUE(grab(3, KeyCode::v, "open-panel"));
    EXPECT_TRUE(grab(4, KeyCode::s, "toggle-stack"));
    settle();
    EXPECT_EQ(portal.count("BindShortcuts"), 1);
    portal.activate(portal.last("BindShortcuts").arguments[0].value<QDBusObjectPath>().path(), panelName);
    runUntil([this] { return !pressed.empty(); });
    EXPECT_EQ(pressed, std::vector<quint32>{3});
}

TEST_F(PortalHotKeysTest, OtherKeysAreAskedForInASessionOfTheirOwn) {
    grabBoth();
    untilStanding(Standing::given);
    const QString before = portal.session();
    hotKeys->release(2);
    runUntil([this] { return portal.count("BindShortcuts") == 2; });
    untilStanding(Standing::given);
    EXPECT_EQ(portal.last("Close").path, before);
    EXPECT_EQ(portal.shortcuts().size(), 1);
    hotKeys->release(1);
    untilStanding(Standing::none);
    runUntil([this] { return portal.count("Close") == 2; });
}

TEST_F(PortalHotKeysTest, AWishThatChangesDuringTheQuestionIsAskedAfterIt) {
    portal.responses[QStringLiteral("BindShortcuts")].isSilent = true;
    grabBoth();
    runUntil([this] { return portal.count("BindShortcuts") == 1; });
    hotKeys->release(2);
    settle();
    EXPECT_EQ(portal.count("BindShortcuts"), 1) << "two questions at once";
    portal.responses.clear();
    portal.respond("BindShortcuts", 1, {});
    untilStanding(Standing::given);
    EXPECT_EQ(portal.shortcuts().size(), 1);
}

} // namespace vellumry
