// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelPlacement.h"

#include <algorithm>
#include <cmath>

namespace vellumry::placement {

namespace {

constexpr double topShare = 0.16;
constexpr double leastTopMargin = 24;
constexpr double bottomMargin = 12;
constexpr double snapDistance = 28;

} // namespace

QRectF defaultFrame(QSizeF size, QRectF visible) {
    const double x = std::round(visible.center().x() - size.width() / 2);
    const double fromTop = visible.top() + std::max(visible.height() * topShare, leastTopMargin);
    const double lowest = visible.bottom() - bottomMargin - size.height();
    return {QPointF(x, std::round(std::min(fromTop, lowest))), size};
}

QRectF clampedFrame(QRectF frame, QRectF visible) {
    double x = std::min(std::max(frame.left(), visible.left()), visible.right() - frame.width());
    double y = std::max(std::min(frame.top(), visible.bottom() - frame.height()), visible.top());
    if (frame.width() > visible.width())
        x = visible.left();
    if (frame.height() > visible.height())
        y = visible.top();
    return {QPointF(x, y), frame.size()};
}

QRectF placement(std::optional<Fractions> saved, QSizeF size, QRectF visible) {
    if (!saved)
        return defaultFrame(size, visible);
    QRectF frame(QPointF(), size);
    frame.moveCenter(
        {visible.left() + visible.width() * saved->first, visible.bottom() - visible.height() * saved->second});
    return clampedFrame(frame, visible);
}

std::optional<Fractions> rememberable(QRectF frame, QRectF visible) {
    if (visible.width() <= 0 || visible.height() <= 0)
        return std::nullopt;
    const QPointF away = frame.center() - defaultFrame(frame.size(), visible).center();
    if (std::hypot(away.x(), away.y()) <= snapDistance)
        return std::nullopt;
    const QPointF centre = clampedFrame(frame, visible).center();
    return Fractions{std::clamp((centre.x() - visible.left()) / visible.width(), 0.0, 1.0),
                     std::clamp((visible.bottom() - centre.y()) / visible.height(), 0.0, 1.0)};
}

} // namespace vellumry::placement
