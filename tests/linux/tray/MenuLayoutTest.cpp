// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/tray/MenuLayout.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

class MenuLayoutTest : public ::testing::Test {
protected:
    [[nodiscard]] ActionMenuItem entry(const char* text) {
        return {.text = QString::fromUtf8(text), .handler = [this, text] { chosen.append(QString::fromUtf8(text)); }};
    }
    [[nodiscard]] MenuNode all() const { return *layout.node(0, -1, {}); }
    [[nodiscard]] int idOf(const char* label) const {
        for (const MenuNode& child : all().children) {
            if (child.properties.value(QStringLiteral("label")) == QString::fromUtf8(label))
                return child.id;
        }
        return -1;
    }
    void choose(int id) const {
        if (const auto handler = layout.handlerOf(id))
            handler();
    }

    QStringList chosen;
    MenuLayout layout{[](const ActionMenuItem& item) { return item.symbol.toLatin1(); }};
};

TEST_F(MenuLayoutTest, AnEntryHasOnlyThePropertiesThatAreNotTheUsualOnes) {
    layout.set({entry("Plain"), ActionMenuItem::separator()});
    EXPECT_EQ(all().properties, (QVariantMap{{"children-display", "submenu"}}));
    EXPECT_EQ(all().children[0].properties, (QVariantMap{{"label", "Plain"}}));
    EXPECT_EQ(all().children[1].properties, (QVariantMap{{"type", "separator"}}));
}

TEST_F(MenuLayoutTest, UnderscoresAreDoubled) {
    layout.set({entry("snake_case__name_")});
    EXPECT_EQ(all().children[0].properties.value("label"), QStringLiteral("snake__case____name__"));
}

TEST_F(MenuLayoutTest, StatesKeysAndPicturesAreTold) {
    ActionMenuItem heading{.text = QStringLiteral("Heading"), .symbol = QStringLiteral("mark"), .isEnabled = false};
    ActionMenuItem on = entry("On");
    on.check = ActionMenuItem::Check::on;
    on.symbol = QStringLiteral("eye");
    ActionMenuItem off = entry("Off");
    off.check = ActionMenuItem::Check::off;
    ActionMenuItem keyed = entry("Keyed");
    keyed.chord = {QStringLiteral("Control"), QStringLiteral("1")};
    layout.set({heading, on, off, keyed});
    const auto children = all().children;
    EXPECT_EQ(children[0].properties.value("enabled"), false);
    EXPECT_EQ(children[0].properties.value("icon-data"), QByteArray("mark"));
    EXPECT_EQ(children[1].properties.value("toggle-type"), QStringLiteral("checkmark"));
    EXPECT_EQ(children[1].properties.value("toggle-state"), 1);
    EXPECT_FALSE(children[1].properties.contains("icon-data")) << "it would cover the mark";
    EXPECT_EQ(children[2].properties.value("toggle-state"), 0);
    EXPECT_EQ(children[3].properties.value("shortcut").value<MenuShortcut>(), MenuShortcut({keyed.chord}));
}

TEST_F(MenuLayoutTest, ASubmenuIsBelowItsEntryAndAsDeepAsWanted) {
    ActionMenuItem pause{.text = QStringLiteral("Pause"), .items = {entry("For 5 Minutes"), entry("For 1 Hour")}};
    layout.set({pause});
    const MenuNode node = all().children[0];
    EXPECT_EQ(node.properties.value("children-display"), QStringLiteral("submenu"));
    ASSERT_EQ(node.children.size(), 2);
    choose(node.children[1].id);
    EXPECT_EQ(chosen, QStringList{"For 1 Hour"});
    EXPECT_TRUE(layout.node(0, 0, {})->children.isEmpty());
    EXPECT_EQ(layout.node(0, 1, {})->children.size(), 1);
    EXPECT_TRUE(layout.node(0, 1, {})->children[0].children.isEmpty());
    EXPECT_EQ(layout.node(node.id, -1, {})->children.size(), 2);
    EXPECT_FALSE(layout.node(4711, -1, {}));
}

TEST_F(MenuLayoutTest, OnlyThePropertiesThatAreNamedAreGiven) {
    ActionMenuItem keyed = entry("Keyed");
    keyed.chord = {QStringLiteral("Control"), QStringLiteral("1")};
    layout.set({keyed, entry("Other")});
    EXPECT_EQ(layout.node(0, -1, {"label"})->children[0].properties, (QVariantMap{{"label", "Keyed"}}));
    const auto listed = layout.properties({idOf("Other"), 4711}, {"label", "enabled"});
    ASSERT_EQ(listed.size(), 1);
    EXPECT_EQ(listed[0].properties, (QVariantMap{{"label", "Other"}}));
    EXPECT_EQ(layout.properties({}, {}).size(), 3) << "all of them, and the menu itself";
    EXPECT_EQ(layout.property(idOf("Other"), "label"), QVariant("Other"));
    EXPECT_FALSE(layout.property(idOf("Other"), "shortcut"));
    EXPECT_FALSE(layout.property(4711, "label"));
}

TEST_F(MenuLayoutTest, TheSameMenuKeepsItsNumbersAndTakesTheNewActions) {
    EXPECT_TRUE(layout.set({entry("One"), entry("Two")}));
    const int two = idOf("Two");
    const uint revision = layout.revision();
    ActionMenuItem other = entry("Two");
    other.handler = [this] { chosen.append(QStringLiteral("the new two")); };
    EXPECT_FALSE(layout.set({entry("One"), other}));
    EXPECT_EQ(layout.revision(), revision);
    EXPECT_EQ(idOf("Two"), two);
    choose(two);
    EXPECT_EQ(chosen, QStringList{"the new two"});
}

TEST_F(MenuLayoutTest, AClickOnAMenuShownAWhileAgoDoesWhatWasShown) {
    layout.set({entry("One"), entry("Two")});
    const int one = idOf("One");
    EXPECT_TRUE(layout.set({entry("New"), entry("One"), entry("Two")}));
    EXPECT_NE(idOf("One"), one) << "no number comes to stand for another entry";
    EXPECT_TRUE(layout.contains(one));
    choose(one);
    EXPECT_EQ(chosen, QStringList{"One"});
    for (int count = 0; count < 10; ++count)
        layout.set({entry(count % 2 == 0 ? "Even" : "Odd")});
    EXPECT_FALSE(layout.contains(one));
    choose(one);
    EXPECT_EQ(chosen.size(), 1) << "nor is it kept for good";
}

TEST_F(MenuLayoutTest, WhatCannotBeChosenDoesNothing) {
    ActionMenuItem disabled = entry("Disabled");
    disabled.isEnabled = false;
    layout.set({disabled, ActionMenuItem::separator()});
    for (const MenuNode& child : all().children)
        EXPECT_FALSE(layout.handlerOf(child.id));
    EXPECT_FALSE(layout.handlerOf(0));
    EXPECT_FALSE(layout.handlerOf(-1));
}

TEST_F(MenuLayoutTest, AChangeOfOneStateIsAChangeOfTheMenu) {
    ActionMenuItem item = entry("Switch");
    item.check = ActionMenuItem::Check::off;
    layout.set({item});
    item.check = ActionMenuItem::Check::on;
    EXPECT_TRUE(layout.set({item}));
    EXPECT_EQ(layout.revision(), 2U);
}

} // namespace
} // namespace vellumry
