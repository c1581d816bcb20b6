// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/ViewEngine.h"

#include <QColor>
#include <QQmlComponent>
#include <QQmlEngine>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <tuple>

using namespace vellumry;

namespace {

struct Pair {
    const char* front;
    const char* ground;
    double least;
};

constexpr double ofText = 4.5;
constexpr double ofParts = 3.0;

constexpr Pair pairs[] = {
    {"text", "ground", ofText},        {"text", "selected", ofText},
    {"text", "hovered", ofText},       {"secondary", "ground", ofText},
    {"secondary", "selected", ofText}, {"secondary", "hovered", ofText},
    {"secondary", "cap", ofText},      {"accent", "ground", ofText},
    {"accent", "selected", ofText},    {"accent", "selectedTile", ofParts},
    {"warning", "ground", ofText},     {"warning", "selected", ofText},
    {"success", "ground", ofText},     {"danger", "ground", ofText},
    {"buttonText", "button", ofText},  {"secondary", "tile", ofParts},
    {"thumb", "ground", ofParts},      {"buttonText", "pressedButton", ofText},
    {"text", "card", ofText},          {"secondary", "card", ofText},
    {"accent", "card", ofText},        {"text", "tile", ofText},
    {"text", "cap", ofText},
};

struct Chosen {
    const char* name;
    std::optional<QColor> accent;
};

/// Ours, those that desktops offer, and unreadable ones.
const Chosen accents[] = {
    {"Ours", {}},           {"Blue", 0xff3584e4U},   {"Teal", 0xff2190a4U},
    {"Green", 0xff3a944aU}, {"Yellow", 0xffc88800U}, {"Orange", 0xffed5b00U},
    {"Red", 0xffe62d42U},   {"Pink", 0xffd56199U},   {"Purple", 0xff9141acU},
    {"Slate", 0xff6f8396U}, {"Breeze", 0xff3daee9U}, {"PureYellow", 0xffffff00U},
    {"White", 0xffffffffU}, {"Black", 0xff000000U},  {"PureBlue", 0xff0000ffU},
    {"Lime", 0xff00ff00U},
};

std::string nameOf(const std::tuple<bool, bool, Chosen>& look) {
    return std::string(std::get<0>(look) ? "Dark" : "Light") + (std::get<1>(look) ? "High" : "") +
           std::get<2>(look).name;
}

class Theme : public ::testing::TestWithParam<std::tuple<bool, bool, Chosen>> {
protected:
    QColor color(const char* name) {
        QQmlComponent component(&views.engine());
        component.setData("import QtQuick\nimport Vellumry.Views\nItem { property color it: Theme." + QByteArray(name) +
                              " }",
                          QUrl());
        const std::unique_ptr<QObject> item(component.create());
        return item->property("it").value<QColor>();
    }

    ViewEngine views;
};

} // namespace

TEST_P(Theme, EveryTextStandsOutFromItsGround) {
    const auto& [isDark, isHighContrast, chosen] = GetParam();
    DesktopLook look;
    look.isDark = isDark;
    look.isHighContrast = isHighContrast;
    if (chosen.accent)
        look.accent = chosen.accent->rgb() & 0xffffffU;
    views.setDesktopLook(look);
    for (const Pair& pair : pairs)
        EXPECT_GE(contrastOf(color(pair.front), color(pair.ground)), pair.least) << pair.front << " on " << pair.ground;
    // The chosen row is told by its bar, which is an accent.
    EXPECT_GE(contrastOf(color("accent"), color("ground")), ofParts);
    if (isHighContrast) {
        constexpr double ofStrongText = 7;
        for (const char* front : {"text", "secondary", "accent", "warning", "danger", "success"})
            EXPECT_GE(contrastOf(color(front), color("ground")), ofStrongText) << front;
        EXPECT_GE(contrastOf(color("edge"), color("ground")), ofParts);
        EXPECT_GE(contrastOf(color("capEdge"), color("ground")), ofParts);
    }
}

INSTANTIATE_TEST_SUITE_P(AllLooks, Theme,
                         ::testing::Combine(::testing::Bool(), ::testing::Bool(), ::testing::ValuesIn(accents)),
                         [](const auto& which) { return nameOf(which.param); });

TEST(ThemeColors, OursAreAsTheyWereDrawnAndAnAccentOfTheDesktopTintsThem) {
    EXPECT_EQ(ThemeColors::of({}).accent, QColor(0x16, 0x54, 0xc4));
    const ThemeColors orange = ThemeColors::of({.accent = QColor(0xed, 0x5b, 0x00)});
    EXPECT_NEAR(orange.accent.hslHueF(), QColor(0xed, 0x5b, 0x00).hslHueF(), 0.02);
    EXPECT_NE(orange.selected, ThemeColors::of({}).selected);
    EXPECT_EQ(orange.ground, ThemeColors::of({}).ground);
}

TEST(ThemeColors, ContrastIsThatOfTheGuidelines) {
    EXPECT_NEAR(contrastOf(Qt::white, Qt::black), 21, 0.01);
    EXPECT_NEAR(contrastOf(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
    EXPECT_EQ(contrastOf(Qt::red, Qt::red), 1);
}

TEST(ThemeColors, WhatIsLegibleStaysAsItIs) {
    EXPECT_EQ(legibleOn(Qt::white, QColor(0x10, 0x20, 0x80), 4.5), QColor(0x10, 0x20, 0x80));
    EXPECT_GE(contrastOf(Qt::white, legibleOn(Qt::white, Qt::yellow, 4.5)), 4.5);
    EXPECT_GE(contrastOf(Qt::black, legibleOn(Qt::black, QColor(0, 0, 0x80), 7)), 7);
}
