// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/selection/XcbConnection.h"

#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <set>

namespace vellumry {

/// Asks the owner of a selection for representations and collects the answers, in one piece or in increments
/// (ICCCM 2.4, 2.7.2). Several may be under way at once. Pasteboard thread; time is handed in.
///
/// Owners answer one request after the other: the silence of one counts from when the request before it was answered.
/// An owner that is busy with a large table is not silent about the text that was asked for next.
///
/// An answer that is no longer awaited is still taken off the owner's hands for a while, unread, so that it is not
/// left hanging in the middle of a transfer.
class SelectionReader {
public:
    using Instant = std::chrono::steady_clock::time_point;
    using Duration = std::chrono::milliseconds;
    /// Nothing when the owner refused, fell silent or went away; a property that `isTooLong` when it gave more than was
    /// allowed.
    using Done = std::function<void(std::optional<XcbProperty>)>;

    struct Request {
        xcb_atom_t selection = XCB_ATOM_NONE;
        xcb_atom_t target = XCB_ATOM_NONE;
        xcb_timestamp_t time = XCB_CURRENT_TIME; ///< when the owner became the owner
        qint64 maxBytes = 0;
        Duration silence{};
        Instant deadline;
        Done done;
    };

    explicit SelectionReader(XcbConnection& connection)
        : m_connection(connection) {}

    void read(Request request, Instant now);
    void handleSelectionNotify(const xcb_selection_notify_event_t& event, Instant now);
    /// For new values of properties of our own window.
    void handleNewValue(xcb_atom_t property, Instant now);
    /// Sets the owner that is asked from now on. Gives up on everything that was asked of `selection` before: its next
    /// owner owes no answer yet.
    void setOwner(xcb_atom_t selection, xcb_window_t owner, Instant now);
    /// Whether a client has not answered yet, be it that the answer is awaited no more.
    [[nodiscard]] bool isOwedAnswersBy(xcb_window_t windowOfClient) const;
    /// Gives up on what is overdue.
    void expire(Instant now);
    /// When `expire` has something to do; nothing while nothing is under way.
    [[nodiscard]] std::optional<Instant> nextDeadline() const;

private:
    enum class Phase {
        asked,       ///< no answer yet
        incremental, ///< chunks are coming
        draining,    ///< chunks are coming that are not wanted any more
        abandoned,   ///< an answer may still come, or not; the property is not used again before
    };
    struct Transfer {
        Request request;
        Phase phase = Phase::asked;
        quint64 sequence = 0;
        quint64 ownership = 0; ///< which of the owners that came after each other was asked
        xcb_window_t owner = XCB_NONE;
        XcbProperty collected;
        Instant overdue; ///< the silence that counts
        [[nodiscard]] Instant deadline() const { return std::min(overdue, request.deadline); }
    };
    using Transfers = std::map<xcb_atom_t, Transfer>;

    [[nodiscard]] std::optional<xcb_atom_t> freeProperty();
    [[nodiscard]] bool isNextInTurn(const Transfer& transfer) const;
    void noteAnswer(const Transfer& answered, Instant now);
    [[nodiscard]] Transfers::iterator transferFor(const xcb_selection_notify_event_t& event);
    void beginIncremental(Transfers::iterator transfer, const XcbProperty& announcement, Instant now);
    void takeChunk(Transfers::iterator transfer, Instant now);
    void finish(Transfers::iterator transfer, std::optional<XcbProperty> outcome);
    void giveUp(Transfers::iterator transfer, Instant now, std::optional<XcbProperty> outcome = std::nullopt);

    XcbConnection& m_connection;
    Transfers m_transfers;         ///< by the property that the answer goes to
    std::set<xcb_atom_t> m_reused; ///< properties to which a late answer to another request may come
    quint64 m_sequence = 0;
    quint64 m_answered = 0;  ///< the sequence of the latest request that was answered
    quint64 m_ownership = 0; ///< counts the changes of owner
    xcb_window_t m_owner = XCB_NONE;
};

} // namespace vellumry
