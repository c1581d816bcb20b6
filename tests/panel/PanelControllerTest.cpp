// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelWindowWorld.h"

using namespace vellumry;

namespace {

class PanelControllerTest : public PanelWindowWorld {
protected:
    [[nodiscard]] QRect home() const {
        return placement::defaultFrame(PanelController::panelSize, surface.screen->visible).toAlignedRect();
    }
    /// The user holds an empty part and takes the panel along.
    void takeTo(const QPoint& place) {
        QCursor::setPos(view()->mapToGlobal(emptyPart));
        QTest::mousePress(view(), Qt::LeftButton, {}, emptyPart);
        QCursor::setPos(place + emptyPart);
        QTest::mouseMove(view(), emptyPart + QPoint(1, 0));
    }
    void letGo() { QTest::mouseRelease(view(), Qt::LeftButton, {}, emptyPart); }
    void dragTo(const QPoint& place) {
        takeTo(place);
        letGo();
    }

    const QPoint emptyPart{5, 5};
};

} // namespace

TEST_F(PanelControllerTest, WarmingUpMakesTheWindowWithoutShowingIt) {
    EXPECT_EQ(view(), nullptr);
    panel.warmUp();
    ASSERT_NE(view(), nullptr);
    EXPECT_NE(view()->rootObject(), nullptr);
    EXPECT_FALSE(panel.isVisible());
    EXPECT_TRUE(surface.frames.isEmpty());
}

TEST_F(PanelControllerTest, ToggleShowsAndHides) {
    int shown = 0;
    panel.onShow = [&] { ++shown; };
    panel.toggle();
    EXPECT_TRUE(panel.isVisible());
    EXPECT_TRUE(panel.model().isPresented());
    panel.show();
    EXPECT_EQ(shown, 1);
    panel.toggle();
    EXPECT_FALSE(panel.isVisible());
    EXPECT_FALSE(panel.model().isPresented());
    panel.hide();
    EXPECT_EQ(surface.dismissals, 1);
}

TEST_F(PanelControllerTest, LosingTheKeyboardClosesThePanel) {
    open();
    QWindow other;
    surface.onFocusLost(&other);
    EXPECT_TRUE(panel.isVisible());
    surface.onFocusLost(view());
    EXPECT_FALSE(panel.isVisible());
}

TEST_F(PanelControllerTest, ItOpensAtHomeWithoutARememberedPlace) {
    open();
    EXPECT_EQ(surface.frames, QList<QRect>{home()});
}

TEST_F(PanelControllerTest, ARememberedPlaceCounts) {
    positions.insert(QStringLiteral("one"), placement::Fractions{0.5, 0.5});
    open();
    EXPECT_EQ(surface.frames.first().center(), QRect(QPoint(410, 250), PanelController::panelSize).center());
}

TEST_F(PanelControllerTest, ItKeepsItsSizeWhereverItsCentreLies) {
    positions.insert(QStringLiteral("one"), placement::Fractions{0.33333, 0.44444});
    open();
    EXPECT_EQ(surface.frames.first().size(), PanelController::panelSize);
}

TEST_F(PanelControllerTest, EachDisplayHasAPlaceOfItsOwn) {
    positions.insert(QStringLiteral("one"), placement::Fractions{0.5, 0.5});
    positions.insert(QStringLiteral("two"), placement::Fractions{0.25, 0.5});
    open();
    panel.hide();
    surface.under = ScreenPlace{QStringLiteral("two"), QRect(1600, 0, 3200, 1000), QRect(1600, 0, 3200, 1000)};
    panel.show();
    ASSERT_EQ(surface.frames.size(), 2);
    EXPECT_EQ(surface.frames[0].topLeft(), QPoint(410, 250));
    EXPECT_EQ(surface.frames[1].topLeft(), QPoint(2010, 250));
}

TEST_F(PanelControllerTest, TheShadowLiesAroundThePanelWhereWindowsBlend) {
    surface.blends = true;
    open();
    const QRect frame = surface.frames.first();
    EXPECT_EQ(frame.center(), home().center());
    EXPECT_GT(frame.width(), home().width());
    EXPECT_TRUE(view()->mask().isEmpty());
}

TEST_F(PanelControllerTest, CornersAreCutWhereWindowsDoNotBlend) {
    open();
    EXPECT_FALSE(view()->mask().contains(QPoint(0, 0)));
    EXPECT_TRUE(view()->mask().contains(QPoint(390, 250)));
}

TEST_F(PanelControllerTest, APlaceFarFromHomeIsRemembered) {
    open();
    dragTo(QPoint(100, 400));
    ASSERT_TRUE(QTest::qWaitFor([&] { return savings == 1; }));
    EXPECT_TRUE(positions.contains(QStringLiteral("one")));
    EXPECT_EQ(view()->position(), QPoint(100, 400));
}

TEST_F(PanelControllerTest, NearHomeItSlidesBackAndIsForgotten) {
    positions.insert(QStringLiteral("one"), placement::Fractions{0.5, 0.6});
    open();
    dragTo(home().topLeft() + QPoint(15, 10));
    ASSERT_TRUE(QTest::qWaitFor([&] { return savings == 1; }));
    EXPECT_TRUE(positions.isEmpty());
    EXPECT_TRUE(QTest::qWaitFor([&] { return view()->position() == home().topLeft(); }));
}

TEST_F(PanelControllerTest, WhileItIsHeldNoPlaceIsRemembered) {
    open();
    takeTo(QPoint(100, 400));
    EXPECT_EQ(view()->position(), QPoint(100, 400));
    QTest::qWait(0);
    EXPECT_EQ(savings, 0);
    letGo();
    EXPECT_TRUE(QTest::qWaitFor([&] { return savings == 1; }));
}

TEST_F(PanelControllerTest, AClickOnAnEmptyPartChoosesNoPlace) {
    open();
    QTest::mouseClick(view(), Qt::LeftButton, {}, emptyPart);
    QTest::qWait(0);
    EXPECT_EQ(savings, 0);
}

TEST_F(PanelControllerTest, TheAppearanceIsTheUsersChoice) {
    const auto ground = [this] {
        QTest::qWait(0);
        return view()->grabWindow().pixelColor(390, 6);
    };
    panel.setAppearance(PanelController::Appearance::dark);
    open();
    EXPECT_LT(ground().lightness(), 100);
    panel.setAppearance(PanelController::Appearance::light);
    EXPECT_GT(ground().lightness(), 200);
}

TEST_F(PanelControllerTest, OnlyThePanelTakesThePointerAndNotItsShadow) {
    open();
    EXPECT_EQ(surface.inputArea, QRect(QPoint(0, 0), view()->size()));
    panel.hide();
    surface.blends = true;
    open();
    EXPECT_EQ(surface.inputArea.size(), PanelController::panelSize);
    EXPECT_EQ(surface.inputArea.center(), QRect(QPoint(0, 0), view()->size()).center());
}

TEST_F(PanelControllerTest, AMomentBehindItsClosingItRests) {
    int rests = 0;
    panel.onRest = [&] { ++rests; };
    open();
    panel.hide();
    EXPECT_EQ(rests, 0) << "a paste comes first";
    panel.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(rests, 0) << "it is open again";
    panel.hide();
    runUntil([&] { return rests == 1; });
}

TEST_F(PanelControllerTest, ItFadesInWhereWindowsBlend) {
    surface.blends = true;
    panel.show();
    EXPECT_LT(view()->opacity(), 1.0);
    EXPECT_TRUE(panel.model().isPresented()) << "keys count from the start";
    EXPECT_TRUE(QTest::qWaitFor([&] { return view()->opacity() == 1.0; }));
}

TEST_F(PanelControllerTest, ItIsThereAtOnceForThoseWhoWantNoMotionAndWhereWindowsDoNotBlend) {
    open();
    EXPECT_EQ(view()->opacity(), 1.0);
    panel.hide();
    surface.blends = true;
    surface.stillness = true;
    open();
    EXPECT_EQ(view()->opacity(), 1.0);
}

TEST_F(PanelControllerTest, HiddenWhileItFadesItIsWholeTheNextTime) {
    surface.blends = true;
    panel.show();
    panel.hide();
    EXPECT_EQ(view()->opacity(), 1.0);
    surface.blends = false;
    open();
    EXPECT_EQ(view()->opacity(), 1.0);
}

TEST_F(PanelControllerTest, WhatTakesThePointerIsToldOnceTheWindowStandsOnItsDisplay) {
    open();
    EXPECT_TRUE(surface.isShapedSincePresented) << "another display may count in other pixels";
}

TEST_F(PanelControllerTest, NearHomeItSlidesUnlessMotionIsUnwelcome) {
    surface.stillness = true;
    open();
    dragTo(home().topLeft() + QPoint(15, 10));
    ASSERT_TRUE(QTest::qWaitFor([&] { return savings == 1; }));
    EXPECT_EQ(view()->position(), home().topLeft());
}

TEST_F(PanelControllerTest, WithoutThePermissionToPressKeysAButtonAsksForIt) {
    target.trusted = false;
    open();
    const QString offer = QStringLiteral("Allow Vellumry to paste for you");
    ASSERT_TRUE(texts().contains(offer));
    QTest::mouseClick(view(), Qt::LeftButton, {}, middleOf(itemWithText(offer)));
    EXPECT_EQ(accessRequests, 1);
    panel.hide();
    target.trusted = true;
    open();
    EXPECT_FALSE(texts().contains(offer));
}

TEST_F(PanelControllerTest, WhenItsDisplayGoesItComesToTheOneThatIsLeft) {
    panel.show();
    const QRect before = view()->geometry();
    // The display under it has gone; what is left is smaller and elsewhere.
    surface.screen = ScreenPlace{QStringLiteral("two"), QRect(2000, 0, 1280, 800), QRect(2000, 30, 1280, 770)};
    Q_EMIT qGuiApp->screenRemoved(QGuiApplication::primaryScreen());
    EXPECT_TRUE(eventually([&] { return view()->geometry() != before; }));
    EXPECT_TRUE(surface.screen->visible.contains(view()->geometry()));
    EXPECT_TRUE(panel.isVisible());
}

TEST_F(PanelControllerTest, AChangeOfTheDisplaysLeavesAPanelAloneThatIsInSight) {
    panel.show();
    const QRect before = view()->geometry();
    Q_EMIT qGuiApp->screenRemoved(QGuiApplication::primaryScreen());
    // Behind what was asked for by the change.
    bool isLater = false;
    QTimer::singleShot(0, view(), [&isLater] { isLater = true; });
    ASSERT_TRUE(eventually([&] { return isLater; }));
    EXPECT_EQ(view()->geometry(), before);
}

TEST_F(PanelControllerTest, LargerTextsGetALargerPanelWhileItIsOpenToo) {
    views.setDesktopLook({.textScale = 1.5});
    open();
    EXPECT_EQ(surface.frames.first().size(), QSize(1170, 750));
    EXPECT_EQ(surface.inputArea.size(), QSize(1170, 750));
    views.setDesktopLook({.textScale = 1});
    EXPECT_EQ(view()->geometry(), home());
    EXPECT_EQ(surface.inputArea.size(), PanelController::panelSize);
    views.setDesktopLook({.textScale = 0.8});
    EXPECT_EQ(view()->size(), PanelController::panelSize);
}

TEST_F(PanelControllerTest, ThePanelIsNoLargerThanItsDisplay) {
    surface.screen->visible = QRect(0, 30, 1366, 738);
    open();
    views.setDesktopLook({.textScale = 3});
    EXPECT_EQ(view()->size(), surface.screen->visible.size());
    EXPECT_EQ(surface.inputArea.size(), surface.screen->visible.size());
}
