// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace vellumry {

class XlibConnection;

/// True when the X server is Xwayland: the session's own programs talk to a Wayland compositor, and only X11 programs
/// are within our reach. By the server's XWAYLAND extension (Xwayland 23.1), else by the session's environment.
[[nodiscard]] bool isWaylandSession(const XlibConnection& connection);

} // namespace vellumry
