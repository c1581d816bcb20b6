// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelMenu.h"

#include <QAbstractItemModelTester>
#include <QGuiApplication>
#include <gtest/gtest.h>

using namespace vellumry;

namespace {

class PanelMenuTest : public ::testing::Test {
protected:
    [[nodiscard]] ActionMenuItem entry(const char* text) {
        return {.text = QString::fromUtf8(text), .handler = [this, text] { chosen.append(QString::fromUtf8(text)); }};
    }
    /// "Paste", a disabled one, a submenu of two, a line, "Delete".
    [[nodiscard]] std::vector<ActionMenuItem> entries() {
        ActionMenuItem disabled = entry("Asleep");
        disabled.isEnabled = false;
        return {entry("Paste"), disabled,
                ActionMenuItem{.text = QStringLiteral("Transformed"), .items = {entry("lower"), entry("UPPER")}},
                ActionMenuItem::separator(), entry("Delete")};
    }
    void openByKeys() { menu.open(entries(), QStringLiteral("Clip"), {}, PanelMenu::Way::byKeys); }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { menu.keyPressed(key, modifiers); }
    [[nodiscard]] static QString currentOf(const MenuLevel& level) {
        const ActionMenuItem* item = level.itemAt(level.current());
        return item ? item->text : QString();
    }

    PanelMenu menu;
    QAbstractItemModelTester rootTester{menu.root()};
    QAbstractItemModelTester subTester{menu.sub()};
    QStringList chosen;
};

} // namespace

TEST_F(PanelMenuTest, OpenedByKeysStandsOnItsFirstEntryOpenedByThePointerOnNone) {
    openByKeys();
    EXPECT_EQ(currentOf(*menu.root()), QStringLiteral("Paste"));
    menu.open(entries(), QString(), {}, PanelMenu::Way::byPointer);
    EXPECT_EQ(menu.root()->current(), -1);
    press(Qt::Key_Up);
    EXPECT_EQ(currentOf(*menu.root()), QStringLiteral("Delete"));
}

TEST_F(PanelMenuTest, WithoutEntriesDoesNotOpen) {
    menu.open({}, QString(), {}, PanelMenu::Way::byKeys);
    EXPECT_FALSE(menu.isOpen());
}

TEST_F(PanelMenuTest, TheArrowsPassOverLinesAndDisabledEntriesAndGoAroundTheEnds) {
    openByKeys();
    press(Qt::Key_Down);
    EXPECT_EQ(currentOf(*menu.root()), QStringLiteral("Transformed"));
    press(Qt::Key_Down);
    EXPECT_EQ(currentOf(*menu.root()), QStringLiteral("Delete"));
    press(Qt::Key_Down);
    EXPECT_EQ(currentOf(*menu.root()), QStringLiteral("Paste"));
    press(Qt::Key_Up);
    EXPECT_EQ(currentOf(*menu.root()), QStringLiteral("Delete"));
    press(Qt::Key_Home);
    EXPECT_EQ(currentOf(*menu.root()), QStringLiteral("Paste"));
    press(Qt::Key_End);
    EXPECT_EQ(currentOf(*menu.root()), QStringLiteral("Delete"));
}

TEST_F(PanelMenuTest, ReturnAndSpaceChooseAndCloseTheMenuFirst) {
    for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        openByKeys();
        press(key);
        EXPECT_FALSE(menu.isOpen());
    }
    EXPECT_EQ(chosen, (QStringList{"Paste", "Paste", "Paste"}));
}

TEST_F(PanelMenuTest, ASubmenuIsEnteredAndLeftSidewaysAndItsEntriesAreChosen) {
    openByKeys();
    press(Qt::Key_Down);
    press(Qt::Key_Right);
    EXPECT_EQ(menu.subRow(), 2);
    EXPECT_EQ(currentOf(*menu.sub()), QStringLiteral("lower"));
    press(Qt::Key_Left);
    EXPECT_EQ(menu.subRow(), -1);
    EXPECT_TRUE(menu.isOpen());
    press(Qt::Key_Return);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(chosen, QStringList{"UPPER"});
    EXPECT_FALSE(menu.isOpen());
}

TEST_F(PanelMenuTest, FromRightToLeftASubmenuLiesOnTheOtherSide) {
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    openByKeys();
    press(Qt::Key_Down);
    press(Qt::Key_Right);
    EXPECT_EQ(menu.subRow(), -1);
    press(Qt::Key_Left);
    EXPECT_EQ(menu.subRow(), 2);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(PanelMenuTest, EscapeClosesTheSubmenuThenTheMenuAndChoosesNothing) {
    openByKeys();
    press(Qt::Key_Down);
    press(Qt::Key_Right);
    press(Qt::Key_Escape);
    EXPECT_EQ(menu.subRow(), -1);
    EXPECT_TRUE(menu.isOpen());
    press(Qt::Key_Escape);
    EXPECT_FALSE(menu.isOpen());
    openByKeys();
    press(Qt::Key_Menu);
    EXPECT_FALSE(menu.isOpen());
    EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(PanelMenuTest, ALetterGoesToTheNextEntryThatBeginsWithIt) {
    openByKeys();
    press(Qt::Key_D);
    EXPECT_EQ(currentOf(*menu.root()), QStringLiteral("Delete"));
    press(Qt::Key_A);
    EXPECT_EQ(currentOf(*menu.root()), QStringLiteral("Delete")) << "the one with A is disabled";
    press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(currentOf(*menu.root()), QStringLiteral("Delete")) << "a chord is no letter";
}

TEST_F(PanelMenuTest, ADisabledEntryAndALineCannotBeChosen) {
    openByKeys();
    menu.choose(menu.root(), 1);
    menu.choose(menu.root(), 3);
    EXPECT_TRUE(menu.isOpen());
    EXPECT_TRUE(chosen.isEmpty());
    menu.pointed(menu.root(), 1);
    EXPECT_EQ(menu.root()->current(), -1);
}

TEST_F(PanelMenuTest, ThePointerOpensASubmenuByRestingAndClosesItByRestingElsewhere) {
    menu.open(entries(), QString(), {}, PanelMenu::Way::byPointer);
    menu.pointed(menu.root(), 2);
    EXPECT_EQ(menu.subRow(), -1);
    menu.rested(2);
    EXPECT_EQ(menu.subRow(), 2);
    EXPECT_EQ(menu.sub()->current(), -1);
    menu.pointed(menu.root(), -1);
    EXPECT_EQ(menu.root()->current(), 2) << "on its way to the submenu";
    menu.pointed(menu.root(), 4);
    EXPECT_EQ(menu.subRow(), 2);
    menu.rested(4);
    EXPECT_EQ(menu.subRow(), -1);
    EXPECT_EQ(menu.root()->current(), 4);
}

TEST_F(PanelMenuTest, AnEntryMayOpenTheNextMenu) {
    std::vector<ActionMenuItem> items{
        ActionMenuItem{.text = QStringLiteral("More"), .handler = [this] { openByKeys(); }}};
    menu.open(std::move(items), QString(), {}, PanelMenu::Way::byKeys);
    press(Qt::Key_Return);
    EXPECT_TRUE(menu.isOpen());
    EXPECT_EQ(currentOf(*menu.root()), QStringLiteral("Paste"));
}
