// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Localisation.h"
#include "panel/PanelWindowWorld.h"

#include <QAccessible>
#include <QClipboard>

using namespace vellumry;

namespace {

class PanelViewTest : public PanelWindowWorld {
protected:
    /// The rows that a screen reader finds.
    static QStringList readOut(QAccessibleInterface* node) {
        QStringList names;
        if (node->role() == QAccessible::ListItem && !node->state().invisible)
            names.append(node->text(QAccessible::Name));
        for (int index = 0; index < node->childCount(); ++index)
            names += readOut(node->child(index));
        return names;
    }
};

} // namespace

TEST_F(PanelViewTest, RowsShowTheirTitlesAndTheKeysThatPasteThem) {
    addText("first words");
    addText("second words");
    open();
    const QStringList shown = texts();
    EXPECT_TRUE(shown.contains(QStringLiteral("first words")));
    EXPECT_TRUE(shown.contains(QStringLiteral("second words")));
    EXPECT_TRUE(shown.contains(localised("⌘") + QStringLiteral("1")));
    EXPECT_TRUE(shown.contains(localised("⌘") + QStringLiteral("2")));
    EXPECT_FALSE(shown.contains(localised("⌘") + QStringLiteral("3")));
}

TEST_F(PanelViewTest, ASensitiveRowNeverShowsItsText) {
    add(drafts::secret(QStringLiteral("correct horse")));
    open();
    const QStringList shown = texts();
    EXPECT_TRUE(shown.contains(localised("Hidden")));
    EXPECT_TRUE(shown.filter(QStringLiteral("correct horse")).isEmpty());
}

TEST_F(PanelViewTest, AnEmptyHistorySaysHowToBegin) {
    open();
    const QStringList shown = texts();
    EXPECT_TRUE(shown.contains(localised("Nothing here yet")));
    EXPECT_TRUE(shown.contains(localised("Copy something. It shows up here.")));
}

TEST_F(PanelViewTest, AFilterWithoutClipsSaysHowToBeginToo) {
    addText("apple");
    open();
    panel.model().setFilter(ClipFilter::pinned);
    EXPECT_TRUE(texts().contains(localised("Nothing here yet")));
    EXPECT_TRUE(texts().contains(localised("Copy something. It shows up here.")));
}

TEST_F(PanelViewTest, ASearchInVainQuotesTheQuery) {
    addText("apple");
    open();
    for (int count = 0; count < 3; ++count)
        press(Qt::Key_Z);
    EXPECT_EQ(panel.model().query(), QStringLiteral("zzz"));
    EXPECT_TRUE(texts().contains(localised("No clips match “") + QStringLiteral("zzz”")));
    EXPECT_FALSE(texts().contains(QStringLiteral("apple")));
}

TEST_F(PanelViewTest, TheFooterCountsClipsAndNamesTheKeys) {
    addText("first");
    addText("second");
    open();
    EXPECT_TRUE(texts().contains(QStringLiteral("2") + localised(" clips · encrypted on this Mac")));
    EXPECT_TRUE(texts().contains(localised("Paste")));
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_TRUE(texts().contains(localised("Merge & paste")));
    EXPECT_FALSE(texts().contains(localised("Paste")));
}

TEST_F(PanelViewTest, AChipClickedFiltersTheRows) {
    addText("plain words");
    add(drafts::image(QByteArray("png")));
    open();
    QTest::mouseClick(view(), Qt::LeftButton, {}, middleOf(itemWithText(localised("Images"))));
    EXPECT_EQ(panel.model().filter(), ClipFilter::images);
    EXPECT_EQ(view()->rootObject()->findChild<QQuickItem*>(QStringLiteral("clips"))->property("count").toInt(), 2);
    EXPECT_TRUE(texts().contains(QStringLiteral("Image")));
}

TEST_F(PanelViewTest, KeysReachTheModelBeforeTheText) {
    addText("first");
    addText("second");
    open();
    EXPECT_EQ(panel.model().selectedIndex(), 0);
    press(Qt::Key_Down);
    EXPECT_EQ(panel.model().selectedIndex(), 1);
    press(Qt::Key_Escape);
    EXPECT_FALSE(panel.isVisible());
}

TEST_F(PanelViewTest, DigitsPasteByTheirPlaceWhereTheLayoutTypesSomethingElse) {
    addText("older");
    addText("newer");
    open();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Eacute, Qt::ControlModifier, placeOfTwo, 0, 0, QStringLiteral("é"));
    QCoreApplication::sendEvent(view(), &press);
    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(pastedText(), QStringLiteral("older"));
}

TEST_F(PanelViewTest, ARestingPointerIsToldWhatPastesAPinAnywhere) {
    const ClipRef pinned = addText("pinned");
    awaited(store.setPinned(pinned->id, true, now));
    addText("other");
    open();
    QQuickItem* list = view()->rootObject()->findChild<QQuickItem*>(QStringLiteral("clips"));
    ASSERT_NE(list, nullptr);
    list->setProperty("askingTime", 0);
    const QString help = localised("⌃") + localised("⌥") + QLatin1Char('1') + localised(" anywhere to paste this");
    QTest::mouseMove(view(), QPoint(5, 5));
    const QPoint place = middleOf(itemWithText(QStringLiteral("pinned")));
    QTest::mouseMove(view(), place);
    QTest::mouseMove(view(), place + QPoint(3, 0));
    EXPECT_TRUE(QTest::qWaitFor([&] { return texts().contains(help); }));
    QTest::mouseMove(view(), middleOf(itemWithText(QStringLiteral("other"))));
    EXPECT_FALSE(texts().contains(help));
    QTest::mouseMove(view(), place);
    EXPECT_TRUE(QTest::qWaitFor([&] { return texts().contains(help); }));
    QTest::mouseMove(view(), QPoint(5, 5));
    EXPECT_FALSE(texts().contains(help));
    EXPECT_EQ(list->property("hoveredRow").toInt(), -1);
    QTest::mouseMove(view(), place);
    QTest::mouseMove(view(), place + QPoint(3, 0));
    EXPECT_TRUE(QTest::qWaitFor([&] { return texts().contains(help); }));
    awaited(store.setPinned(pinned->id, false, now));
    QTest::qWait(0);
    EXPECT_FALSE(texts().contains(help)) << "it is no pin any more";
    awaited(store.remove({pinned->id}, false));
    QTest::qWait(0);
    EXPECT_EQ(list->property("help").toString(), QString());
}

TEST_F(PanelViewTest, ADoubleClickPastesTheRow) {
    addText("older");
    addText("newer");
    open();
    QTest::mouseDClick(view(), Qt::LeftButton, {}, middleOf(itemWithText(QStringLiteral("older"))));
    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(pastedText(), QStringLiteral("older"));
}

TEST_F(PanelViewTest, TheTransformListShowsItsEntriesOnlyWhileItIsOpen) {
    addText("some words");
    open();
    const QString entry = transformTitle(TextTransform::uppercase);
    EXPECT_FALSE(texts().contains(entry));
    press(Qt::Key_T, Qt::ControlModifier);
    EXPECT_TRUE(texts().contains(entry));
}

TEST_F(PanelViewTest, AGrowingFocusTokenBringsTheKeyboardBackToTheField) {
    addText("some words");
    open();
    const int before = panel.model().focusToken();
    QQuickItem* field = view()->activeFocusItem();
    ASSERT_NE(field, nullptr);
    field->setFocus(false);
    panel.hide();
    open();
    EXPECT_GT(panel.model().focusToken(), before);
    EXPECT_EQ(view()->activeFocusItem(), field);
}

TEST_F(PanelViewTest, ARowLightsUpOnlyWhenThePointerMoved) {
    addText("older");
    addText("newer");
    open();
    QQuickItem* list = view()->rootObject()->findChild<QQuickItem*>(QStringLiteral("clips"));
    ASSERT_NE(list, nullptr);
    const QPoint place = middleOf(itemWithText(QStringLiteral("older")));
    QTest::mouseMove(view(), QPoint(5, 5)); // wherever the test before left it
    QTest::mouseMove(view(), place);
    EXPECT_EQ(list->property("hoveredRow").toInt(), -1);
    QTest::mouseMove(view(), place + QPoint(3, 0));
    EXPECT_EQ(list->property("hoveredRow").toInt(), 2);
    press(Qt::Key_Down);
    EXPECT_EQ(list->property("hoveredRow").toInt(), -1);
}

TEST_F(PanelViewTest, EightRowsUnderTheirHeaderShowWhole) {
    for (int number = 0; number < 12; ++number)
        addText(QByteArray("clip " + QByteArray::number(number)).constData());
    open();
    QQuickItem* list = view()->rootObject()->findChild<QQuickItem*>(QStringLiteral("clips"));
    ASSERT_NE(list, nullptr);
    const QQuickItem* eighth = itemWithText(QStringLiteral("clip 4"));
    ASSERT_NE(eighth, nullptr);
    EXPECT_LE(eighth->mapToItem(list, QPointF(0, eighth->height())).y(), list->height());
}

TEST_F(PanelViewTest, WhatWasCopiedGoesIntoTheFieldWithoutAskingQtsClipboard) {
    QGuiApplication::clipboard()->setText(QStringLiteral("of Qt"));
    addText("apple pie");
    pasteboard.copyText(QStringLiteral("\n  apple  \nsecond line"));
    open();
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(panel.model().query(), QStringLiteral("apple"));
    press(Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(panel.model().query(), QStringLiteral("appleapple"));
    QTest::mouseClick(view(), Qt::MiddleButton, {}, middleOf(view()->activeFocusItem()));
    EXPECT_EQ(panel.model().query(), QStringLiteral("appleappleapple"));
}

TEST_F(PanelViewTest, ASilentOwnerKeepsNeitherTheFieldNorTheNextShowingWaiting) {
    addText("apple");
    pasteboard.copyText(QStringLiteral("late"));
    pasteboard.hangsBeginReading = true;
    open();
    for (int count = 0; count < 20; ++count)
        press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(pasteboard.beginReadingRequests, 1);
    press(Qt::Key_A);
    EXPECT_EQ(panel.model().query(), QStringLiteral("a"));
    panel.hide();
    open();
    pasteboard.answerHanging();
    EXPECT_EQ(panel.model().query(), QString());
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(panel.model().query(), QStringLiteral("late"));
}

TEST_F(PanelViewTest, OnlyTheStartOfALongTextIsPasted) {
    pasteboard.copyText(QStringLiteral("x").repeated(50'000));
    open();
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(panel.model().query().size(), FieldPasteboard::longest);
}

TEST_F(PanelViewTest, TheFieldCopiesAndCutsThroughThePasteboard) {
    QGuiApplication::clipboard()->setText(QStringLiteral("of Qt"));
    open();
    press(Qt::Key_O);
    press(Qt::Key_K);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(pastedText(), QStringLiteral("ok"));
    EXPECT_EQ(panel.model().query(), QStringLiteral("ok"));
    pasteboard.copyText(QStringLiteral("other"));
    press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(pastedText(), QStringLiteral("ok"));
    EXPECT_EQ(panel.model().query(), QString());
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("of Qt"));
}

TEST_F(PanelViewTest, TheHoveredRowIsTold) {
    addText("older");
    addText("newer");
    open();
    QTest::mouseMove(view(), QPoint(5, 5));
    const QPoint place = middleOf(itemWithText(QStringLiteral("older")));
    QTest::mouseMove(view(), place);
    QTest::mouseMove(view(), place + QPoint(3, 0));
    EXPECT_EQ(panel.model().hoveredID(), panel.model().visibleClips().at(1)->id);
    press(Qt::Key_Down);
    EXPECT_EQ(panel.model().hoveredID(), std::nullopt);
}

TEST_F(PanelViewTest, RowsThatAreKeptForReuseAreNotReadOut) {
    QAccessible::setActive(true);
    for (const char* text : {"apple", "pear", "plum", "apricot"})
        addText(text);
    open();
    QAccessibleInterface* window = QAccessible::queryAccessibleInterface(view());
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(readOut(window).size(), 4);
    panel.model().searchTextEdited(QStringLiteral("ap"));
    (void)view()->grabWindow(); // lays the list out
    QStringList left = readOut(window);
    left.sort();
    EXPECT_EQ(left, (QStringList{QStringLiteral("apple"), QStringLiteral("apricot")}));
    panel.model().searchTextEdited(QString());
    (void)view()->grabWindow();
    EXPECT_EQ(readOut(window).size(), 4);
}
