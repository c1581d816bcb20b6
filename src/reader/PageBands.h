// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <vector>

/// Cuts very large pages for reading. Finding the lines takes more than twice as long on twice the area and cannot be
/// cut short; in bands it is short, and the time for reading goes to the text. Pure functions; any thread.
namespace vellumry::pagebands {

/// A page with more pixels than this is cut.
constexpr qint64 largestWhole = 4'000'000;
/// What the bands of such a page have at most.
constexpr qint64 bandArea = 2'500'000;

/// Bands of the whole width that cover `page` (Grayscale8, dark on white) from the top to the bottom, cut where least
/// stands in the way: between lines, where there is such a place in the last third of a band. One for a page that is
/// not too large.
[[nodiscard]] std::vector<QRect> of(const QImage& page, qint64 wholeUpTo = largestWhole, qint64 area = bandArea);

} // namespace vellumry::pagebands
