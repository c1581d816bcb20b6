// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <xcb/xcb.h>

namespace vellumry {

class XcbConnection;

/// A window that takes drops by the X Drag and Drop protocol (XDND 3 to 5).
struct XdndTarget {
    xcb_window_t window = XCB_NONE;   ///< none: nothing there takes drops
    xcb_window_t receiver = XCB_NONE; ///< of the messages: the window, or its proxy
    quint32 version = 0;              ///< in which both speak
    bool operator==(const XdndTarget&) const = default;

    /// The uppermost one below a point of the root window, in its pixels; the root window itself where no other is.
    /// Windows whose input shape is empty are passed over by the server: our panel, and the picture of what is dragged.
    /// Asks the server, and waits for it.
    [[nodiscard]] static XdndTarget at(XcbConnection& connection, int x, int y);
};

} // namespace vellumry
