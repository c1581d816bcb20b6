// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// How the logo comes to life: a bird looks over the tile, pecks at the clips and blinks. Pure.
namespace vellumry::LogoMotion {

/// What the drawing is made of at one moment, each from 0 to 1.
struct Frame {
    double tile = 1;    ///< grown to its size
    double clips = 1;   ///< risen to their place
    double head = 1;    ///< the bird looks over the edge
    double peck = 0;    ///< bent down to the clips
    double tap = 0;     ///< what the beak strikes gives way
    double eyeOpen = 1; ///< shut for a blink
    bool operator==(const Frame&) const = default;
};

/// Seconds until nothing moves any more.
inline constexpr double duration = 3.2;

/// The frame at `seconds` since the beginning; from `duration` on the same one as without motion, which is `Frame()`.
[[nodiscard]] Frame frameAt(double seconds);

} // namespace vellumry::LogoMotion
