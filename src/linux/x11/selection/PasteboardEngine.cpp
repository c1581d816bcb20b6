// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/selection/PasteboardEngine.h"

#include "linux/pasteboard/TargetCoding.h"
#include "linux/x11/selection/OwedAnswers.h"
#include "linux/x11/selection/SelectionBytes.h"

#include <algorithm>
#include <utility>
#include <xcb/xfixes.h>

namespace vellumry {

namespace {

/// xcb hands out events of every kind as the generic one.
template <typename Event>
const Event& as(const xcb_generic_event_t& event) {
    return reinterpret_cast<const Event&>(event);
}

} // namespace

PasteboardEngine::PasteboardEngine(std::unique_ptr<XcbConnection> connection, PasteboardLimits limits, Notices notices)
    : m_connection(std::move(connection))
    , m_limits(limits)
    , m_notices(std::move(notices))
    , m_reader(*m_connection)
    , m_owner(*m_connection, limits.stalledRequestor)
    , m_offer(*m_connection, m_reader, m_limits)
    , m_manager(
          *m_connection, [this](TimeWaiter waiter) { askForServerTime(std::move(waiter)); }, limits.saving) {}

void PasteboardEngine::start() {
    m_clipboard = m_connection->atom(QStringLiteral("CLIPBOARD"));
    const xcb_atom_t manager = m_connection->atom(QStringLiteral("CLIPBOARD_MANAGER"));
    m_saveTargets = m_connection->atom(QStringLiteral("SAVE_TARGETS"));
    m_timeProperty = m_connection->atom(QStringLiteral("VELLUMRY_TIME"));
    constexpr quint32 events = XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                               XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                               XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE;
    for (const xcb_atom_t selection : {m_clipboard, manager})
        xcb_xfixes_select_selection_input(m_connection->handle(), m_connection->window(), selection, events);
    m_currentOwner = m_connection->selectionOwner(m_clipboard);
    m_reader.setOwner(m_clipboard, m_currentOwner, Instant());
    if (m_currentOwner != XCB_NONE)
        m_offer.setOwner(m_clipboard, {changeCount(), XCB_CURRENT_TIME});
    m_manager.onPartTaken = [this, manager](xcb_timestamp_t time) { m_owner.hold(manager, nullptr, time); };
    m_manager.start(manager);
}

void PasteboardEngine::end() {
    m_ended = true;
    for (const TimeWaiter& waiter : std::exchange(m_timeWaiters, {}))
        waiter(std::nullopt);
    finishClaim(std::nullopt);
    m_offer.reset();
    m_reader.setOwner(m_clipboard, m_currentOwner, Instant());
}

void PasteboardEngine::awaitOwedAnswers() {
    owedanswers::await(*m_connection, m_reader, m_limits.owedAnswers);
}

// The server's time

/// A property that is set to what it is already makes the server tell its time (ICCCM 2.1).
void PasteboardEngine::askForServerTime(TimeWaiter waiter) {
    m_timeWaiters.push_back(std::move(waiter));
    xcb_change_property(m_connection->handle(), XCB_PROP_MODE_APPEND, m_connection->window(), m_timeProperty,
                        XCB_ATOM_INTEGER, 8, 0, nullptr);
}

void PasteboardEngine::handleServerTime(xcb_timestamp_t time) {
    if (m_timeWaiters.empty())
        return;
    const TimeWaiter waiter = std::move(m_timeWaiters.front());
    m_timeWaiters.pop_front();
    waiter(time);
}

// Reading

void PasteboardEngine::readOffer(CurrentOffer::Result result, Instant now) {
    m_offer.read(std::move(result), now);
}

void PasteboardEngine::settle(qint64 count, bool wasKept) {
    if (count == changeCount() && !m_ended)
        m_manager.settle(wasKept);
}

void PasteboardEngine::read(const std::shared_ptr<const SelectionOffer>& offer, const QString& target,
                            const QString& uniformType, qint64 maxBytes,
                            OneShot<std::shared_ptr<const GivenBytes>> result, Instant now) {
    if (m_ended || offer->moment.changeCount != changeCount() || offer->moment.deadline <= now ||
        !offer->atoms.contains(target)) {
        result.deliver(nullptr);
        return;
    }
    SelectionReader::Request request;
    request.selection = m_clipboard;
    request.target = offer->atoms.value(target);
    request.time = offer->moment.time;
    request.maxBytes = maxBytes;
    request.silence = targetcoding::isMadeOnDemand(target) ? m_limits.rendering : m_limits.silence;
    request.deadline = offer->moment.deadline;
    request.done = [this, result, target, uniformType](std::optional<XcbProperty> property) {
        result.deliver(property ? givenBytes(*m_connection, std::move(*property), target, uniformType) : nullptr);
    };
    m_reader.read(std::move(request), now);
}

// Events

void PasteboardEngine::handleEvent(const xcb_generic_event_t& event, Instant now) {
    const int type = event.response_type & 0x7f;
    if (type == m_connection->xfixesFirstEvent() + XCB_XFIXES_SELECTION_NOTIFY) {
        handleSelectionChange(as<xcb_xfixes_selection_notify_event_t>(event), now);
        return;
    }
    switch (type) {
    case 0:
        handleError(event);
        break;
    case XCB_PROPERTY_NOTIFY: {
        const auto& change = as<xcb_property_notify_event_t>(event);
        if (change.state == XCB_PROPERTY_DELETE)
            m_owner.handlePropertyDeleted(change.window, change.atom, now);
        else if (change.window == m_connection->window() && change.atom == m_timeProperty)
            handleServerTime(change.time);
        else if (change.window == m_connection->window())
            m_reader.handleNewValue(change.atom, now);
        break;
    }
    case XCB_SELECTION_NOTIFY:
        m_reader.handleSelectionNotify(as<xcb_selection_notify_event_t>(event), now);
        break;
    case XCB_SELECTION_REQUEST:
        handleRequest(as<xcb_selection_request_event_t>(event), now);
        break;
    case XCB_SELECTION_CLEAR: {
        // Old news when the selection was taken back meanwhile.
        const xcb_atom_t selection = as<xcb_selection_clear_event_t>(event).selection;
        if (m_connection->selectionOwner(selection) != m_connection->window())
            m_owner.release(selection);
        break;
    }
    case XCB_DESTROY_NOTIFY:
        m_owner.handleWindowGone(as<xcb_destroy_notify_event_t>(event).window);
        break;
    default:
        break;
    }
}

void PasteboardEngine::handleRequest(const xcb_selection_request_event_t& request, Instant now) {
    if (m_manager.isPart(request.selection) && request.target == m_saveTargets) {
        m_manager.handleSaveRequest(request, now);
        return;
    }
    const bool tookContent = m_owner.handleRequest(request, now);
    noteReader(request, tookContent);
}

/// A reader of PRIMARY takes the same contents as long as they are offered there too.
void PasteboardEngine::noteReader(const xcb_selection_request_event_t& request, bool tookContent) {
    const auto contents = m_owner.contents(request.selection);
    if (!contents || contents != m_owner.contents(m_clipboard) || (m_wasServed && m_wasListed))
        return;
    const xcb_window_t focus = m_connection->focusWindow();
    if (focus != XCB_NONE && focus != m_connection->root() && !m_connection->isSameClient(focus, request.requestor))
        return;
    if (tookContent)
        m_wasServed.store(true, std::memory_order_release);
    if (request.selection == m_clipboard)
        m_wasListed.store(true, std::memory_order_release);
}

void PasteboardEngine::handleError(const xcb_generic_event_t& event) {
    const auto& error = as<xcb_value_error_t>(event);
    // Requestors come and go; what was meant for a window that has gone needs no further thought.
    if (error.error_code == XCB_WINDOW)
        m_owner.handleWindowGone(error.bad_value);
}

void PasteboardEngine::handleSelectionChange(const xcb_xfixes_selection_notify_event_t& event, Instant now) {
    if (event.selection == m_clipboard)
        handleClipboardChange(event, now);
    else if (m_manager.isPart(event.selection) && event.owner == XCB_NONE)
        m_manager.takePart();
}

void PasteboardEngine::handleClipboardChange(const xcb_xfixes_selection_notify_event_t& event, Instant now) {
    const xcb_window_t ourselves = m_connection->window();
    const bool wasOurs = m_currentOwner == ourselves;
    const qint64 held = changeCount();
    const bool isForeign = event.owner != XCB_NONE && event.owner != ourselves;
    m_currentOwner = event.owner;
    m_goneSince.reset();
    m_changeCount.store(held + 1, std::memory_order_release);
    if (isForeign)
        m_copyCount.fetch_add(1, std::memory_order_acq_rel);
    m_offer.reset();
    m_reader.setOwner(m_clipboard, event.owner, now);
    if (isForeign)
        m_offer.ask(m_clipboard, {held + 1, event.selection_timestamp}, now);
    m_manager.ownerChanged(event.owner == ourselves);

    if (event.owner == ourselves && m_unconfirmed && event.selection_timestamp == m_unconfirmedTime)
        finishClaim(held + 1);
    m_notices.changed();
    // An owner that cleared the clipboard on purpose, as password managers do, has not gone: subtype 0.
    const bool hasGone = event.owner == XCB_NONE && event.subtype != XCB_XFIXES_SELECTION_EVENT_SET_SELECTION_OWNER;
    if (hasGone && !wasOurs) {
        m_goneSince = event.timestamp;
        m_notices.ownerGone(held, held + 1);
    }
}

void PasteboardEngine::expire(Instant now) {
    m_reader.expire(now);
    m_owner.expire(now);
    m_manager.expire(now);
}

std::optional<PasteboardEngine::Instant> PasteboardEngine::nextDeadline() const {
    std::optional<Instant> next;
    for (const std::optional<Instant>& deadline :
         {m_reader.nextDeadline(), m_owner.nextDeadline(), m_manager.nextDeadline()}) {
        if (deadline && (!next || *deadline < *next))
            next = deadline;
    }
    return next;
}

} // namespace vellumry
