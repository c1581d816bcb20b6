// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/UniformType.h"
#include "panel/PanelWindowWorld.h"
#include "support/FakeDragSource.h"

#include <algorithm>

using namespace vellumry;

namespace {

/// Three clips, and a pointer that presses rows and moves away with them.
class PanelDragTest : public PanelWindowWorld {
protected:
    PanelDragTest() {
        for (const char* text : {"one", "two", "three"})
            addText(text);
        dragging.show();
        view = qobject_cast<QQuickView*>(surface.adopted.last());
        (void)QTest::qWaitForWindowExposed(view);
    }
    [[nodiscard]] QPoint placeOf(const char* title) const {
        return middleOf(findText(view->rootObject(), QString::fromUtf8(title)));
    }
    void pressAt(QPoint place) { QTest::mousePress(view, Qt::LeftButton, {}, place); }
    void moveTo(QPoint place) {
        QMouseEvent move(QEvent::MouseMove, place, view->mapToGlobal(QPointF(place)), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(view, &move);
    }
    void releaseAt(QPoint place) { QTest::mouseRelease(view, Qt::LeftButton, {}, place); }
    [[nodiscard]] QByteArray draggedText() const {
        return source.content.items.empty() ? QByteArray()
                                            : source.content.items[0].representations.at(uniformtype::utf8PlainText);
    }
    static QQuickItem* findText(QQuickItem* item, const QString& text) {
        if (item->isVisible() && item->inherits("QQuickText") && item->property("text").toString() == text)
            return item;
        for (QQuickItem* child : item->childItems()) {
            if (QQuickItem* found = findText(child, text))
                return found;
        }
        return nullptr;
    }

    FakeDragSource source;
    PanelController dragging{store, *engine, pasteboard, surface, views, [this] {
                                 auto hooks = panelHooks();
                                 hooks.dragSource = &source;
                                 return hooks;
                             }()};
    QQuickView* view = nullptr;
};

} // namespace

TEST_F(PanelDragTest, FourPixelsAreAPressFiveADrag) {
    const QPoint place = placeOf("two");
    pressAt(place);
    moveTo(place + QPoint(4, 0));
    EXPECT_EQ(source.begun, 0);
    moveTo(place + QPoint(5, 0));
    EXPECT_EQ(source.begun, 1);
    EXPECT_EQ(draggedText(), "two");
    releaseAt(place + QPoint(5, 0));
}

TEST_F(PanelDragTest, ADropHidesThePanelAndGivesItBackWhole) {
    const QPoint place = placeOf("two");
    pressAt(place);
    moveTo(place + QPoint(0, 30));
    EXPECT_TRUE(dragging.isVisible()) << "it holds the pointer";
    EXPECT_TRUE(surface.inputArea.isEmpty()) << "and lets it through";
    moveTo(place + QPoint(900, 30));
    EXPECT_EQ(source.moves, 1);
    releaseAt(place + QPoint(900, 30));
    EXPECT_FALSE(dragging.isVisible());
    dragging.show();
    EXPECT_EQ(surface.inputArea.size(), PanelController::panelSize);
    EXPECT_EQ(view->opacity(), 1);
}

TEST_F(PanelDragTest, ADragThatIsRefusedBringsThePanelBack) {
    source.takes = false;
    const QPoint place = placeOf("two");
    pressAt(place);
    moveTo(place + QPoint(0, 30));
    releaseAt(place + QPoint(0, 30));
    EXPECT_TRUE(dragging.isVisible());
    EXPECT_EQ(surface.inputArea.size(), PanelController::panelSize);
}

TEST_F(PanelDragTest, APressRightAfterADragIsNoDoubleClick) {
    source.takes = false;
    const QPoint place = placeOf("two");
    pressAt(place);
    moveTo(place + QPoint(0, 30));
    // Without the pause that the test library makes after a release.
    const QPointF end = place + QPoint(0, 30);
    QMouseEvent release(QEvent::MouseButtonRelease, end, view->mapToGlobal(end), Qt::LeftButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(view, &release);
    pressAt(place);
    EXPECT_TRUE(dragging.isVisible());
    EXPECT_EQ(pastedCount, 0);
    releaseAt(place);
}

TEST_F(PanelDragTest, EscapeEndsTheDragAndNothingElse) {
    const QPoint place = placeOf("two");
    pressAt(place);
    moveTo(place + QPoint(0, 30));
    QTest::keyClick(view, Qt::Key_X);
    EXPECT_EQ(dragging.model().query(), QString());
    QTest::keyClick(view, Qt::Key_Escape);
    EXPECT_TRUE(dragging.isVisible());
    EXPECT_EQ(surface.inputArea.size(), PanelController::panelSize);
    moveTo(place + QPoint(0, 60));
    EXPECT_EQ(source.begun, 1) << "not another one from the same press";
    releaseAt(place);
}

TEST_F(PanelDragTest, AFocusThatMovesMeanwhileDoesNotHideThePanel) {
    const QPoint place = placeOf("two");
    pressAt(place);
    moveTo(place + QPoint(0, 30));
    surface.onFocusLost(view);
    EXPECT_TRUE(dragging.isVisible());
    const auto shown = surface.frames.size();
    source.cancel();
    EXPECT_EQ(surface.frames.size(), shown + 1) << "it takes the keyboard again";
    releaseAt(place);
    surface.onFocusLost(view);
    EXPECT_FALSE(dragging.isVisible());
}

TEST_F(PanelDragTest, APressOnOneOfSeveralDragsThemAllInTheOrderOfTheirCopyingAndKeepsThem) {
    QTest::keyClick(view, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(view, Qt::Key_Down, Qt::ShiftModifier);
    ASSERT_EQ(dragging.model().selectedCount(), 3);
    source.takes = false;
    const QPoint place = placeOf("two");
    pressAt(place);
    moveTo(place + QPoint(0, 5));
    EXPECT_EQ(draggedText(), "one\ntwo\nthree");
    releaseAt(place + QPoint(0, 5));
    EXPECT_EQ(dragging.model().selectedCount(), 3);
}

TEST_F(PanelDragTest, ReleasedWithoutMovingTheSelectionCollapses) {
    QTest::keyClick(view, Qt::Key_Down, Qt::ShiftModifier);
    const QPoint place = placeOf("two");
    pressAt(place);
    EXPECT_EQ(dragging.model().selectedCount(), 2);
    releaseAt(place);
    EXPECT_EQ(dragging.model().selectedCount(), 1);
    EXPECT_EQ(source.begun, 0);
}

TEST_F(PanelDragTest, AHandThatIsQuickerThanTheContentDragsItAllTheSame) {
    const QPoint place = placeOf("two");
    const auto send = [this](QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons buttons) {
        QMouseEvent event(type, at, view->mapToGlobal(at), button, buttons, {});
        QCoreApplication::sendEvent(view, &event);
    };
    send(QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton);
    send(QEvent::MouseMove, place + QPoint(900, 30), Qt::NoButton, Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return source.begun == 1; }, 60'000));
    EXPECT_EQ(draggedText(), "two");
    releaseAt(place + QPoint(900, 30));
    EXPECT_FALSE(dragging.isVisible());

    // It may even have let go.
    dragging.show();
    send(QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton);
    send(QEvent::MouseMove, place + QPoint(900, 30), Qt::NoButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, place + QPoint(900, 30), Qt::LeftButton, Qt::NoButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dragging.isVisible(); }, 60'000));
    EXPECT_EQ(source.begun, 2);
}

TEST_F(PanelDragTest, OfManyChosenClipsNoneIsLeftBehind) {
    QStringList expected;
    for (int number = 0; number < 3 * PanelDrag::mostPreloaded; ++number) {
        expected.append(QString::number(1000 + number));
        addText(expected.last().toUtf8().constData());
    }
    dragging.model().handle(PanelModel::Command::home);
    for (qsizetype row = 1; row < expected.size(); ++row)
        dragging.model().extend(1);
    (void)view->grabWindow();
    const QPoint place = placeOf(expected.first().toUtf8().constData());
    pressAt(place);
    moveTo(place + QPoint(0, 5));
    EXPECT_TRUE(QTest::qWaitFor([&] { return source.begun == 1; }, 60'000));
    EXPECT_EQ(QString::fromUtf8(draggedText()), expected.join(u'\n'));
    releaseAt(place + QPoint(0, 5));
}

TEST_F(PanelDragTest, WhereNothingCanBeDraggedThePanelStays) {
    source.allows = false;
    const QPoint place = placeOf("two");
    pressAt(place);
    moveTo(place + QPoint(0, 30));
    EXPECT_EQ(surface.inputArea.size(), PanelController::panelSize);
    releaseAt(place);
    EXPECT_TRUE(dragging.isVisible());
}

TEST_F(PanelDragTest, NothingMovesUnderAFingerThatIsDown) {
    const QPoint place = placeOf("two");
    pressAt(place);
    addText("just copied");
    awaited(store.remove({store.clips().back()->id}, false));
    (void)view->grabWindow();
    EXPECT_EQ(placeOf("two"), place);
    EXPECT_EQ(findText(view->rootObject(), QStringLiteral("just copied")), nullptr);
    releaseAt(place);
    (void)view->grabWindow();
    EXPECT_NE(findText(view->rootObject(), QStringLiteral("just copied")), nullptr);
    EXPECT_EQ(findText(view->rootObject(), QStringLiteral("one")), nullptr);
}

TEST_F(PanelDragTest, RowsGlideUpWhereOneIsDeletedUnlessTheUserWantsNoMotion) {
    QTest::keyClick(view, Qt::Key_Delete);
    auto* list = view->rootObject()->findChild<QQuickItem*>(QStringLiteral("clips"));
    EXPECT_GT(list->property("gap").toDouble(), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return list->property("gap").toDouble() == 0; }, 60'000));
    dragging.hide();
    surface.stillness = true;
    dragging.show();
    QTest::keyClick(view, Qt::Key_Delete);
    EXPECT_EQ(list->property("gap").toDouble(), 0);
}

TEST_F(PanelDragTest, WhatASearchLeavesOutLeavesNoGapToClose) {
    QTest::keyClick(view, Qt::Key_T);
    QTest::keyClick(view, Qt::Key_W);
    (void)view->grabWindow();
    auto* list = view->rootObject()->findChild<QQuickItem*>(QStringLiteral("clips"));
    EXPECT_EQ(list->property("count").toInt(), 2);
    EXPECT_EQ(list->property("gap").toDouble(), 0);
}

TEST_F(PanelDragTest, WhatThePointerCarriesHasRoomForItsTitleBeforeThePointerMovesOn) {
    addText("a title that is longer than those of the other clips");
    (void)view->grabWindow();
    const QPoint place = placeOf("a title that is longer than those of the other clips");
    pressAt(place);
    moveTo(place + QPoint(0, 30));
    const auto carried = std::ranges::find_if(
        surface.adopted, [](const QWindow* window) { return window->title() == QStringLiteral("Vellumry drag"); });
    ASSERT_NE(carried, surface.adopted.end());
    auto* window = qobject_cast<QQuickView*>(*carried);
    (void)window->grabWindow();
    EXPECT_EQ(window->width(), qRound(window->rootObject()->width()));
    releaseAt(place);
}
