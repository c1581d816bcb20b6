// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Localisation.h"
#include "panel/PanelWindowWorld.h"
#include "paste/PasteStack.h"

using namespace vellumry;

namespace {

class StackButtonTest : public PanelWindowWorld {
protected:
    StackButtonTest() {
        panel.setStack(stack);
        panel.model().onToggleStack = [this](const std::vector<ClipRef>& clips) { seeds.push_back(clips); };
        addText("first");
        addText("second");
        open();
    }
    [[nodiscard]] QQuickItem* button() const {
        return view()->rootObject()->findChild<QQuickItem*>(QStringLiteral("stackButton"));
    }
    void click() { QTest::mouseClick(view(), Qt::LeftButton, {}, middleOf(button())); }

    PasteStack stack{pasteboard, [] { return false; },
                     [](std::vector<PasteboardItem> items, std::vector<FileRef>) { return std::optional(items); }};
    std::vector<std::vector<ClipRef>> seeds;
};

} // namespace

TEST_F(StackButtonTest, ItIsOnWhileAStackRuns) {
    EXPECT_FALSE(button()->property("isOn").toBool());
    stack.start({});
    EXPECT_TRUE(button()->property("isOn").toBool());
    EXPECT_EQ(button()->property("help").toString(), localised("Stop Paste Stack (⌃⌘S)"));
    stack.stop();
    EXPECT_FALSE(button()->property("isOn").toBool());
}

TEST_F(StackButtonTest, TheOneSelectedClipDoesNotGoIn) {
    click();
    ASSERT_EQ(seeds.size(), 1u);
    EXPECT_TRUE(seeds.front().empty());
}

TEST_F(StackButtonTest, SeveralSelectedClipsGoInOldestFirst) {
    press(Qt::Key_Down, Qt::ShiftModifier);
    click();
    ASSERT_EQ(seeds.size(), 1u);
    ASSERT_EQ(seeds.front().size(), 2u);
    EXPECT_EQ(seeds.front().front()->title, QStringLiteral("first"));
}

TEST_F(StackButtonTest, AClickLeavesTheKeyboardInTheSearchField) {
    QQuickItem* field = view()->activeFocusItem();
    click();
    EXPECT_EQ(view()->activeFocusItem(), field);
    press(Qt::Key_S);
    EXPECT_EQ(panel.model().query(), QStringLiteral("s"));
}

TEST_F(StackButtonTest, ItTellsWhatItDoesWhereThePointerRests) {
    const QString help = localised("Paste Stack: copy several things, every ⌘V pastes the next (⌃⌘S)");
    button()->setProperty("askingTime", 0);
    QTest::mouseMove(view(), QPoint(5, 5));
    EXPECT_FALSE(texts().contains(help));
    QTest::mouseMove(view(), middleOf(button()));
    EXPECT_TRUE(QTest::qWaitFor([&] { return texts().contains(help); }));
    QTest::mouseMove(view(), QPoint(5, 5));
    EXPECT_FALSE(texts().contains(help));
}
