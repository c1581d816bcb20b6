// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/drag/XdndSession.h"

#include "linux/x11/drag/DirectSave.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>
#include <vector>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

/// A target that hangs keeps the drag no longer than this.
constexpr auto statusPatience = 1500ms;
/// Between two questions to a target that reads what it is offered before it takes it.
constexpr auto askAgainInterval = 50ms;
/// One that has taken the drop may read for a while.
constexpr auto dropPatience = 60s;
constexpr auto stalledLimit = 30s;

const QString selectionName = QStringLiteral("XdndSelection");

template <typename Element>
QByteArrayView bytesOf(const std::vector<Element>& elements) {
    return {reinterpret_cast<const char*>(elements.data()), qsizetype(elements.size() * sizeof(Element))};
}

} // namespace

std::unique_ptr<XdndSession> XdndSession::create(const QByteArray& displayName,
                                                 std::shared_ptr<const OfferedContents> contents,
                                                 std::optional<DragSource::File> saved) {
    auto connection = XcbConnection::create(displayName);
    if (!connection)
        return nullptr;
    std::unique_ptr<XdndSession> session(
        new XdndSession(std::move(*connection), std::move(contents), std::move(saved)));
    return session->own() ? std::move(session) : nullptr;
}

XdndSession::XdndSession(std::unique_ptr<XcbConnection> connection, std::shared_ptr<const OfferedContents> contents,
                         std::optional<DragSource::File> saved)
    : m_connection(std::move(connection))
    , m_contents(std::move(contents))
    , m_saved(std::move(saved))
    , m_owner(*m_connection, stalledLimit)
    , m_notifier(m_connection->fileDescriptor(), QSocketNotifier::Read) {
    connect(&m_notifier, &QSocketNotifier::activated, this, &XdndSession::handleEvents);
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, [this] {
        if (m_isDecided) {
            finish();
        } else {
            leave();
            decide(DragSource::End::refused);
        }
    });
    m_askAgain.setSingleShot(true);
    m_askAgain.setInterval(askAgainInterval);
    connect(&m_askAgain, &QTimer::timeout, this, &XdndSession::sendPosition);
}

/// Becomes the owner of the selection at the server's own time (ICCCM 2.1), which a change of a property tells.
bool XdndSession::own() {
    xcb_connection_t* server = m_connection->handle();
    xcb_change_property(server, XCB_PROP_MODE_APPEND, m_connection->window(), atom(u"_VELLUMRY_TIME"), XCB_ATOM_INTEGER,
                        32, 0, nullptr);
    xcb_flush(server);
    while (m_time == XCB_CURRENT_TIME) {
        const XcbPointer<xcb_generic_event_t> event(xcb_wait_for_event(server));
        if (!event)
            return false;
        if ((event->response_type & 0x7F) == XCB_PROPERTY_NOTIFY)
            m_time = reinterpret_cast<const xcb_property_notify_event_t*>(event.get())->time;
    }
    const xcb_atom_t selection = m_connection->atom(selectionName);
    xcb_set_selection_owner(server, m_connection->window(), selection, m_time);
    if (m_connection->selectionOwner(selection) != m_connection->window())
        return false;
    m_owner.hold(selection, m_contents, m_time);
    describe();
    return true;
}

/// The types, where targets look for them before anything is dropped.
void XdndSession::describe() {
    std::vector<quint32> types;
    for (const QString& target : m_contents->targets())
        types.push_back(m_connection->atom(target));
    if (m_saved) {
        types.insert(types.begin(), m_connection->atom(directsave::selectionTarget));
        directsave::propose(*m_connection, m_saved->name);
    }
    m_connection->setProperty(m_connection->window(), atom(u"XdndTypeList"), XCB_ATOM_ATOM, 32, bytesOf(types));
    xcb_flush(m_connection->handle());
}

void XdndSession::move() {
    if (m_isDecided || m_isReleased)
        return;
    xcb_connection_t* server = m_connection->handle();
    const XcbPointer<xcb_query_pointer_reply_t> pointer(
        xcb_query_pointer_reply(server, xcb_query_pointer(server, m_connection->root()), nullptr));
    if (!pointer)
        return;
    m_place = (static_cast<quint32>(pointer->root_x) << 16) | static_cast<quint16>(pointer->root_y);
    if (const XdndTarget target = XdndTarget::at(*m_connection, pointer->root_x, pointer->root_y); target != m_target) {
        leave();
        enter(target);
    }
    sendPosition();
    handleEvents();
}

void XdndSession::enter(const XdndTarget& target) {
    m_target = target;
    if (target.window == XCB_NONE)
        return;
    std::array<quint32, 3> types{};
    std::size_t count = 0;
    if (m_saved)
        types[count++] = m_connection->atom(directsave::selectionTarget);
    for (const QString& name : m_contents->targets()) {
        if (count < types.size())
            types[count++] = m_connection->atom(name);
    }
    const bool hasMore = m_contents->targets().size() + (m_saved ? 1 : 0) > qsizetype(types.size());
    send(QStringLiteral("XdndEnter"), (target.version << 24) | (hasMore ? 1U : 0U), types[0], types[1], types[2]);
}

void XdndSession::leave() {
    if (m_target.window != XCB_NONE)
        send(QStringLiteral("XdndLeave"), 0, 0, 0, 0);
    m_target = {};
    m_isAccepted = false;
    m_wasRead = false;
    m_awaitsStatus = false;
    m_hasMovedSince = false;
    xcb_flush(m_connection->handle());
}

/// The next one goes out when the target has answered this one.
void XdndSession::sendPosition() {
    if (m_target.window == XCB_NONE)
        return;
    if (m_awaitsStatus) {
        m_hasMovedSince = true;
        return;
    }
    m_awaitsStatus = true;
    m_hasMovedSince = false;
    send(QStringLiteral("XdndPosition"), 0, m_place, m_time, atom(u"XdndActionCopy"));
}

void XdndSession::send(const QString& message, quint32 one, quint32 two, quint32 three, quint32 four) {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = m_target.window;
    event.type = m_connection->atom(message);
    const std::array<quint32, 5> data{m_connection->window(), one, two, three, four};
    std::ranges::copy(data, event.data.data32);
    xcb_send_event(m_connection->handle(), 0, m_target.receiver, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&event));
    xcb_flush(m_connection->handle());
}

void XdndSession::release() {
    if (m_isDecided || m_isReleased)
        return;
    move();
    m_isReleased = true;
    if (m_target.window == XCB_NONE) {
        decide(DragSource::End::refused);
        return;
    }
    m_patience.start(statusPatience);
    if (!m_awaitsStatus)
        handleStatus(m_isAccepted);
}

void XdndSession::cancel() {
    if (m_isDecided)
        return;
    leave();
    decide(DragSource::End::refused);
}

void XdndSession::handleStatus(bool isAccepted) {
    m_isAccepted = isAccepted;
    m_awaitsStatus = false;
    if (m_hasMovedSince) {
        sendPosition();
        return;
    }
    if (!m_isReleased || m_isDecided)
        return;
    if (!m_isAccepted && m_wasRead) {
        // File managers refuse until they have read the list of files, and say yes only to the next question. A quick
        // hand has let go by then.
        m_askAgain.start();
        return;
    }
    if (!m_isAccepted) {
        leave();
        decide(DragSource::End::refused);
        return;
    }
    send(QStringLiteral("XdndDrop"), 0, m_time, 0, 0);
    m_patience.start(dropPatience);
    decide(DragSource::End::dropped);
}

void XdndSession::handleEvents() {
    const auto now = SelectionOwner::Instant::clock::now();
    while (const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(m_connection->handle())}) {
        switch (event->response_type & 0x7F) {
        case XCB_SELECTION_REQUEST: {
            const auto& request = *reinterpret_cast<const xcb_selection_request_event_t*>(event.get());
            m_wasRead = true;
            if (!handleDirectSave(request))
                m_owner.handleRequest(request, now);
            break;
        }
        case XCB_PROPERTY_NOTIFY: {
            const auto& change = *reinterpret_cast<const xcb_property_notify_event_t*>(event.get());
            if (change.state == XCB_PROPERTY_DELETE)
                m_owner.handlePropertyDeleted(change.window, change.atom, now);
            break;
        }
        case XCB_DESTROY_NOTIFY:
            m_owner.handleWindowGone(reinterpret_cast<const xcb_destroy_notify_event_t*>(event.get())->window);
            break;
        case XCB_CLIENT_MESSAGE:
            handleMessage(*reinterpret_cast<const xcb_client_message_event_t*>(event.get()));
            break;
        default:
            break;
        }
        if (m_isDone)
            return;
    }
    xcb_flush(m_connection->handle());
    if (m_connection->isBroken()) {
        m_notifier.setEnabled(false);
        decide(DragSource::End::refused);
        finish();
    }
}

void XdndSession::handleMessage(const xcb_client_message_event_t& message) {
    const bool isOfTarget = message.format == 32 && message.data.data32[0] == m_target.window;
    if (!isOfTarget)
        return;
    if (message.type == atom(u"XdndStatus") && m_awaitsStatus)
        handleStatus((message.data.data32[1] & 1) != 0);
    else if (message.type == atom(u"XdndFinished") && m_isDecided)
        finish();
}

bool XdndSession::handleDirectSave(const xcb_selection_request_event_t& request) {
    if (!m_saved || request.target != m_connection->atom(directsave::selectionTarget))
        return false;
    const bool isTarget = m_connection->isSameClient(request.requestor, m_target.receiver) ||
                          m_connection->isSameClient(request.requestor, m_target.window);
    const bool isSaved = m_isDecided && isTarget && directsave::save(*m_connection, *m_saved);
    m_connection->setProperty(request.requestor, request.property, XCB_ATOM_STRING, 8, isSaved ? "S" : "F");
    m_connection->notifyRequestor(request, request.property);
    return true;
}

void XdndSession::decide(DragSource::End end) {
    if (std::exchange(m_isDecided, true))
        return;
    const auto decided = std::exchange(onDecided, nullptr);
    decided(end);
    if (end == DragSource::End::refused)
        finish();
}

void XdndSession::finish() {
    if (std::exchange(m_isDone, true))
        return;
    m_patience.stop();
    m_askAgain.stop();
    m_notifier.setEnabled(false);
    xcb_set_selection_owner(m_connection->handle(), XCB_NONE, m_connection->atom(selectionName), m_time);
    xcb_flush(m_connection->handle());
    std::exchange(onDone, nullptr)();
}

} // namespace vellumry
