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
