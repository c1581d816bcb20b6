// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Localisation.h"
#include "panel/PanelWindowWorld.h"
#include "support/AccessibleItems.h"

#include <QAccessible>
#include <QCursor>

using namespace vellumry;

namespace {

/// The panel with two clips and a menu of the program of one entry.
class PanelMenuViewTest : public PanelWindowWorld {
protected:
    PanelMenuViewTest()
        : older(addText("older"))
        , newer(addText("newer")) {}

    void rightPress(const QString& title) {
        QTest::mouseClick(view(), Qt::RightButton, {}, middleOf(itemWithText(title)));
        layOut();
    }
    void layOut() { (void)view()->grabWindow(); }
    [[nodiscard]] bool shows(const char* text) const { return texts().contains(localised(text)); }
    [[nodiscard]] static QStringList readOut(QAccessibleInterface* node, QAccessible::Role role) {
        QStringList names;
        if (node->role() == role && !node->state().invisible)
            names.append(node->text(QAccessible::Name));
        for (int index = 0; index < node->childCount(); ++index)
            names += readOut(node->child(index), role);
        return names;
    }

    ClipRef older;
    ClipRef newer;
};

} // namespace

TEST_F(PanelMenuViewTest, ARightPressOpensTheMenuOfThatRowWhichBecomesTheChosenOne) {
    open();
    rightPress(QStringLiteral("older"));
    EXPECT_EQ(panel.model().selectedID(), older->id);
    EXPECT_TRUE(shows("Paste as Plain Text"));
    EXPECT_TRUE(shows("Delete"));
    QTest::mouseClick(view(), Qt::LeftButton, {}, middleOf(itemWithText(localised("Pin"))));
    EXPECT_TRUE(store.find(older->id)->isPinned);
    EXPECT_FALSE(shows("Paste as Plain Text"));
}

TEST_F(PanelMenuViewTest, OnOneOfSeveralItIsAboutAllOfThem) {
    open();
    press(Qt::Key_Down, Qt::ShiftModifier);
    rightPress(QStringLiteral("newer"));
    EXPECT_EQ(panel.model().selectedCount(), 2);
    QTest::mouseClick(view(), Qt::LeftButton, {}, middleOf(itemWithText(localised("Delete %n Clips", 2))));
    EXPECT_TRUE(store.clips().empty());
}

TEST_F(PanelMenuViewTest, TheMenuKeyAndShiftF10OpenItOnTheChosenRowAndKeysGoToIt) {
    open();
    for (const auto& [key, modifiers] : {std::pair(Qt::Key_Menu, Qt::KeyboardModifiers()),
                                         std::pair(Qt::Key_F10, Qt::KeyboardModifiers(Qt::ShiftModifier))}) {
        press(key, modifiers);
        layOut();
        ASSERT_TRUE(shows("Paste as Plain Text"));
        press(Qt::Key_Down);
        press(Qt::Key_Z);
        EXPECT_EQ(panel.model().selectedID(), newer->id) << "the list below hears no key";
        EXPECT_EQ(panel.model().query(), QString());
        press(Qt::Key_Escape);
        EXPECT_FALSE(shows("Paste as Plain Text"));
        EXPECT_TRUE(panel.isVisible());
    }
    press(Qt::Key_Z);
    EXPECT_EQ(panel.model().query(), QStringLiteral("z")) << "the keys are the field's again";
}

TEST_F(PanelMenuViewTest, ATransformIsChosenFromTheSubmenuByKeys) {
    open();
    press(Qt::Key_Menu);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Right);
    layOut();
    EXPECT_TRUE(texts().contains(transformTitle(TextTransform::uppercase)));
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(pastedText(), QStringLiteral("NEWER"));
}

TEST_F(PanelMenuViewTest, APressBesideItClosesItAndChoosesNothing) {
    open();
    rightPress(QStringLiteral("newer"));
    const QPoint besideIt(12, middleOf(itemWithText(QStringLiteral("older"))).y());
    QTest::mouseClick(view(), Qt::LeftButton, {}, besideIt);
    EXPECT_FALSE(shows("Paste as Plain Text"));
    EXPECT_EQ(panel.model().selectedID(), newer->id);
}

TEST_F(PanelMenuViewTest, ARightPressOnAnotherRowMovesIt) {
    open();
    rightPress(QStringLiteral("older"));
    const QPoint other = middleOf(itemWithText(QStringLiteral("newer")));
    QTest::mouseClick(view(), Qt::RightButton, {}, other);
    layOut();
    EXPECT_TRUE(shows("Paste as Plain Text"));
    EXPECT_EQ(panel.model().selectedID(), newer->id);
}

TEST_F(PanelMenuViewTest, ItClosesWithThePanelAndWithItsClip) {
    open();
    press(Qt::Key_Menu);
    panel.hide();
    open();
    EXPECT_FALSE(shows("Paste as Plain Text"));
    press(Qt::Key_Menu);
    layOut();
    ASSERT_TRUE(shows("Paste as Plain Text"));
    awaited(store.remove({newer->id}, false));
    EXPECT_FALSE(shows("Paste as Plain Text"));
}

TEST_F(PanelMenuViewTest, AScreenReaderFindsAMenuWithItsEntriesAndTheOneTheKeysStandOn) {
    QAccessible::setActive(true);
    open();
    press(Qt::Key_Menu);
    layOut();
    QAccessibleInterface* window = QAccessible::queryAccessibleInterface(view());
    EXPECT_EQ(readOut(window, QAccessible::PopupMenu), QStringList{localised("Clip")});
    const QStringList entries = readOut(window, QAccessible::MenuItem);
    EXPECT_EQ(entries.first(), localised("Paste"));
    EXPECT_EQ(entries.last(), localised("Delete"));
    EXPECT_FALSE(entries.contains(QString())) << "lines are no entries";
}

TEST_F(PanelMenuViewTest, WithoutAMenuOfTheProgramThereIsNoButtonForIt) {
    open();
    EXPECT_FALSE(shows("Menu"));
    press(Qt::Key_F10);
    EXPECT_TRUE(panel.isVisible());
}

TEST(PanelStatusMenuTest, TheButtonAndF10OpenTheMenuOfTheProgramAsItIsThen) {
    class World : public PanelWindowWorld {
    public:
        void TestBody() override {}
        using PanelWindowWorld::middleOf;
        using PanelWindowWorld::panelHooks;
        using PanelWindowWorld::surface;
        using PanelWindowWorld::views;
    };
    World world;
    int asked = 0;
    int chosen = 0;
    auto hooks = world.panelHooks();
    hooks.statusMenu = [&] {
        ++asked;
        return std::vector<ActionMenuItem>{{.text = QStringLiteral("Pause"), .handler = [&chosen] { ++chosen; }}};
    };
    PanelController panel(world.store, *world.engine, world.pasteboard, world.surface, world.views, hooks);
    panel.show();
    auto* view = qobject_cast<QQuickView*>(world.surface.adopted.last());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(view));
    const auto* button = view->rootObject()->findChild<QQuickItem*>(QStringLiteral("menuButton"));
    ASSERT_NE(button, nullptr);
    QTest::mouseClick(view, Qt::LeftButton, {}, World::middleOf(button));
    (void)view->grabWindow();
    EXPECT_TRUE(shownTexts(view->rootObject()).contains(QStringLiteral("Pause")));
    QTest::keyClick(view, Qt::Key_Escape);
    QTest::keyClick(view, Qt::Key_F10);
    QTest::keyClick(view, Qt::Key_Return);
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(chosen, 1);
    EXPECT_FALSE(panel.isVisible()) << "what it pastes goes where the user was typing";
}

TEST(PanelStatusMenuTest, AMenuThatIsHigherThanThePanelShowsThatThereIsMore) {
    class World : public PanelWindowWorld {
    public:
        void TestBody() override {}
        using PanelWindowWorld::panelHooks;
        using PanelWindowWorld::surface;
        using PanelWindowWorld::views;
    };
    World world;
    int entries = 1;
    auto hooks = world.panelHooks();
    hooks.statusMenu = [&entries] {
        return std::vector<ActionMenuItem>(static_cast<std::size_t>(entries), {.text = QStringLiteral("Pause")});
    };
    PanelController panel(world.store, *world.engine, world.pasteboard, world.surface, world.views, hooks);
    panel.show();
    auto* view = qobject_cast<QQuickView*>(world.surface.adopted.last());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(view));
    const auto showsABar = [view] {
        (void)view->grabWindow();
        const auto* board = view->rootObject()->findChild<QQuickItem*>(QStringLiteral("menu"));
        const auto* bar = board ? board->findChild<QQuickItem*>(QStringLiteral("menuScrollBar")) : nullptr;
        return bar && bar->isVisible();
    };
    QTest::keyClick(view, Qt::Key_F10);
    EXPECT_FALSE(showsABar());
    QTest::keyClick(view, Qt::Key_Escape);
    entries = 60;
    QTest::keyClick(view, Qt::Key_F10);
    EXPECT_TRUE(showsABar());
    auto* board = view->rootObject()->findChild<QQuickItem*>(QStringLiteral("menu"));
    const auto* bar = board->findChild<QQuickItem*>(QStringLiteral("menuScrollBar"));
    const QQuickItem* entry = accessibleItem(board, QAccessible::MenuItem, QStringLiteral("Pause"));
    ASSERT_NE(entry, nullptr);
    EXPECT_LT(entry->mapToItem(board, QPointF(entry->width(), 0)).x(),
              bar->mapToItem(board, QPointF(bar->width() / 2, 0)).x())
        << "the thumb lies beside the entries";
}

TEST_F(PanelMenuViewTest, AHandSoQuickThatItsMotionIsOneEventOpensASubmenu) {
    open();
    rightPress(QStringLiteral("older"));
    const QPoint entry = middleOf(itemWithText(localised("Paste Transformed")));
    QCursor::setPos(view()->mapToGlobal(entry));
    QTest::mouseMove(view(), entry);
    EXPECT_TRUE(QTest::qWaitFor([&] { return shows("UPPERCASE"); }, 60'000));
}

TEST_F(PanelMenuViewTest, AnEntryThatComesUpUnderTheRestingPointerIsNotChosen) {
    open();
    press(Qt::Key_Menu);
    layOut();
    const QPoint entry = middleOf(itemWithText(localised("Delete")));
    press(Qt::Key_Escape);
    QCursor::setPos(view()->mapToGlobal(entry));
    QTest::mouseMove(view(), entry);
    press(Qt::Key_Menu);
    layOut();
    QTest::mouseMove(view(), entry);
    press(Qt::Key_Return);
    EXPECT_NE(store.find(newer->id), nullptr) << "the first entry has the keys";
}
