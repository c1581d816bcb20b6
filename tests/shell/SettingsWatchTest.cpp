// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/SettingsWatch.h"

#include "foundation/UserDefaults.h"
#include "support/FakeFolderWatching.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

class SettingsWatchTest : public ::testing::Test {
protected:
    SettingsWatch::Reactions reactions() {
        const auto noting = [this](const char* name) { return [this, name] { done.append(QLatin1String(name)); }; };
        return {noting("shortcuts"), noting("appearance"), noting("screenshots")};
    }
    UserDefaults defaults;
    FakeFolderWatching watching;
    QStringList done;
};

TEST_F(SettingsWatchTest, EachSettingHasItsReactionAtTheNextLook) {
    const struct {
        const char* key;
        QVariant value;
        const char* reaction;
    } changes[] = {{"openPanelShortcut", QByteArray("{}"), "shortcuts"},
                   {"pasteStackShortcut", QByteArray("{}"), "shortcuts"},
                   {"pinnedShortcutsEnabled", false, "shortcuts"},
                   {"appearance", QStringLiteral("dark"), "appearance"},
                   {"saveNewScreenshots", true, "screenshots"}};
    SettingsWatch watch(defaults, reactions());
    for (const auto& change : changes) {
        done.clear();
        defaults.setObject(QString::fromLatin1(change.key), change.value);
        watch.look();
        EXPECT_EQ(done, QStringList{QLatin1String(change.reaction)}) << change.key;
        watch.look();
        EXPECT_EQ(done.size(), 1) << change.key;
    }
}

TEST_F(SettingsWatchTest, OtherSettingsAreReadWhereTheyAreUsed) {
    SettingsWatch watch(defaults, reactions());
    defaults.setObject(QStringLiteral("keepAtMost"), 3);
    watch.look();
    EXPECT_EQ(done, QStringList());
}

TEST_F(SettingsWatchTest, EachLookIsToldBehindTheReactions) {
    SettingsWatch::Reactions all = reactions();
    all.anything = [this] { done.append(QStringLiteral("anything")); };
    SettingsWatch watch(defaults, std::move(all));
    defaults.setObject(QStringLiteral("appearance"), QStringLiteral("dark"));
    watch.look();
    watch.look();
    EXPECT_EQ(done,
              QStringList({QStringLiteral("appearance"), QStringLiteral("anything"), QStringLiteral("anything")}));
}

TEST_F(SettingsWatchTest, AShortcutThatWasRegisteredAlreadyIsNotRegisteredAgain) {
    SettingsWatch watch(defaults, reactions());
    defaults.setObject(QStringLiteral("openPanelShortcut"), QByteArray("{}"));
    watch.acknowledge();
    watch.look();
    EXPECT_EQ(done, QStringList());
}

TEST_F(SettingsWatchTest, SeveralChangesOfOneGroupAreOneReaction) {
    SettingsWatch watch(defaults, reactions());
    defaults.setObject(QStringLiteral("openPanelShortcut"), QByteArray("{}"));
    defaults.setObject(QStringLiteral("pinnedShortcutsEnabled"), false);
    watch.look();
    EXPECT_EQ(done, QStringList{QStringLiteral("shortcuts")});
}

TEST_F(SettingsWatchTest, WhatHappensInTheFolderOfTheFileIsLookedAtAtOnce) {
    SettingsWatch watch(defaults, reactions());
    watch.start(watching, QStringLiteral("/settings"));
    EXPECT_EQ(watching.watched, QStringList{QStringLiteral("/settings")});
    defaults.setObject(QStringLiteral("appearance"), QStringLiteral("light"));
    EXPECT_EQ(done, QStringList());
    watching.change();
    EXPECT_EQ(done, QStringList{QStringLiteral("appearance")});
}

TEST_F(SettingsWatchTest, WhereNothingCanBeWatchedALookStillFinds) {
    watching.isUnavailable = true;
    SettingsWatch watch(defaults, reactions());
    watch.start(watching, QStringLiteral("/settings"));
    defaults.setObject(QStringLiteral("appearance"), QStringLiteral("light"));
    watch.look();
    EXPECT_EQ(done, QStringList{QStringLiteral("appearance")});
}

} // namespace
} // namespace vellumry
