// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/ThemeColors.h"

#include <algorithm>
#include <cmath>

namespace vellumry {

namespace {

constexpr double textContrast = 4.5;
constexpr double highTextContrast = 7;

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor mixed(const QColor& ground, const QColor& color, double share) {
    const auto part = [share](int from, int to) { return static_cast<int>(std::lround(from + (to - from) * share)); };
    return {part(ground.red(), color.red()), part(ground.green(), color.green()), part(ground.blue(), color.blue())};
}

ThemeColors light() {
    ThemeColors colors;
    colors.ground = QColor(0xfafafb);
    colors.edge = QColor(0xd2d3d8);
    colors.line = QColor(0xe6e6ea);
    colors.text = QColor(0x19191c);
    colors.secondary = QColor(0x5c5d65);
    colors.accent = QColor(0x1654c4);
    colors.selected = QColor(0xdbe7fc);
    colors.hovered = QColor(0xf0f0f3);
    colors.tile = QColor(0xececf0);
    colors.selectedTile = QColor(0xcfdffa);
    colors.cap = QColor(0xf0f0f3);
    colors.capEdge = QColor(0xcfd0d6);
    colors.thumb = QColor(0x8f9098);
    colors.success = QColor(0x177a3e);
    colors.warning = QColor(0x8a5000);
    colors.danger = QColor(0xb3261e);
    colors.button = QColor(0x1654c4);
    colors.pressedButton = QColor(0x10409a);
    colors.buttonText = QColor(0xffffff);
    colors.card = QColor(0xffffff);
    colors.shade = QColor(0x20, 0x20, 0x24, 0x66);
    colors.paper = QColor(0xffffff);
    return colors;
}

ThemeColors dark() {
    ThemeColors colors;
    colors.ground = QColor(0x1f2024);
    colors.edge = QColor(0x3c3d44);
    colors.line = QColor(0x2f3036);
    colors.text = QColor(0xf1f1f4);
    colors.secondary = QColor(0xa8a9b2);
    colors.accent = QColor(0x7db0ff);
    colors.selected = QColor(0x2b3a55);
    colors.hovered = QColor(0x2a2b30);
    colors.tile = QColor(0x33343b);
    colors.selectedTile = QColor(0x374866);
    colors.cap = QColor(0x2e2f35);
    colors.capEdge = QColor(0x4a4b53);
    colors.thumb = QColor(0x8f9098);
    colors.success = QColor(0x5fd08a);
    colors.warning = QColor(0xffb454);
    colors.danger = QColor(0xff8f87);
    colors.button = QColor(0x7db0ff);
    colors.pressedButton = QColor(0xa3c8ff);
    colors.buttonText = QColor(0x10203c);
    colors.card = QColor(0x26272c);
    colors.shade = QColor(0, 0, 0, 0x99);
    colors.paper = QColor(0xd9d9de);
    return colors;
}

/// The desktop's accent in the places of ours. Its shade is the desktop's, how light it is depends on what lies below.
void tint(ThemeColors& colors, const QColor& accent, bool isDark) {
    colors.selected = mixed(colors.ground, accent, isDark ? 0.26 : 0.15);
    // A light accent in the dark, or a dark one in the light, must leave the text its contrast.
    for (double share = 0.26; contrastOf(colors.selected, colors.secondary) < textContrast && share > 0; share -= 0.02)
        colors.selected = mixed(colors.ground, accent, share);
    colors.selectedTile = mixed(colors.selected, accent, isDark ? 0.10 : 0.08);
    colors.accent = accent;
    for (const QColor& ground : {colors.selectedTile, colors.selected, colors.card, colors.ground})
        colors.accent = legibleOn(ground, colors.accent, textContrast);
    colors.button = isDark ? colors.accent : legibleOn(colors.buttonText, accent, textContrast);
    colors.buttonText =
        isDark ? legibleOn(colors.button, mixed(QColor(Qt::black), accent, 0.15), textContrast) : QColor(Qt::white);
    colors.pressedButton = mixed(colors.button, isDark ? QColor(Qt::white) : QColor(Qt::black), 0.22);
}

/// High contrast: no text or symbol is fainter than the guidelines ask for.
void strengthen(ThemeColors& colors, bool isDark) {
    const QColor strongest = isDark ? QColor(Qt::white) : QColor(Qt::black);
    colors.ground = isDark ? QColor(Qt::black) : QColor(Qt::white);
    colors.card = colors.ground;
    colors.text = strongest;
    for (QColor* ground : {&colors.hovered, &colors.tile, &colors.cap})
        *ground = mixed(colors.ground, strongest, 0.08);
    colors.selected = mixed(colors.ground, colors.accent, 0.18);
    colors.selectedTile = mixed(colors.ground, colors.accent, 0.24);
    for (QColor* edge : {&colors.edge, &colors.line, &colors.capEdge})
        *edge = mixed(colors.ground, strongest, 0.6);
    colors.thumb = mixed(colors.ground, strongest, 0.7);
    for (QColor* spoken : {&colors.secondary, &colors.accent, &colors.success, &colors.warning, &colors.danger})
        *spoken = legibleOn(colors.selectedTile, *spoken, highTextContrast);
    colors.button = colors.accent;
    colors.buttonText = isDark ? QColor(Qt::black) : QColor(Qt::white);
    colors.pressedButton = mixed(colors.button, strongest, 0.3);
}

} // namespace

double contrastOf(const QColor& first, const QColor& second) {
    const double one = luminance(first);
    const double other = luminance(second);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

QColor legibleOn(const QColor& ground, const QColor& color, double least) {
    constexpr int steps = 100;
    if (contrastOf(ground, color) >= least)
        return color;
    // Away from the ground: there is always enough room on one of its sides for what text needs.
    const bool getsLighter = contrastOf(ground, Qt::white) > contrastOf(ground, Qt::black);
    const QColor end = getsLighter ? QColor(Qt::white) : QColor(Qt::black);
    const QColor hue = color.toHsl();
    for (int step = 1; step < steps; ++step) {
        const double lightness = hue.lightnessF() + (end.lightnessF() - hue.lightnessF()) * step / steps;
        const QColor tried =
            QColor::fromHslF(std::max(0.0F, hue.hslHueF()), hue.hslSaturationF(), float(lightness)).toRgb();
        if (contrastOf(ground, tried) >= least)
            return tried;
    }
    return end;
}

ThemeColors ThemeColors::of(const ColorChoice& choice) {
    ThemeColors colors = choice.isDark ? dark() : light();
    if (choice.accent)
        tint(colors, choice.accent->toRgb(), choice.isDark);
    if (choice.isHighContrast)
        strengthen(colors, choice.isDark);
    return colors;
}

} // namespace vellumry
