// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/selection/XcbConnection.h"

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

namespace vellumry {

/// Our part as the session's clipboard manager, where there is no other: programs that are about to quit ask the owner
/// of CLIPBOARD_MANAGER to keep their copy (freedesktop clipboard-manager convention, SAVE_TARGETS) and wait for the
/// answer. It comes when capture has done with that copy, and says what is true: a copy that was not taken is refused.
/// Pasteboard thread; time is handed in.
class ClipboardManager {
public:
    using Instant = std::chrono::steady_clock::time_point;
    using Duration = std::chrono::milliseconds;
    using TimeWaiter = std::function<void(std::optional<xcb_timestamp_t>)>;

    /// `askForServerTime` calls back with the server's time, or with nothing when the connection ends. After `limit` a
    /// program that waits is refused.
    ClipboardManager(XcbConnection& connection, std::function<void(TimeWaiter)> askForServerTime, Duration limit)
        : m_connection(connection)
        , m_askForServerTime(std::move(askForServerTime))
        , m_limit(limit) {}

    /// Takes the part when it is free. Called with the `selection` that stands for it.
    void start(xcb_atom_t selection);
    /// The part is free again.
    void takePart();
    [[nodiscard]] bool isPart(xcb_atom_t selection) const { return selection == m_selection; }
    /// Told when the part has become ours.
    std::function<void(xcb_timestamp_t)> onPartTaken = [](xcb_timestamp_t) {};

    /// The clipboard has another owner: what is waited for no longer matters. `isSafe` when that is us: our own
    /// contents last.
    void ownerChanged(bool isSafe);
    /// Capture has done with what the present owner offers.
    void settle(bool wasKept);
    /// Answers a SAVE_TARGETS now or later.
    void handleSaveRequest(const xcb_selection_request_event_t& request, Instant now);

    void expire(Instant now);
    [[nodiscard]] std::optional<Instant> nextDeadline() const;

private:
    struct Waiting {
        xcb_selection_request_event_t request;
        Instant overdue;
    };

    void answer(const xcb_selection_request_event_t& request, bool wasKept);
    void answerAll(bool wasKept);
    void announce(xcb_timestamp_t time);

    XcbConnection& m_connection;
    std::function<void(TimeWaiter)> m_askForServerTime;
    Duration m_limit;
    xcb_atom_t m_selection = XCB_ATOM_NONE;
    std::optional<bool> m_wasKept; ///< of what is on the clipboard; nothing while capture is at it
    std::vector<Waiting> m_waiting;
};

} // namespace vellumry
