// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <deque>
#include <mutex>

namespace vellumry {

/// The paste keys that the program presses itself, between the pressing and their coming back as events. X tells that a
/// key was pressed by a program, not by which one, and remote desktops press their users' keys the same way. Any
/// thread.
class InjectedPresses {
public:
    using Instant = std::chrono::steady_clock::time_point;
    /// An event that has not come by then went elsewhere, to a menu that holds the keyboard for instance.
    static constexpr std::chrono::milliseconds lifetime{500};

    /// Before the key is pressed.
    void announce(Instant now);
    /// A key came that a program pressed. True when it was us; true once for each that was announced.
    [[nodiscard]] bool claim(Instant now);
    /// Nothing that was announced so far will come: the listening had ended when it was pressed.
    void forget();

private:
    std::mutex m_mutex;
    std::deque<Instant> m_announced; ///< guarded, oldest first
};

} // namespace vellumry
