// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

/// Prepares pictures of screens for a reader that was taught on paper: dark text on white, of a good size. Pure
/// functions; any thread.
namespace vellumry::darkonwhite {

/// The picture as Grayscale8 with every flat ground white and whatever differs from the ground around it dark, the more
/// the more it differs, faint text as dark as strong text. Light text on dark, text on coloured buttons and selected
/// rows, and text in colour all come out alike.
[[nodiscard]] QImage cleaned(const QImage& picture);

/// The median height in pixels of what looks like letters in a Grayscale8 picture of dark on white, which is about the
/// height of an "x"; 0 when there are none.
[[nodiscard]] int letterHeight(const QImage& picture);

/// How much a picture is enlarged so that its letters get the height that they are read best at: 1 to 3, and such that
/// no more than `maxArea` pixels result.
[[nodiscard]] double enlargement(int letterHeight, const QSize& size, double maxArea = 36'000'000);

} // namespace vellumry::darkonwhite
