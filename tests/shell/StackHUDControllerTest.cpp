// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/StackHUDController.h"

#include "WindowWorld.h"
#include "foundation/Localisation.h"
#include "paste/PasteStack.h"
#include "support/FakePasteboard.h"

#include <QTest>

using namespace vellumry;
using namespace std::chrono_literals;

namespace {

class StackHUDControllerTest : public WindowWorld {
protected:
    static PasteStack::Item item(const char* text) {
        PasteStack::Item made;
        made.payload.items = {PasteboardItem{{{QStringLiteral("public.utf8-plain-text"), QByteArray(text)}}, {}}};
        return made;
    }
    [[nodiscard]] QQuickItem* button(const QString& symbol) const {
        const auto items = window()->rootObject()->findChildren<QQuickItem*>();
        for (QQuickItem* found : items) {
            if (found->property("symbol").toString() == symbol)
                return found;
        }
        return nullptr;
    }
    void press(const QString& symbol) {
        const QQuickItem* found = button(symbol);
        ASSERT_NE(found, nullptr);
        QTest::mouseClick(window(), Qt::LeftButton, {}, found->mapToScene(QPointF(13, 13)).toPoint());
    }

    FakePasteboard pasteboard;
    PasteStack stack{pasteboard, [] { return false; },
                     [](std::vector<PasteboardItem> items, std::vector<FileRef>) { return std::optional(items); }};
    StackHUDController hud{stack, surface, views, std::unique_ptr<Alarm>(alarm)};
};

} // namespace

TEST_F(StackHUDControllerTest, AnEmptyStackSaysWhatToDo) {
    stack.start({});
    hud.show();
    EXPECT_EQ(texts(), QStringList{localised("Copy what you need, then ⌘V")});
}

TEST_F(StackHUDControllerTest, CountsWhatWaits) {
    stack.start({item("one"), item("two")});
    hud.show();
    EXPECT_TRUE(texts().contains(localised("%1 to paste").arg(QStringLiteral("<b>2</b>"))));
    (void)stack.pasteNext();
    EXPECT_TRUE(texts().contains(localised("%1 to paste").arg(QStringLiteral("<b>1</b>"))));
}

TEST_F(StackHUDControllerTest, SaysThatAllIsPasted) {
    stack.start({item("one")});
    hud.show();
    (void)stack.pasteNext();
    EXPECT_EQ(texts(), QStringList{localised("Pasted")});
    stack.start({item("one"), item("two"), item("three")});
    while (stack.pasteNext()) {
    }
    EXPECT_EQ(texts(), QStringList{localised("All %n pasted", 3)});
}

TEST_F(StackHUDControllerTest, StandsInTheMiddleOfTheTopAndFollowsItsContents) {
    surface.screen->visible = QRect(0, 24, 1600, 976);
    stack.start({});
    hud.show();
    const QRect hint = board();
    EXPECT_EQ(hint.top(), 30);
    EXPECT_NEAR(QRectF(hint).center().x(), 800, 0.5);
    stack.enqueue(item("one"));
    const QRect count = board();
    EXPECT_NE(count.width(), hint.width());
    EXPECT_EQ(count.top(), hint.top());
    EXPECT_NEAR(QRectF(count).center().x(), 800, 0.5);
    EXPECT_EQ(count.top(), 30);
}

TEST_F(StackHUDControllerTest, ChoosesTheDisplayAnewOnlyWhenItWasHidden) {
    surface.screen->visible = QRect(0, 24, 1600, 976);
    stack.start({});
    hud.show();
    const QRect first = surface.frames.last();
    surface.under = ScreenPlace{QStringLiteral("two"), QRect(1600, 0, 800, 600), QRect(1600, 0, 800, 600)};
    hud.show();
    EXPECT_EQ(window()->geometry(), first);
    hud.hide();
    pass(200ms);
    hud.show();
    EXPECT_NEAR(QRectF(window()->geometry()).center().x(), 2000, 0.5);
}

TEST_F(StackHUDControllerTest, FadesInAndOut) {
    hud.show();
    EXPECT_EQ(opacity(), 0.0);
    pass(100ms);
    EXPECT_NEAR(opacity(), 0.5, 0.2);
    pass(100ms);
    EXPECT_EQ(opacity(), 1.0);
    hud.hide();
    pass(199ms);
    EXPECT_TRUE(window()->isVisible());
    pass(1ms);
    EXPECT_FALSE(window()->isVisible());
}

TEST_F(StackHUDControllerTest, ShowingItDuringTheFadeWins) {
    hud.show();
    pass(200ms);
    hud.hide();
    hud.show(); // before the first frame of the fade
    pass(1000ms);
    EXPECT_TRUE(window()->isVisible());
    hud.hide();
    pass(100ms);
    hud.show();
    pass(1000ms);
    EXPECT_TRUE(window()->isVisible());
    EXPECT_EQ(opacity(), 1.0);
}

TEST_F(StackHUDControllerTest, WithoutMotionItComesAndGoesAtOnce) {
    surface.stillness = true;
    hud.show();
    EXPECT_EQ(opacity(), 1.0);
    hud.hide();
    EXPECT_FALSE(window()->isVisible());
}

TEST_F(StackHUDControllerTest, AFinishedStackStaysForAMoment) {
    stack.start({item("one")});
    hud.show();
    (void)stack.pasteNext();
    hud.showFinished();
    pass(1399ms);
    EXPECT_EQ(opacity(), 1.0);
    pass(1ms);
    pass(200ms);
    EXPECT_FALSE(window()->isVisible());
}

TEST_F(StackHUDControllerTest, ANewStackWithinThatMomentKeepsItUp) {
    hud.showFinished();
    pass(1000ms);
    hud.show();
    EXPECT_FALSE(alarm->isWaiting());
    pass(5000ms);
    EXPECT_TRUE(window()->isVisible());
}

TEST_F(StackHUDControllerTest, ItsButtonsActWhileItNeverTakesTheKeyboard) {
    int stops = 0;
    hud.onStop = [&] { ++stops; };
    stack.start({item("one"), item("two")});
    hud.show();
    EXPECT_FALSE(surface.lastClickThrough);
    press(QStringLiteral("arrow.up.arrow.down"));
    EXPECT_TRUE(stack.isReversed());
    EXPECT_TRUE(button(QStringLiteral("arrow.up.arrow.down"))->property("isOn").toBool());
    press(QStringLiteral("arrow.up.arrow.down"));
    EXPECT_FALSE(stack.isReversed());
    press(QStringLiteral("xmark"));
    EXPECT_EQ(stops, 1);
}

TEST_F(StackHUDControllerTest, ItsButtonsSayWhatTheyDo) {
    stack.start({item("one")});
    hud.show();
    const auto help = [this](const char* symbol) {
        return button(QString::fromLatin1(symbol))->property("help").toString();
    };
    EXPECT_EQ(help("arrow.up.arrow.down"), localised("Oldest first. Click for newest first"));
    stack.setReversed(true);
    EXPECT_EQ(help("arrow.up.arrow.down"), localised("Newest first. Click for oldest first"));
    EXPECT_EQ(help("xmark"), localised("Stop Paste Stack (⌃⌘S)"));
}

TEST_F(StackHUDControllerTest, WhereThePointerRestsOnAButtonWhatItDoesIsToldBelow) {
    stack.start({item("one")});
    hud.show();
    window()->rootObject()->setProperty("askingTime", 0);
    const auto help = [this] { return surface.adopted.size() < 2 ? nullptr : surface.adopted.at(1); };
    QTest::mouseMove(window(), QPoint(3, 3));
    EXPECT_EQ(help(), nullptr);
    QTest::mouseMove(window(), button(QStringLiteral("xmark"))->mapToScene(QPointF(13, 13)).toPoint());
    ASSERT_TRUE(QTest::qWaitFor([&] { return help() != nullptr && help()->isVisible(); }));
    EXPECT_EQ(shownTexts(qobject_cast<QQuickView*>(help())->rootObject()),
              QStringList{localised("Stop Paste Stack (⌃⌘S)")});
    EXPECT_TRUE(surface.lastClickThrough);
    EXPECT_GT(boardOf(*qobject_cast<QQuickView*>(help()), help()->geometry()).top(), board().bottom());
    QTest::mouseMove(window(), QPoint(3, 3));
    EXPECT_FALSE(help()->isVisible());
}

TEST_F(StackHUDControllerTest, AClickTakesTheHelpAway) {
    stack.start({item("one")});
    hud.show();
    window()->rootObject()->setProperty("askingTime", 0);
    QTest::mouseMove(window(), QPoint(3, 3));
    QTest::mouseMove(window(), button(QStringLiteral("arrow.up.arrow.down"))->mapToScene(QPointF(13, 13)).toPoint());
    ASSERT_TRUE(QTest::qWaitFor([&] { return surface.adopted.size() == 2 && surface.adopted.at(1)->isVisible(); }));
    press(QStringLiteral("arrow.up.arrow.down"));
    EXPECT_FALSE(surface.adopted.at(1)->isVisible());
    EXPECT_TRUE(stack.isReversed());
}

TEST_F(StackHUDControllerTest, ShowsWhatComesNextInTheOrderThatHolds) {
    stack.start({item("the first\n  of them"), item("the last")});
    hud.show();
    EXPECT_TRUE(texts().contains(QStringLiteral("the first of them")));
    stack.setReversed(true);
    EXPECT_TRUE(texts().contains(QStringLiteral("the last")));
    (void)stack.pasteNext();
    EXPECT_TRUE(texts().contains(QStringLiteral("the first of them")));
    (void)stack.pasteNext();
    EXPECT_EQ(texts().size(), 1) << "nothing comes next";
}

TEST_F(StackHUDControllerTest, WhatComesNextIsNamedByItsKindAndASecretIsNotShown) {
    PasteStack::Item secret = item("correct horse");
    secret.isSensitive = true;
    PasteStack::Item picture = item("");
    picture.kind = ClipKind::image;
    PasteStack::Item files = item("/a/letter.odt");
    files.kind = ClipKind::file;
    files.files = {FileRef{QStringLiteral("/a/letter.odt"), QStringLiteral("letter.odt"), std::nullopt}};
    stack.start({secret, picture, files, item("x")});
    hud.show();
    EXPECT_TRUE(texts().contains(localised("Hidden")));
    EXPECT_TRUE(texts().filter(QStringLiteral("horse")).isEmpty());
    (void)stack.pasteNext();
    EXPECT_TRUE(texts().contains(localised("Image")));
    (void)stack.pasteNext();
    EXPECT_TRUE(texts().contains(QStringLiteral("letter.odt")));
}

TEST_F(StackHUDControllerTest, ALongTextThatComesNextIsCutAndTheBarStaysSmall) {
    stack.start({item(QByteArray("words and more words ").repeated(50'000).constData()), item("x")});
    hud.show();
    EXPECT_LT(board().width(), 600);
    press(QStringLiteral("arrow.up.arrow.down"));
    EXPECT_TRUE(stack.isReversed()) << "its buttons stay where they are pressed";
}
