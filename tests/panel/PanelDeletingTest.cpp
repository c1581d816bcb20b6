// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Localisation.h"
#include "panel/PanelWindowWorld.h"

using namespace vellumry;

namespace {

/// The keys that delete, in the field that may hold text, and the footer's button that undoes it.
class PanelDeletingTest : public PanelWindowWorld {
protected:
    PanelDeletingTest() {
        addText("one");
        addText("two");
    }
    void type(const char* text) {
        for (const QChar letter : QString::fromUtf8(text))
            QTest::keyClick(view(), letter.toLatin1());
    }
    void pressRepeated(Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, QString(), true);
        QCoreApplication::sendEvent(view(), &event);
    }
};

} // namespace

TEST_F(PanelDeletingTest, CtrlDeleteDeletesTheClipWhateverTheFieldHolds) {
    open();
    type("o");
    press(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(store.clips().size(), 1U);
    EXPECT_EQ(panel.model().query(), QStringLiteral("o"));
    press(Qt::Key_Backspace);
    press(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_TRUE(store.clips().empty());
}

TEST_F(PanelDeletingTest, InAnEmptyFieldDeleteAndCtrlBackspaceDeleteTheClip) {
    open();
    press(Qt::Key_Delete);
    EXPECT_EQ(store.clips().size(), 1U);
    press(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_TRUE(store.clips().empty());
}

TEST_F(PanelDeletingTest, CtrlBackspaceRubsOutAWordWhileThereIsText) {
    open();
    type("on two");
    press(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(panel.model().query(), QStringLiteral("on"));
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(panel.model().query(), QStringLiteral("on two")) << "the field takes it back";
    press(Qt::Key_Backspace, Qt::ControlModifier);
    press(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(panel.model().query(), QString());
    EXPECT_EQ(store.clips().size(), 2U);
}

TEST_F(PanelDeletingTest, DeleteInAFieldWithTextIsTheTexts) {
    open();
    type("on");
    press(Qt::Key_Left);
    press(Qt::Key_Delete);
    EXPECT_EQ(panel.model().query(), QStringLiteral("o"));
    EXPECT_EQ(store.clips().size(), 2U);
}

TEST_F(PanelDeletingTest, AKeyHeldDownEmptiesTheFieldAndDeletesNoClip) {
    open();
    type("on two");
    press(Qt::Key_Backspace, Qt::ControlModifier);
    for (int count = 0; count < 5; ++count)
        pressRepeated(Qt::Key_Backspace, Qt::ControlModifier);
    pressRepeated(Qt::Key_Delete, Qt::NoModifier);
    EXPECT_EQ(panel.model().query(), QString());
    EXPECT_EQ(store.clips().size(), 2U);
}

TEST_F(PanelDeletingTest, TheFootersButtonUndoesAndGoesThen) {
    open();
    EXPECT_FALSE(texts().contains(localised("Undo")));
    press(Qt::Key_Delete);
    EXPECT_TRUE(texts().contains(localised("%n clips deleted", 1)));
    QTest::mouseClick(view(), Qt::LeftButton, {}, middleOf(itemWithText(localised("Undo"))));
    EXPECT_EQ(store.clips().size(), 2U);
    EXPECT_FALSE(texts().contains(localised("Undo")));
    EXPECT_EQ(panel.model().selectedIndex(), 0);
}

TEST_F(PanelDeletingTest, CtrlZUndoesTheDeletionUntilSomethingIsTyped) {
    open();
    press(Qt::Key_Delete);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(store.clips().size(), 2U);
    press(Qt::Key_Delete);
    type("q");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(store.clips().size(), 1U);
    EXPECT_EQ(panel.model().query(), QString()) << "the field took back what was typed";
    EXPECT_TRUE(texts().contains(localised("Undo")));
}
