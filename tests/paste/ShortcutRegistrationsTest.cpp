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

constexpr FakeHotKeyRegistrar::Combination panelKey{KeyCode::v, Modifier::control | Modifier::command};
constexpr FakeHotKeyRegistrar::Combination stackKey{KeyCode::s, Modifier::control | Modifier::command};
constexpr FakeHotKeyRegistrar::Combination thirdPinKey{KeyCode::digit3, Modifier::control | Modifier::option};

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

TEST(ShortcutRegistrations, SaysWhatEachKeyIsForInNamesThatLast) {
    Keys keys;
    keys.registrations.reload();
    keys.registrations.reload();
    QStringList names;
    for (const quint32 id : keys.registrations.hotKeyIDs()) {
        names.append(keys.registrar.purposes[id].name);
        EXPECT_FALSE(keys.registrar.purposes[id].description.isEmpty());
    }
    EXPECT_EQ(names.mid(0, 3), (QStringList{QStringLiteral("open-panel"), QStringLiteral("toggle-stack"),
                                            QStringLiteral("paste-pin-1")}));
    EXPECT_EQ(QSet(names.begin(), names.end()).size(), 11);
}

TEST(ShortcutRegistrations, UsesTheChosenKeysAndTheDefaultsForWhatIsNone) {
    Keys keys;
    keys.preferences.setObject(QStringLiteral("openPanelShortcut"),
                               Shortcut{KeyCode::a, Modifier::option | Modifier::command}.toJson());
    keys.preferences.setObject(QStringLiteral("pasteStackShortcut"), QStringLiteral("no data"));
    EXPECT_EQ(keys.registrations.reload(), QStringList());
    EXPECT_TRUE(keys.registrar.holds({KeyCode::a, Modifier::option | Modifier::command}));
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
    keys.registrar.taken = {stackKey,
                            {KeyCode::s, Modifier::control | Modifier::option},
                            {KeyCode::s, Modifier::option | Modifier::command}};
    EXPECT_EQ(keys.registrations.reload().size(), 1);
    const auto offer = keys.registrations.offer();
    ASSERT_TRUE(offer);
    EXPECT_EQ(offer->key, QStringLiteral("pasteStackShortcut"));
    EXPECT_EQ(offer->shortcut, (Shortcut{KeyCode::s, Modifier::control | Modifier::shift}));
    EXPECT_FALSE(keys.registrar.holds({KeyCode::s, Modifier::control | Modifier::shift})) << "it was only tried";
}

TEST(ShortcutRegistrations, WhereAllAreTakenNothingIsOffered) {
    Keys keys;
    using enum Modifier;
    for (const Modifiers modifiers : {control | command, command | option, control | option, control | shift,
                                      control | command | option, command | option | shift})
        keys.registrar.taken.insert({KeyCode::v, modifiers});
    EXPECT_EQ(keys.registrations.reload().size(), 1);
    EXPECT_EQ(keys.registrations.offer(), std::nullopt);
}

} // namespace vellumry
