// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/wayland/windows/WaylandWindows.h"

#include <QObject>
#include <chrono>

namespace vellumry {

/// The window that had the keyboard before a panel of ours took it, and whether it is back there. The compositor gives
/// it back by itself. Main thread.
class WaylandFocus final : public QObject {
    Q_OBJECT
public:
    enum class Standing {
        away,     ///< it is in another window, one of ours, or none
        returned, ///< it is in the remembered window
        gone,     ///< the remembered window does not exist any more
    };

    /// `windows` may be null: then it is back as soon as we have let go of it.
    explicit WaylandFocus(std::shared_ptr<WaylandWindows> windows);

    /// Remembers the window that has the keyboard now, unless one is remembered already.
    void remember();
    /// The panel has gone.
    void giveBack();
    /// The compositor has been told that our windows are gone. Without a remembered window, and a while after the
    /// keyboard was given back, any window that has it will do: the user may have gone on, and a key of ours is meant
    /// for that one.
    [[nodiscard]] Standing standing();
    /// The window that has the keyboard, or had it last; null when that is not known.
    [[nodiscard]] const WaylandWindows::Window* inFront() const;

Q_SIGNALS:
    /// The keyboard may have moved.
    void moved();

private:
    std::shared_ptr<WaylandWindows> m_windows;
    std::optional<WaylandWindows::ID> m_remembered;
    std::optional<std::chrono::steady_clock::time_point> m_givenBack;
};

/// Waits until the compositor has done what Qt asked of it: our other connections may be served first. A fraction of a
/// millisecond. Does nothing without Qt's Wayland platform.
void settleQt();

} // namespace vellumry
