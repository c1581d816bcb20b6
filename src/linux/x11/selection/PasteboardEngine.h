// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/OneShot.h"
#include "linux/pasteboard/PasteboardLimits.h"
#include "linux/pasteboard/PasteboardService.h"
#include "linux/x11/selection/ClipboardManager.h"
#include "linux/x11/selection/CurrentOffer.h"
#include "linux/x11/selection/SelectionOffer.h"
#include "linux/x11/selection/SelectionOwner.h"
#include "linux/x11/selection/SelectionReader.h"
#include "linux/x11/selection/XcbConnection.h"

#include <atomic>
#include <deque>
#include <functional>
#include <vector>

struct xcb_xfixes_selection_notify_event_t;

namespace vellumry {

/// The pasteboard's side of the conversation with the X server: follows the owner of the clipboard, reads it, owns it,
/// and stands in as clipboard manager where the session has none. Pasteboard thread, but for what says "any thread".
class PasteboardEngine {
public:
    using Instant = SelectionReader::Instant;

    using Notices = PasteboardNotices; ///< told on the pasteboard thread
    using Claim = PasteboardClaim;

    PasteboardEngine(std::unique_ptr<XcbConnection> connection, PasteboardLimits limits, Notices notices);

    [[nodiscard]] XcbConnection& connection() { return *m_connection; }
    /// Any thread.
    [[nodiscard]] qint64 changeCount() const { return m_changeCount.load(std::memory_order_acquire); }
    /// How many times another program has taken the clipboard. Any thread.
    [[nodiscard]] qint64 copyCount() const { return m_copyCount.load(std::memory_order_acquire); }
    /// True once the program that has the keyboard took content of what we hold on the clipboard: other readers, such
    /// as clipboard managers and remote desktops, take it at any time and say nothing of a paste. Where no window has
    /// the keyboard any reader counts. Any thread.
    [[nodiscard]] bool wasServed() const { return m_wasServed.load(std::memory_order_acquire); }
    /// The same for anything of it, the list of its types included. Any thread.
    [[nodiscard]] bool wasListed() const { return m_wasListed.load(std::memory_order_acquire); }

    /// Begins to follow the selections. Waits for the server a few times; on any one thread, before the engine is used.
    void start();
    void claim(Claim claim);
    /// Delivers once all that the server has to tell of the time before the call was handled; false without a server.
    void catchUp(OneShot<bool> result);
    /// Gives up the clipboard and the primary selection where they are still ours with `contents`. A program that takes
    /// them meanwhile keeps them.
    void disown(const std::shared_ptr<const OfferedContents>& contents);
    /// Null when the clipboard has no owner or it does not say in time what it offers.
    void readOffer(CurrentOffer::Result result, Instant now);
    /// Capture has done with what was on the clipboard at `count`.
    void settle(qint64 count, bool wasKept);
    /// Null when the offer is of the past, the owner did not give the target, or what it gave cannot be understood.
    /// With a `uniformType` the bytes are what that has for the target's, else as they came. What programs render only
    /// when they are asked for it is given more time than private types.
    void read(const std::shared_ptr<const SelectionOffer>& offer, const QString& target, const QString& uniformType,
              qint64 maxBytes, OneShot<std::shared_ptr<const GivenBytes>> result, Instant now);

    void handleEvent(const xcb_generic_event_t& event, Instant now);
    void expire(Instant now);
    [[nodiscard]] std::optional<Instant> nextDeadline() const;
    /// Answers everything that is still open with nothing; from then on every question is answered so.
    void end();
    /// Waits, behind `end`, until our window may go (OwedAnswers.h).
    void awaitOwedAnswers();

private:
    using TimeWaiter = std::function<void(std::optional<xcb_timestamp_t>)>;

    void askForServerTime(TimeWaiter waiter);
    void handleServerTime(xcb_timestamp_t time);
    void handleSelectionChange(const xcb_xfixes_selection_notify_event_t& event, Instant now);
    void handleClipboardChange(const xcb_xfixes_selection_notify_event_t& event, Instant now);
    void handleError(const xcb_generic_event_t& event);
    void settleClaim(const Claim& claim, xcb_timestamp_t time);
    void finishClaim(std::optional<qint64> count);
    void handleRequest(const xcb_selection_request_event_t& request, Instant now);
    void noteReader(const xcb_selection_request_event_t& request, bool tookContent);
    void disownSelection(xcb_atom_t selection, const std::shared_ptr<const OfferedContents>& contents);

    const std::unique_ptr<XcbConnection> m_connection;
    const PasteboardLimits m_limits;
    const Notices m_notices;
    SelectionReader m_reader;
    SelectionOwner m_owner;
    CurrentOffer m_offer;
    ClipboardManager m_manager;
    std::atomic<qint64> m_changeCount{1};
    std::atomic<qint64> m_copyCount{0};
    std::atomic<bool> m_wasServed{false};
    std::atomic<bool> m_wasListed{false};
    bool m_ended = false;

    xcb_atom_t m_clipboard = XCB_ATOM_NONE;
    xcb_atom_t m_saveTargets = XCB_ATOM_NONE;
    xcb_atom_t m_timeProperty = XCB_ATOM_NONE;
    xcb_window_t m_currentOwner = XCB_NONE;
    /// When the last owner went, while there is no new one.
    std::optional<xcb_timestamp_t> m_goneSince;
    std::deque<TimeWaiter> m_timeWaiters;
    std::optional<Claim> m_unconfirmed; ///< set, the server's notice outstanding
    xcb_timestamp_t m_unconfirmedTime = XCB_CURRENT_TIME;
};

} // namespace vellumry
