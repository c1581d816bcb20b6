// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/PanelSurface.h"

class QScreen;

/// The displays as panels see them, by Qt. Main thread.
namespace vellumry::waylandscreens {

/// Nothing for null.
[[nodiscard]] std::optional<ScreenPlace> placeOf(const QScreen* screen);
/// The one that holds most of `frame`; null without any.
[[nodiscard]] QScreen* withMostOf(const QRect& frame);

} // namespace vellumry::waylandscreens
