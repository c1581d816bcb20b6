// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/ViewEngine.h"

#include <QColor>
#include <QQmlComponent>
#include <QQmlEngine>
#include <gtest/gtest.h>
#include <memory>

using namespace vellumry;

namespace {

class ViewsTest : public ::testing::Test {
protected:
    /// An object of our module's own types.
    std::unique_ptr<QObject> make(const QByteArray& source) {
        QQmlComponent component(&views.engine());
        component.setData("import QtQuick\nimport Vellumry.Views\n" + source, QUrl());
        std::unique_ptr<QObject> made(component.create());
        EXPECT_TRUE(made) << component.errorString().toStdString();
        return made;
    }

    ViewEngine views;
};

} // namespace

TEST_F(ViewsTest, AViewFollowsTheChoiceBetweenLightAndDark) {
    views.setAppearance(ViewEngine::Appearance::light);
    const auto item = make("Item { property color ground: Theme.ground; property color text: Theme.text }");
    EXPECT_GT(item->property("ground").value<QColor>().lightness(), item->property("text").value<QColor>().lightness());
    views.setAppearance(ViewEngine::Appearance::dark);
    EXPECT_LT(item->property("ground").value<QColor>().lightness(), item->property("text").value<QColor>().lightness());
}

TEST_F(ViewsTest, TwoEnginesFollowTheirOwnChoice) {
    ViewEngine other;
    other.setAppearance(ViewEngine::Appearance::dark);
    views.setAppearance(ViewEngine::Appearance::light);
    const auto item = make("Item { property bool dark: Views.dark }");
    EXPECT_FALSE(item->property("dark").toBool());
    other.setAppearance(ViewEngine::Appearance::light);
    views.setAppearance(ViewEngine::Appearance::dark);
    EXPECT_TRUE(item->property("dark").toBool());
}

TEST_F(ViewsTest, WordsAreThoseOfTheKeyWithoutACatalogue) {
    const auto item = make("Item { property string said: Views.words(\"No clips match “\") }");
    EXPECT_EQ(item->property("said").toString(), QStringLiteral("No clips match “"));
}

TEST_F(ViewsTest, ALabelNeverTakesTextForMarkup) {
    const auto label = make("Label { text: \"<b>bold</b>\" }");
    EXPECT_EQ(label->property("textFormat").toInt(), 0) << "plain";
}

TEST_F(ViewsTest, TheDesktopsLookCountsWhereTheUserHasNotChosenAnother) {
    const auto item = make("Item { property bool dark: Views.dark; property color accent: Theme.accent }");
    views.setDesktopLook({.isDark = true});
    EXPECT_TRUE(item->property("dark").toBool());
    views.setDesktopLook({.isDark = false, .accent = 0xe62d42});
    EXPECT_FALSE(item->property("dark").toBool());
    EXPECT_LT(item->property("accent").value<QColor>().blue(), item->property("accent").value<QColor>().red());
    views.setAppearance(ViewEngine::Appearance::dark);
    EXPECT_TRUE(item->property("dark").toBool());
}

TEST_F(ViewsTest, TextsAndRowsGrowByTheDesktopsTextScaleWithinReason) {
    const auto item = make("Item { property int size: Theme.titleSize; property int row: Theme.rowHeight }");
    const int size = item->property("size").toInt();
    const int row = item->property("row").toInt();
    views.setDesktopLook({.textScale = 2});
    EXPECT_EQ(item->property("size").toInt(), 2 * size);
    EXPECT_GT(item->property("row").toInt(), row);
    views.setDesktopLook({.textScale = 40});
    EXPECT_EQ(item->property("size").toInt(), 3 * size);
    views.setDesktopLook({});
    EXPECT_EQ(item->property("size").toInt(), size);
}

TEST_F(ViewsTest, ADesktopThatWantsLessMotionIsHeard) {
    // Asked anew by each view.
    const auto isStill = [this] {
        return make("Item { property bool isStill: Views.reducesMotion() }")->property("isStill").toBool();
    };
    EXPECT_FALSE(isStill());
    views.setDesktopLook({.reducesMotion = true});
    EXPECT_TRUE(isStill());
}
