// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Localisation.h"
#include "history/file/ClipRows.h"
#include "panel/PanelWindowWorld.h"
#include "support/TemporaryHistory.h"

#include <QAccessible>
#include <QClipboard>
#include <QTranslator>
#include <algorithm>
#include <array>
#include <string_view>

using namespace vellumry;

namespace {

/// A language in which the footer's hints take much room.
class LongHints : public QTranslator {
public:
    [[nodiscard]] static QString of(const char* key) { return QString(20, u'W') + QString::fromUtf8(key); }
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char*, const char* key, const char*, int) const override {
        constexpr std::array<std::string_view, 5> hints{"Choose", "Paste", "Plain text", "Transform", "Delete"};
        return std::ranges::find(hints, key) == hints.end() ? QString() : of(key);
    }
};

class PanelViewTest : public PanelWindowWorld {
protected:
    void scroll(int notches) {
        const QPointF place(200, 300);
        QWheelEvent wheel(place, view()->mapToGlobal(place), {}, QPoint(0, notches * 120), {}, {}, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(view(), &wheel);
        (void)view()->grabWindow(); // lays the list out
    }
    [[nodiscard]] QQuickItem* list() const {
        return view()->rootObject()->findChild<QQuickItem*>(QStringLiteral("clips"));
    }
    /// The whole rows in sight, top to bottom.
    [[nodiscard]] QStringList shownTitles() const {
        QMap<double, QString> titles;
        for (const QQuickItem* row : rowsInSight())
            titles.insert(row->mapToItem(list(), QPointF()).y(), row->property("title").toString());
        return titles.values();
    }
    [[nodiscard]] double topOf(const QString& title) const {
        for (const QQuickItem* row : rowsInSight()) {
            if (row->property("title").toString() == title)
                return row->mapToItem(list(), QPointF()).y();
        }
        return -1000;
    }
    [[nodiscard]] QList<QQuickItem*> rowsInSight() const {
        QList<QQuickItem*> rows;
        for (QQuickItem* item : list()->property("contentItem").value<QQuickItem*>()->childItems()) {
            const double top = item->mapToItem(list(), QPointF()).y();
            const bool isRow = item->isVisible() && item->property("isHeader").isValid();
            if (isRow && !item->property("isHeader").toBool() && top > -1 &&
                top + item->height() <= list()->height() + 1)
                rows.append(item);
        }
        return rows;
    }
    static QAccessibleInterface* listItem(QAccessibleInterface* node, const QString& name) {
        if (node->role() == QAccessible::ListItem && node->text(QAccessible::Name) == name && !node->state().invisible)
            return node;
        for (int index = 0; index < node->childCount(); ++index) {
            if (QAccessibleInterface* found = listItem(node->child(index), name))
                return found;
        }
        return nullptr;
    }
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

TEST_F(PanelViewTest, RowsShowTheirTitlesAndTheirNumbers) {
    addText("first words");
    addText("second words");
    open();
    const QStringList shown = texts();
    EXPECT_TRUE(shown.contains(QStringLiteral("first words")));
    EXPECT_TRUE(shown.contains(QStringLiteral("second words")));
    EXPECT_TRUE(shown.contains(QStringLiteral("1")));
    EXPECT_TRUE(shown.contains(QStringLiteral("2")));
    EXPECT_FALSE(shown.contains(QStringLiteral("3")));
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
    EXPECT_TRUE(texts().contains(localised("No clips match “%1”").arg(QStringLiteral("zzz"))));
    EXPECT_FALSE(texts().contains(QStringLiteral("apple")));
}

TEST_F(PanelViewTest, WhileTheHistoryIsLoadedASearchInVainAndTheFooterSaySo) {
    TemporaryHistory history;
    {
        const ClipCrypto crypto = history.open().database->crypto();
        SQLiteDatabase file = history.connect();
        file.execute("BEGIN;");
        for (int number = 0; number < 150; ++number) {
            Clip clip;
            clip.id = QUuid::createUuid();
            clip.title = QString::number(number);
            clip.fingerprint = Fingerprint::ofText(clip.id.toByteArray());
            cliprows::write(file, crypto, clip, ClipPayload());
        }
        file.execute("COMMIT;");
    }
    open();
    for (int count = 0; count < 3; ++count)
        press(Qt::Key_Z);
    const auto* const facade = view()->rootObject()->property("panel").value<QObject*>();
    ASSERT_TRUE(facade);
    const QString loading = localised("Loading the history…");
    QStringList lines;
    QString footer;
    QObject::connect(&store, &ClipStore::storageChanged, facade, [&] {
        if (!store.isLoading())
            return;
        lines = facade->property("emptyLines").toStringList();
        footer = facade->property("countText").toString();
    });
    EXPECT_TRUE(awaited(store.attach(history.open().database, false)));
    EXPECT_EQ(lines, (QStringList{localised("No clips match “%1”").arg(QStringLiteral("zzz")), loading}));
    EXPECT_EQ(footer, loading);
    EXPECT_TRUE(texts().contains(lines.front()));
    EXPECT_FALSE(texts().contains(loading));
}

TEST_F(PanelViewTest, TheFooterCountsClipsAndNamesTheKeys) {
    addText("first");
    addText("second");
    open();
    EXPECT_TRUE(texts().contains(localised("%n clips · Not saved: kept until you quit", 2)));
    EXPECT_TRUE(texts().contains(localised("Paste")));
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_TRUE(texts().contains(localised("Merge & paste")));
    EXPECT_FALSE(texts().contains(localised("Paste")));
}

TEST_F(PanelViewTest, InALanguageOfLongWordsHintsMakeRoomForTheCount) {
    addText("Only");
    LongHints words; // taken out again where it ends
    QCoreApplication::installTranslator(&words);
    open();
    (void)view()->grabWindow();
    const auto* count = view()->rootObject()->findChild<QQuickItem*>(QStringLiteral("count"));
    EXPECT_FALSE(count->property("truncated").toBool());
    EXPECT_TRUE(texts().contains(LongHints::of("Paste"))) << "what matters most stays";
    EXPECT_FALSE(texts().contains(LongHints::of("Choose")));
    EXPECT_FALSE(texts().contains(LongHints::of("Transform")));
    addText("More");
    press(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_TRUE(texts().contains(localised("Merge & paste"))) << "other hints are measured anew";
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
    const QString help = localised("%1 anywhere to paste this").arg(localised("⌃") + localised("⌥") + QLatin1Char('1'));
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

TEST_F(PanelViewTest, TheListStaysWhereTheUserScrolledItWhileClipsComeIn) {
    for (int number = 0; number < 40; ++number)
        addText(QByteArray("clip " + QByteArray::number(number)).constData());
    open();
    QQuickItem* list = view()->rootObject()->findChild<QQuickItem*>(QStringLiteral("clips"));
    scroll(-5);
    const QStringList before = shownTitles();
    ASSERT_FALSE(before.contains(QStringLiteral("clip 39"))) << "the chosen row is out of sight";
    const double top = topOf(before.first());
    addText("a new one");
    (void)view()->grabWindow();
    EXPECT_EQ(shownTitles().mid(0, 7), before.mid(0, 7));
    EXPECT_DOUBLE_EQ(topOf(before.first()), top);
    EXPECT_GT(list->property("contentY").toDouble(), 0);
}

TEST_F(PanelViewTest, ScrollingGoesByWholeRows) {
    for (int number = 0; number < 40; ++number)
        addText(QByteArray("clip " + QByteArray::number(number)).constData());
    open();
    for (int notches : {-1, -3, 2, -4}) {
        scroll(notches);
        EXPECT_DOUBLE_EQ(topOf(shownTitles().first()), 0) << notches;
    }
}

TEST_F(PanelViewTest, AtTheEndOfTheListNoRowIsCut) {
    for (int number = 0; number < 40; ++number)
        addText(QByteArray("clip " + QByteArray::number(number)).constData());
    open();
    const auto cutRows = [this] {
        QStringList cut;
        (void)view()->grabWindow();
        for (const QQuickItem* item : list()->property("contentItem").value<QQuickItem*>()->childItems()) {
            const double top = item->mapToItem(list(), QPointF()).y();
            const double bottom = top + item->height();
            const bool isRow = item->isVisible() && item->property("isHeader").isValid();
            if (isRow && ((top < -1 && bottom > 1) || (top < list()->height() - 1 && bottom > list()->height() + 1)))
                cut.append(item->property("title").toString());
        }
        return cut;
    };
    press(Qt::Key_End);
    EXPECT_EQ(cutRows(), QStringList());
    EXPECT_EQ(shownTitles().last(), QStringLiteral("clip 0"));
    press(Qt::Key_Home);
    for (int notch = 0; notch < 20; ++notch)
        scroll(-1);
    EXPECT_EQ(cutRows(), QStringList());
    EXPECT_EQ(shownTitles().last(), QStringLiteral("clip 0"));
}

TEST_F(PanelViewTest, TheChosenRowKeepsARowOfContextBelowIt) {
    for (int number = 0; number < 40; ++number)
        addText(QByteArray("clip " + QByteArray::number(number)).constData());
    open();
    for (int step = 0; step < 12; ++step)
        press(Qt::Key_Down);
    (void)view()->grabWindow();
    EXPECT_TRUE(shownTitles().contains(QStringLiteral("clip 27")));
    EXPECT_TRUE(shownTitles().contains(QStringLiteral("clip 26"))) << "the one below";
}

TEST_F(PanelViewTest, APressOnTheScrollBarChoosesNoRow) {
    for (int number = 0; number < 60; ++number)
        addText(QByteArray("clip " + QByteArray::number(number)).constData());
    open();
    const auto chosen = panel.model().selectedID();
    const QQuickItem* thumb = view()->rootObject()->findChild<QQuickItem*>(QStringLiteral("scrollThumb"));
    ASSERT_NE(thumb, nullptr);
    const QPoint grip = thumb->mapToScene(QPointF(2, 6)).toPoint();
    QTest::mousePress(view(), Qt::LeftButton, {}, grip);
    QTest::mouseMove(view(), grip + QPoint(0, 400));
    QTest::mouseRelease(view(), Qt::LeftButton, {}, grip + QPoint(0, 400));
    EXPECT_EQ(panel.model().selectedID(), chosen);
}

TEST_F(PanelViewTest, ADoubleClickWithCtrlOrShiftPastesNothing) {
    addText("older");
    addText("newer");
    open();
    const QPoint place = middleOf(itemWithText(QStringLiteral("older")));
    QTest::mouseDClick(view(), Qt::LeftButton, Qt::ControlModifier, place);
    EXPECT_TRUE(panel.isVisible());
    QTest::mouseDClick(view(), Qt::LeftButton, Qt::ShiftModifier, place);
    EXPECT_TRUE(panel.isVisible());
}

TEST_F(PanelViewTest, AReleaseAfterACaptureCollapsesToTheClipThatWasPressed) {
    const ClipRef oldest = addText("oldest");
    addText("older");
    addText("newer");
    open();
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ShiftModifier);
    ASSERT_EQ(panel.model().selectedCount(), 3);
    const QPoint place = middleOf(itemWithText(QStringLiteral("oldest")));
    QTest::mousePress(view(), Qt::LeftButton, {}, place);
    addText("just copied");
    (void)view()->grabWindow();
    QTest::mouseRelease(view(), Qt::LeftButton, {}, place);
    EXPECT_EQ(panel.model().selectedID(), oldest->id);
    EXPECT_EQ(panel.model().selectedCount(), 1);
}

TEST_F(PanelViewTest, TheHintsNameOnlyWhatTheKeysWouldDo) {
    addText("words");
    add(drafts::image(QByteArray("png")));
    open();
    EXPECT_FALSE(texts().contains(localised("Transform"))) << "a picture";
    EXPECT_FALSE(texts().contains(localised("Plain text")));
    press(Qt::Key_Down);
    EXPECT_TRUE(texts().contains(localised("Transform")));
    EXPECT_TRUE(texts().contains(localised("Plain text")));
    press(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_FALSE(texts().contains(localised("Transform")));
    EXPECT_FALSE(texts().contains(localised("Merge & paste"))) << "pictures cannot be merged";
    EXPECT_TRUE(texts().contains(localised("%n clips selected", 2)));
}

TEST_F(PanelViewTest, AScreenReaderPressesARowAndIsToldWhichOneIsChosen) {
    QAccessible::setActive(true);
    addText("older");
    addText("newer");
    open();
    QAccessibleInterface* row = listItem(QAccessible::queryAccessibleInterface(view()), QStringLiteral("older"));
    ASSERT_NE(row, nullptr);
    EXPECT_FALSE(row->state().focused);
    press(Qt::Key_Down);
    EXPECT_TRUE(row->state().focused);
    EXPECT_TRUE(row->state().selected);
    ASSERT_NE(row->actionInterface(), nullptr);
    row->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(pastedText(), QStringLiteral("older"));
}

TEST_F(PanelViewTest, FromRightToLeftTheArrowsGoTheOtherWay) {
    addText("words");
    open();
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    press(Qt::Key_Left);
    EXPECT_EQ(panel.model().filter(), ClipFilter::text);
    press(Qt::Key_Right);
    EXPECT_EQ(panel.model().filter(), ClipFilter::all);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(PanelViewTest, AScreenReaderFindsTheFiltersAsTabs) {
    QAccessible::setActive(true);
    addText("words");
    open();
    QQuickItem* title = itemWithText(localised("Text"));
    const auto tab = [](QQuickItem* label) { return QAccessible::queryAccessibleInterface(label->parentItem()); };
    EXPECT_EQ(tab(title)->role(), QAccessible::PageTab);
    EXPECT_EQ(tab(title)->parent()->role(), QAccessible::PageTabList);
    EXPECT_EQ(tab(title)->parent()->text(QAccessible::Name), localised("Filters"));
    EXPECT_EQ(tab(title)->text(QAccessible::Description), QStringLiteral("1"));
    EXPECT_FALSE(tab(title)->state().selected);
    tab(title)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(tab(title)->state().selected);
    EXPECT_FALSE(tab(itemWithText(localised("All")))->state().selected);
}

TEST_F(PanelViewTest, WhatIsReadOutStaysTheSameObjectWhenItsNeighbourGoes) {
    QAccessible::setActive(true);
    for (const char* text : {"first", "second", "third"})
        addText(text);
    open();
    QAccessibleInterface* window = QAccessible::queryAccessibleInterface(view());
    const QObject* second = listItem(window, QStringLiteral("second"))->object();
    press(Qt::Key_Delete);
    (void)view()->grabWindow();
    EXPECT_EQ(listItem(window, QStringLiteral("second"))->object(), second);
    EXPECT_EQ(readOut(window), (QStringList{QStringLiteral("second"), QStringLiteral("first")}));
    addText("fourth");
    (void)view()->grabWindow();
    EXPECT_EQ(listItem(window, QStringLiteral("second"))->object(), second);
    EXPECT_EQ(readOut(window),
              (QStringList{QStringLiteral("fourth"), QStringLiteral("second"), QStringLiteral("first")}));
}

TEST_F(PanelViewTest, RowsAreReadOutInTheOrderOfTheScreen) {
    QAccessible::setActive(true);
    for (int number = 0; number < 40; ++number)
        addText(QByteArray("clip " + QByteArray::number(number)).constData());
    open();
    panel.model().searchTextEdited(QStringLiteral("clip 3"));
    (void)view()->grabWindow();
    panel.model().searchTextEdited(QString());
    scroll(-3);
    scroll(1);
    const QStringList read = readOut(QAccessible::queryAccessibleInterface(view()));
    QStringList sorted = read;
    std::ranges::sort(sorted, std::greater(), [](const QString& title) { return title.mid(5).toInt(); });
    EXPECT_GE(read.size(), 8);
    EXPECT_EQ(read, sorted);
}
