// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/Preferences.h"

#include <gtest/gtest.h>
#include <limits>

using namespace vellumry;

namespace {

class PreferencesTest : public ::testing::Test {
protected:
    UserDefaults defaults;
    Preferences preferences{defaults};
};

} // namespace

TEST_F(PreferencesTest, AFreshDomainGivesTheDefaults) {
    EXPECT_EQ(defaults.integer(QStringLiteral("recentInMenu")), 10);
    EXPECT_EQ(defaults.integer(QStringLiteral("sensitiveSeconds")), 60);
    EXPECT_TRUE(defaults.boolean(QStringLiteral("pasteDirectly")));
    EXPECT_TRUE(defaults.boolean(QStringLiteral("pinnedShortcutsEnabled")));
    EXPECT_FALSE(defaults.boolean(QStringLiteral("plainTextByDefault")));
    EXPECT_EQ(defaults.stringArray(QStringLiteral("ignoredApps"))->size(), 9);
    EXPECT_EQ(preferences.appearance(), Preferences::Appearance::system);
    EXPECT_EQ(preferences.retentionPolicy(), (RetentionPolicy{std::nullopt, 5000, 1024LL * 1'048'576}));
}

TEST_F(PreferencesTest, AnAgeLimitNeedsAtLeastOneDay) {
    defaults.setObject(QStringLiteral("keepForDays"), -1);
    EXPECT_EQ(preferences.retentionPolicy().maxAge, std::nullopt);
    defaults.setObject(QStringLiteral("keepForDays"), 2);
    EXPECT_EQ(preferences.retentionPolicy().maxAge, 172'800.0);
}

TEST_F(PreferencesTest, ACountThatIsNoneDoesNotCostTheHistory) {
    for (const QVariant& value : {QVariant(0), QVariant(-5), QVariant(QStringLiteral("many"))}) {
        defaults.setObject(QStringLiteral("keepAtMost"), value);
        EXPECT_EQ(preferences.retentionPolicy().maxCount, 5000) << qPrintable(value.toString());
        EXPECT_EQ(defaults.refusedKeys(), QStringList{QStringLiteral("keepAtMost")});
    }
    defaults.setObject(QStringLiteral("keepAtMost"), 1);
    EXPECT_EQ(preferences.retentionPolicy().maxCount, 1);
}

TEST_F(PreferencesTest, AMediaLimitOutOfRangeIsTheDefault) {
    defaults.setObject(QStringLiteral("mediaLimitMB"), qint64{8'796'093'022'207});
    EXPECT_EQ(preferences.retentionPolicy().maxMediaBytes, 9'223'372'036'853'727'232);
    for (const qint64 value : {qint64{8'796'093'022'208}, std::numeric_limits<qint64>::max(), qint64{0}, qint64{-1}}) {
        defaults.setObject(QStringLiteral("mediaLimitMB"), value);
        EXPECT_EQ(preferences.retentionPolicy().maxMediaBytes, 1024LL * 1'048'576) << value;
    }
}

TEST_F(PreferencesTest, TheUsersTerminalsAreNoneUntilTheyAreNamed) {
    EXPECT_EQ(Preferences::terminalApps(defaults), QStringList());
    defaults.setObject(QStringLiteral("terminalApps"), QStringList{QStringLiteral("mine"), QStringLiteral("!xterm")});
    EXPECT_EQ(Preferences::terminalApps(defaults), QStringList({QStringLiteral("mine"), QStringLiteral("!xterm")}));
}

TEST_F(PreferencesTest, AnUnknownAppearanceIsTheSystems) {
    defaults.setObject(QStringLiteral("appearance"), QStringLiteral("blue"));
    EXPECT_EQ(preferences.appearance(), Preferences::Appearance::system);
    EXPECT_EQ(defaults.refusedKeys(), QStringList{QStringLiteral("appearance")});
    defaults.setObject(QStringLiteral("appearance"), QStringLiteral("dark"));
    EXPECT_EQ(preferences.appearance(), Preferences::Appearance::dark);
}

TEST_F(PreferencesTest, AMalformedPanelPositionIsNone) {
    const QVariantList malformed[] = {
        {0.5}, {1.2, 0.3}, {std::numeric_limits<double>::quiet_NaN(), 0.5}, {0.1, 0.2, 0.3}};
    for (const QVariantList& entry : malformed) {
        defaults.setObject(QStringLiteral("panelPositions"), QVariantMap{{QStringLiteral("screen"), entry}});
        EXPECT_EQ(preferences.panelPosition(QStringLiteral("screen")), std::nullopt);
    }
}

TEST_F(PreferencesTest, PositionsThatAreNotAllListsOfNumbersCountAsNone) {
    const QVariantMap positions{{QStringLiteral("one"), QVariantList{0.25, 0.5}},
                                {QStringLiteral("two"), QStringLiteral("left")}};
    defaults.setObject(QStringLiteral("panelPositions"), positions);
    EXPECT_EQ(preferences.panelPosition(QStringLiteral("one")), std::nullopt);
    preferences.setPanelPosition(Preferences::PanelPosition{1.0, 0.0}, QStringLiteral("three"));
    EXPECT_EQ(preferences.panelPosition(QStringLiteral("three")), (Preferences::PanelPosition{1.0, 0.0}));
    EXPECT_EQ(defaults.object(QStringLiteral("panelPositions")).toMap().size(), 1);
}

TEST_F(PreferencesTest, EachDisplayKeepsItsPosition) {
    preferences.setPanelPosition(Preferences::PanelPosition{0.25, 0.5}, QStringLiteral("one"));
    preferences.setPanelPosition(Preferences::PanelPosition{1.0, 0.0}, QStringLiteral("two"));
    EXPECT_EQ(preferences.panelPosition(QStringLiteral("one")), (Preferences::PanelPosition{0.25, 0.5}));
    EXPECT_EQ(preferences.panelPosition(QStringLiteral("two")), (Preferences::PanelPosition{1.0, 0.0}));
    EXPECT_EQ(preferences.panelPosition(QStringLiteral("three")), std::nullopt);
}

TEST_F(PreferencesTest, ForgettingTheOnlyPositionRemovesTheKey) {
    preferences.setPanelPosition(Preferences::PanelPosition{0.25, 0.5}, QStringLiteral("one"));
    preferences.setPanelPosition(std::nullopt, QStringLiteral("one"));
    EXPECT_FALSE(defaults.object(QStringLiteral("panelPositions")).isValid());
}

TEST_F(PreferencesTest, AShortcutEqualToTheDefaultIsNotStored) {
    const QString key = QStringLiteral("openPanelShortcut");
    preferences.setShortcut(Shortcut{KeyCode::b, Modifier::option | Modifier::command}, Shortcut::openPanelDefault(),
                            key);
    EXPECT_EQ(preferences.shortcut(key), (Shortcut{KeyCode::b, Modifier::option | Modifier::command}));
    preferences.setShortcut(Shortcut::openPanelDefault(), Shortcut::openPanelDefault(), key);
    EXPECT_EQ(preferences.shortcut(key), std::nullopt);
    EXPECT_FALSE(defaults.object(key).isValid());
}

TEST_F(PreferencesTest, AShortcutThatIsNoDataIsNone) {
    defaults.setObject(QStringLiteral("openPanelShortcut"), QStringLiteral("ctrl+v"));
    EXPECT_EQ(preferences.shortcut(QStringLiteral("openPanelShortcut")), std::nullopt);
}
