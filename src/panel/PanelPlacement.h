// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>
#include <QRectF>
#include <optional>
#include <utility>

/// Where the panel stands on a display. Coordinates are device-independent pixels with y pointing down; fractions are
/// those of the panel's centre in the display's visible frame, from 0 to 1, with y pointing up as they are stored.
/// Pure; any thread.
namespace vellumry::placement {

using Fractions = std::pair<double, double>;

/// Centred, the top edge 16 % of the visible height below the top, at least 24 and never closer than 12 to the bottom.
[[nodiscard]] QRectF defaultFrame(QSizeF size, QRectF visible);

/// The frame moved inside `visible`, its size kept. What is wider begins at the left edge; what is taller keeps its top
/// in view.
[[nodiscard]] QRectF clampedFrame(QRectF frame, QRectF visible);

/// Where a panel with a remembered place opens; the default without one.
[[nodiscard]] QRectF placement(std::optional<Fractions> saved, QSizeF size, QRectF visible);

/// What to remember of a panel that was dragged to `frame`: nothing when that is within 28 of the default, or when the
/// display has no area.
[[nodiscard]] std::optional<Fractions> rememberable(QRectF frame, QRectF visible);

} // namespace vellumry::placement
