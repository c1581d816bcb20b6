// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/ShortcutRegistrations.h"

#include "foundation/UserDefaults.h"
#include "paste/HotKeyCenter.h"
#include "support/FakeHotKeyRegistrar.h"
#include "support/FakeKeyboardLayout.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

struct Keys {
    FakeHotKeyRegistrar registrar;
    HotKeyCenter center{registrar};
    UserDefaults preferences;
    FakeKeyboardLayout layout;
    QStringList called;
    ShortcutRegistrations registrations{preferences,
                                        center,
                                        layout,
                                        {[this] { called.append(QStringLiteral("panel")); },
                                         [this] { called.append(QStringLiteral("stack")); },
                                         [this](int number) { called.append(QString::number(number)); }}};

    Keys() { preferences.registerDefaults({{QStringLiteral("pinnedShortcutsEnabled"), true}}); }
};

constexpr FakeHotKeyRegistrar::Combination panelKey{9, 0x1100};
constexpr FakeHotKeyRegistrar::Combination stackKey{1, 0x1100};
constexpr FakeHotKeyRegistrar::Combination thirdPinKey{20, 0x1800};

} // namespace

TEST(ShortcutRegistrations, RegistersThePanelTheStackAndTheNinePins) {
    Keys keys;
    EXPECT_EQ(keys.registrations.reload(), QStringList());
    EXPECT_EQ(keys.registrations.hotKeyIDs().size(), 11u);
    EXPECT_EQ(keys.registrations.availablePinnedNumbers(), (QSet<int>{1, 2, 3, 4, 5, 6, 7, 8, 9}));
    keys.registrar.press(panelKey);
    keys.registrar.press(stackKey);
    keys.registrar.press(thirdPinKey);
    EXPECT_EQ(keys.called, (QStringList{QStringLiteral("panel"), QStringLiteral("stack"), QStringLiteral("3")}));
}

TEST(ShortcutRegistrations, UsesTheChosenKeysAndTheDefaultsForWhatIsNone) {
    Keys keys;
    keys.preferences.setObject(QStringLiteral("openPanelShortcut"), Shortcut{0, 0x900}.toJson());
    keys.preferences.setObject(QStringLiteral("pasteStackShortcut"), QStringLiteral("no data"));
    EXPECT_EQ(keys.registrations.reload(), QStringList());
    EXPECT_TRUE(keys.registrar.holds({0, 0x900}));
    EXPECT_FALSE(keys.registrar.holds(panelKey));
    EXPECT_TRUE(keys.registrar.holds(stackKey));
}

TEST(ShortcutRegistrations, ReportsEachChosenKeyThatIsTaken) {
    Keys keys;
    keys.registrar.taken = {panelKey, stackKey};
    EXPECT_EQ(keys.registrations.reload(),
              (QStringList{QStringLiteral("⌃⌘V is already used by another app. Pick another shortcut."),
                           QStringLiteral("⌃⌘S is already used by another app. Pick another shortcut.")}));
    EXPECT_EQ(keys.registrations.availablePinnedNumbers().size(), 9);
}

TEST(ShortcutRegistrations, WhereNoProgramCanHoldKeysNoneIsReportedAsTaken) {
    Keys keys;
    keys.registrar.anyKeys = false;
    EXPECT_EQ(keys.registrations.reload(), QStringList());
    EXPECT_EQ(keys.registrations.takenKeys(), QStringList());
    EXPECT_TRUE(keys.registrations.availablePinnedNumbers().isEmpty());
}

TEST(ShortcutRegistrations, ATakenPinKeyIsNoProblemAndDoesNotCount) {
    Keys keys;
    keys.registrar.taken = {thirdPinKey};
    EXPECT_EQ(keys.registrations.reload(), QStringList());
    EXPECT_EQ(keys.registrations.availablePinnedNumbers(), (QSet<int>{1, 2, 4, 5, 6, 7, 8, 9}));
}

TEST(ShortcutRegistrations, PinsHaveNoKeysWhenSwitchedOff) {
    Keys keys;
    keys.registrations.reload();
    keys.preferences.setObject(QStringLiteral("pinnedShortcutsEnabled"), false);
    EXPECT_EQ(keys.registrations.reload(), QStringList());
    EXPECT_TRUE(keys.registrations.availablePinnedNumbers().isEmpty());
    EXPECT_EQ(keys.registrar.grabbed.size(), 2u);
}

TEST(ShortcutRegistrations, RegistersAnewWithFreshIds) {
    Keys keys;
    keys.registrations.reload();
    const auto before = keys.registrations.hotKeyIDs();
    keys.registrations.reload();
    EXPECT_EQ(keys.registrar.grabbed.size(), 11u);
    EXPECT_GT(keys.registrations.hotKeyIDs().front(), before.back());
}

TEST(ShortcutRegistrations, GivesAllKeysBackWhileARecorderListens) {
    Keys keys;
    keys.registrations.reload();
    keys.registrations.suspend();
    EXPECT_TRUE(keys.registrar.grabbed.empty());
    EXPECT_TRUE(keys.registrations.hotKeyIDs().empty());
    keys.registrations.reload();
    EXPECT_TRUE(keys.registrar.press(panelKey));
}

TEST(ShortcutRegistrations, LeavesAKeyWithoutAnActionToOthers) {
    Keys keys;
    ShortcutRegistrations registrations(keys.preferences, keys.center, keys.layout, {[] {}, {}, {}});
    EXPECT_EQ(registrations.reload(), QStringList());
    EXPECT_TRUE(keys.registrar.holds(panelKey));
    EXPECT_EQ(keys.registrar.grabbed.size(), 1u);
}

TEST(ShortcutRegistrations, AFreeShortcutIsOfferedForTheFirstThatIsTaken) {
    Keys keys;
    EXPECT_TRUE(keys.registrations.reload().isEmpty());
    EXPECT_EQ(keys.registrations.offer(), std::nullopt);
    keys.registrar.taken = {stackKey, {1, 0x1800}, {1, 0x900}};
    EXPECT_EQ(keys.registrations.reload().size(), 1);
    const auto offer = keys.registrations.offer();
    ASSERT_TRUE(offer);
    EXPECT_EQ(offer->key, QStringLiteral("pasteStackShortcut"));
    EXPECT_EQ(offer->shortcut, (Shortcut{1, 0x1200}));
    EXPECT_FALSE(keys.registrar.holds({1, 0x1200})) << "it was only tried";
}

TEST(ShortcutRegistrations, WhereAllAreTakenNothingIsOffered) {
    Keys keys;
    for (const quint32 modifiers : {0x1100, 0x900, 0x1800, 0x1200, 0x1900, 0xb00})
        keys.registrar.taken.insert({9, modifiers});
    EXPECT_EQ(keys.registrations.reload().size(), 1);
    EXPECT_EQ(keys.registrations.offer(), std::nullopt);
}

} // namespace vellumry
