// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace vellumry {

class WaylandConnection;

/// A compositor that crashes takes its programs along, but on Plasma, which starts another one and has Qt make the
/// windows anew on it (QT_WAYLAND_RECONNECT): our own connections would stay broken.
namespace compositorreturn {

/// From the end of `connection` on: starts the program again in the same process once a compositor answers, and ends it
/// where none does within a minute. Main thread.
void follow(const WaylandConnection& connection);

} // namespace compositorreturn

} // namespace vellumry
