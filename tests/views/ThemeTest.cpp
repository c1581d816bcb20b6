// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/ViewEngine.h"

#include <QColor>
#include <QQmlComponent>
#include <QQmlEngine>
#include <cmath>
#include <gtest/gtest.h>
#include <memory>

using namespace vellumry;

namespace {

double linear(double share) {
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// The contrast ratio of WCAG 2, from 1 to 21.
double contrast(const QColor& one, const QColor& other) {
    const double first = luminance(one);
    const double second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

struct Pair {
    const char* front;
    const char* ground;
    double least;
};

constexpr double ofText = 4.5;
constexpr double ofParts = 3.0;

constexpr Pair pairs[] = {
    {"text", "ground", ofText},          {"text", "selected", ofText},      {"text", "hovered", ofText},
    {"secondary", "ground", ofText},     {"secondary", "selected", ofText}, {"secondary", "hovered", ofText},
    {"secondary", "cap", ofText},        {"accent", "ground", ofText},      {"accent", "selected", ofText},
    {"accent", "selectedTile", ofParts}, {"warning", "ground", ofText},     {"warning", "selected", ofText},
    {"success", "ground", ofText},       {"buttonText", "button", ofText},  {"buttonText", "pressedButton", ofText},
    {"secondary", "tile", ofParts},      {"thumb", "ground", ofParts},
};

class Theme : public ::testing::TestWithParam<ViewEngine::Appearance> {
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
    views.setAppearance(GetParam());
    for (const Pair& pair : pairs)
        EXPECT_GE(contrast(color(pair.front), color(pair.ground)), pair.least) << pair.front << " on " << pair.ground;
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, Theme,
                         ::testing::Values(ViewEngine::Appearance::light, ViewEngine::Appearance::dark),
                         [](const auto& which) {
                             return which.param == ViewEngine::Appearance::light ? "Light" : "Dark";
                         });
