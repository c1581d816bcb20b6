// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ToastController.h"

#include "WindowWorld.h"

using namespace vellumry;
using namespace std::chrono_literals;

namespace {

class ToastControllerTest : public WindowWorld {
protected:
    void show(const QString& text) {
        toast.show({QStringLiteral("pin"), text, ToastMessage::Tone::info}, 2.2, surface.screen);
    }
    ToastController toast{surface, views, std::unique_ptr<Alarm>(alarm)};
};

} // namespace

TEST_F(ToastControllerTest, MakesNoWindowBeforeTheFirstMessage) {
    EXPECT_EQ(window(), nullptr);
}

TEST_F(ToastControllerTest, ShowsTheMessageForItsTimeAndVanishesAtOnce) {
    show(QStringLiteral("Pinned"));
    EXPECT_TRUE(window()->isVisible());
    EXPECT_EQ(texts(), QStringList{QStringLiteral("Pinned")});
    pass(2199ms);
    EXPECT_TRUE(window()->isVisible());
    pass(1ms);
    EXPECT_FALSE(window()->isVisible());
}

TEST_F(ToastControllerTest, FadesInWithinAThirdOfASecond) {
    show(QStringLiteral("Pinned"));
    EXPECT_EQ(opacity(), 0.0);
    pass(90ms);
    EXPECT_GT(opacity(), 0.1);
    EXPECT_LT(opacity(), 0.9);
    pass(90ms);
    EXPECT_EQ(opacity(), 1.0);
}

TEST_F(ToastControllerTest, IsThereAtOnceWhereWindowsCannotBlendOrMotionIsUnwelcome) {
    surface.blends = false;
    show(QStringLiteral("Pinned"));
    EXPECT_EQ(opacity(), 1.0);
    EXPECT_FALSE(window()->mask().isEmpty());
    surface.blends = true;
    surface.stillness = true;
    show(QStringLiteral("Unpinned"));
    EXPECT_EQ(opacity(), 1.0);
    EXPECT_TRUE(window()->mask().isEmpty());
}

TEST_F(ToastControllerTest, ASecondMessageReplacesTheFirstAndLastsItsFullTime) {
    show(QStringLiteral("Pinned"));
    pass(2000ms);
    show(QStringLiteral("Deleted"));
    EXPECT_EQ(texts(), QStringList{QStringLiteral("Deleted")});
    EXPECT_EQ(surface.adopted.size(), 1);
    pass(2199ms);
    EXPECT_TRUE(window()->isVisible());
    pass(1ms);
    EXPECT_FALSE(window()->isVisible());
}

TEST_F(ToastControllerTest, StandsInTheMiddleAboveTheBottomOfWhatIsVisible) {
    surface.screen->visible = QRect(100, 30, 1401, 900);
    show(QStringLiteral("Pinned"));
    const QRectF frame = lastBoard();
    EXPECT_NEAR(frame.center().x(), 800.5, 0.5);
    EXPECT_EQ(frame.bottom(), 930 - 72);
}

TEST_F(ToastControllerTest, WithoutADisplayItStandsWhereTheLastOneStood) {
    show(QStringLiteral("Pinned"));
    const QRect before = surface.frames.last();
    toast.show({QStringLiteral("pin"), QStringLiteral("Pinned"), ToastMessage::Tone::info}, 1, std::nullopt);
    EXPECT_EQ(surface.frames.last(), before);
    EXPECT_TRUE(window()->isVisible());
}

TEST_F(ToastControllerTest, NeverTakesThePointer) {
    show(QStringLiteral("Pinned"));
    EXPECT_TRUE(surface.lastClickThrough);
}

TEST_F(ToastControllerTest, ALongMessageStaysOnItsDisplay) {
    surface.screen = ScreenPlace{QStringLiteral("small"), QRect(0, 0, 480, 320), QRect(0, 0, 480, 320)};
    show(QStringLiteral("many words ").repeated(30));
    EXPECT_TRUE(surface.screen->visible.contains(surface.frames.last()));
}

TEST_F(ToastControllerTest, FollowsTheChoiceBetweenLightAndDark) {
    views.setAppearance(ViewEngine::Appearance::light);
    show(QStringLiteral("Pinned"));
    const QColor light = window()->rootObject()->property("color").value<QColor>();
    views.setAppearance(ViewEngine::Appearance::dark);
    EXPECT_LT(window()->rootObject()->property("color").value<QColor>().lightness(), light.lightness());
}

TEST_F(ToastControllerTest, AShadowLiesAroundItWhereWindowsAreTranslucent) {
    show(QStringLiteral("Pinned"));
    const QRect shadowed = surface.frames.last();
    EXPECT_GT(window()->rootObject()->property("shadowMargin").toInt(), 0);
    EXPECT_EQ(window()->rootObject()->size(), QSizeF(shadowed.size()));
    const QRect seen = lastBoard();
    surface.blends = false;
    show(QStringLiteral("Pinned"));
    EXPECT_EQ(window()->rootObject()->property("shadowMargin").toInt(), 0);
    EXPECT_EQ(surface.frames.last(), seen) << "the same place without one";
}
