// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/LogoMotion.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vellumry::LogoMotion {

namespace {

/// How far `seconds` is on the way from `begin` to `end`.
double share(double seconds, double begin, double end) {
    return std::clamp((seconds - begin) / (end - begin), 0.0, 1.0);
}

/// Quick at first, and to a soft stop.
double eased(double share) {
    return 1 - std::pow(1 - share, 3);
}

/// Up and down again.
double bump(double share) {
    return std::sin(share * std::numbers::pi);
}

} // namespace

Frame frameAt(double seconds) {
    if (seconds >= duration)
        return {};
    Frame frame;
    frame.tile = eased(share(seconds, 0, 0.5));
    frame.clips = eased(share(seconds, 0.25, 0.85));
    frame.head = eased(share(seconds, 0.8, 1.3));
    const double first = bump(share(seconds, 1.5, 1.8));
    const double second = bump(share(seconds, 1.85, 2.15));
    frame.peck = std::max(first, second);
    frame.tap = std::max(bump(share(seconds, 1.62, 1.86)), bump(share(seconds, 1.97, 2.25)));
    frame.eyeOpen = 1 - bump(share(seconds, 2.6, 2.8));
    return frame;
}

} // namespace vellumry::LogoMotion
