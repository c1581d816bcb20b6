// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/windows/XlibConnection.h"

#include <QObject>
#include <chrono>
#include <functional>
#include <vector>

namespace vellumry {

/// Remembers the window that had the keyboard before a panel of ours took it, and tells whether it is back there. Main
/// thread.
class X11Focus : public QObject {
    Q_OBJECT
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    enum class Standing {
        away,     ///< no window, our own or another one has it
        returned, ///< it is in the remembered program window
        gone,     ///< the remembered window does not exist any more
    };

    explicit X11Focus(std::shared_ptr<XlibConnection> connection, Clock clock = std::chrono::steady_clock::now);
    ~X11Focus() override;

    /// Remembers the window that has the keyboard now, unless one is remembered already.
    void remember();
    /// Gives the keyboard back to the remembered window, if `ours` still has it; where that window is gone, asks the
    /// window manager to activate the one that was active. Any other window that has it keeps it. `time` is the
    /// server's time of what ended the panel, if that was a click: a window that gets the keyboard by the same click
    /// keeps it, whichever of the two requests comes first.
    void giveBack(XWindow ours, unsigned long time = 0);
    void forget();
    /// Whether what is remembered is an X11 program's window: nothing, a window of Wayland, or one of the window
    /// manager's own, is not.
    [[nodiscard]] bool isProgramRemembered() { return isRemembered() && m_client != 0; }

    /// Where the keyboard is. Without a remembered window, and a while after it was given back, any window will do:
    /// the user may have gone on to another window, and a key of ours pressed there is meant for it.
    [[nodiscard]] Standing standing();

Q_SIGNALS:
    /// The keyboard or the active window may have moved.
    void moved();

private:
    void handleEvent(XEvent* event);
    [[nodiscard]] bool isSameClient(XWindow focus);
    [[nodiscard]] bool isRemembered();
    /// Asks the window manager to activate the window that was active.
    void activate();
    void hold();
    [[nodiscard]] bool isPointerOn(XWindow window) const;
    [[nodiscard]] std::vector<XWindow> topLevels() const;
    [[nodiscard]] XWindow topLevelOf(XWindow window) const;

    std::shared_ptr<XlibConnection> m_connection;
    Clock m_clock;
    /// What had the focus: a window or 1, the window under the pointer. 0 when nothing is remembered.
    XWindow m_focus = 0;
    int m_revertTo = 0;
    XWindow m_client = 0;
    XWindow m_active = 0;
    std::optional<std::chrono::steady_clock::time_point> m_givenBack;
    std::vector<XWindow> m_topLevels; ///< there when the keyboard was given back
    int m_holdsLeft = 0; ///< how often a window that the pointer came to lie on may still be told to let go
};

} // namespace vellumry
