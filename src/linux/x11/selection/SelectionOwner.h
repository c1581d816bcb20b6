// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/pasteboard/OfferedContents.h"
#include "linux/x11/selection/XcbConnection.h"

#include <chrono>
#include <map>
#include <optional>

namespace vellumry {

/// Answers requestors of a selection that is ours (ICCCM 2.2, 2.6, 2.7.2), many at once; what is long goes in
/// increments. Pasteboard thread; time is handed in. A reader that vanishes or stops taking costs nothing but its own
/// transfer; when there are too many transfers, the client with the most of them loses the one that has stood longest.
class SelectionOwner {
public:
    using Instant = std::chrono::steady_clock::time_point;
    using Duration = std::chrono::milliseconds;

    SelectionOwner(XcbConnection& connection, Duration stalledLimit)
        : m_connection(connection)
        , m_stalledLimit(stalledLimit) {}

    /// Serves `contents` for `selection` from now on; `since` is the server's time of the ownership. Null contents
    /// stand for a selection that has none, that of the clipboard manager, whose SAVE_TARGETS is answered elsewhere.
    void hold(xcb_atom_t selection, std::shared_ptr<const OfferedContents> contents, xcb_timestamp_t since);
    void release(xcb_atom_t selection);
    /// What is served for `selection`; null when nothing is.
    [[nodiscard]] std::shared_ptr<const OfferedContents> contents(xcb_atom_t selection) const;
    /// The server's time of our ownership, XCB_CURRENT_TIME when nothing is served.
    [[nodiscard]] xcb_timestamp_t since(xcb_atom_t selection) const;

    /// True when content bytes went out, not merely a list of names or a time.
    bool handleRequest(const xcb_selection_request_event_t& event, Instant now);
    /// The reader took a chunk.
    void handlePropertyDeleted(xcb_window_t window, xcb_atom_t property, Instant now);
    void handleWindowGone(xcb_window_t window);
    void expire(Instant now);
    [[nodiscard]] std::optional<Instant> nextDeadline() const;

private:
    struct Holding {
        std::shared_ptr<const OfferedContents> contents;
        xcb_timestamp_t since = XCB_CURRENT_TIME;
    };
    struct Transfer {
        xcb_atom_t type = XCB_ATOM_NONE;
        QByteArray bytes;
        qsizetype offset = 0;
        Instant overdue;
    };
    using Key = std::pair<xcb_window_t, xcb_atom_t>;
    enum class Answer { refused, housekeeping, content };

    Answer answer(const Holding& holding, xcb_atom_t target, Key destination, Instant now);
    Answer answerMultiple(const Holding& holding, Key destination, Instant now);
    void answerTargets(const Holding& holding, Key destination);
    Answer send(Key destination, xcb_atom_t type, const QByteArray& bytes, Instant now);
    void end(std::map<Key, Transfer>::iterator transfer);
    void makeRoom();
    void watch(xcb_window_t window, bool on);
    [[nodiscard]] xcb_atom_t atom(const char16_t* name) { return m_connection.atom(QString::fromUtf16(name)); }

    XcbConnection& m_connection;
    Duration m_stalledLimit;
    std::map<xcb_atom_t, Holding> m_holdings;
    std::map<Key, Transfer> m_transfers;
};

} // namespace vellumry
