// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/look/SaidLook.h"

namespace vellumry {

DesktopLook lookOf(const std::vector<SaidLook>& places) {
    DesktopLook look;
    for (const SaidLook& place : places) {
        look.isDark = look.isDark ? look.isDark : place.isDark;
        look.accent = look.accent ? look.accent : place.accent;
    }
    for (auto place = places.rbegin(); place != places.rend(); ++place) {
        look.isHighContrast = place->isHighContrast.value_or(look.isHighContrast);
        look.reducesMotion = place->reducesMotion.value_or(look.reducesMotion);
        look.textScale = place->textScale.value_or(look.textScale);
    }
    return look;
}

std::optional<double> textScaleOf(double points) {
    constexpr double leastUsual = 10;
    constexpr double mostUsual = 11;
    constexpr double largest = 100;
    if (!(points > 0) || points > largest)
        return std::nullopt;
    if (points < leastUsual)
        return points / leastUsual;
    return points <= mostUsual ? 1 : points / mostUsual;
}

SaidLook lookOfNames(const QString& theme, const QString& font) {
    SaidLook said;
    if (!theme.isEmpty()) {
        said.isDark = theme.contains(QLatin1String("dark"), Qt::CaseInsensitive) ||
                      theme.contains(QLatin1String("inverse"), Qt::CaseInsensitive);
        said.isHighContrast = theme.startsWith(QLatin1String("HighContrast"), Qt::CaseInsensitive);
    }
    const qsizetype blank = font.lastIndexOf(u' ');
    bool isNumber = false;
    const double points = font.mid(blank + 1).toDouble(&isNumber);
    if (blank > 0 && isNumber)
        said.textScale = textScaleOf(points);
    return said;
}

} // namespace vellumry
