// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/selection/ClipboardManager.h"

#include "foundation/Logging.h"

#include <algorithm>
#include <utility>

namespace vellumry {

void ClipboardManager::start(xcb_atom_t selection) {
    m_selection = selection;
    if (m_connection.selectionOwner(selection) == XCB_NONE)
        takePart();
}

void ClipboardManager::takePart() {
    m_askForServerTime([this](std::optional<xcb_timestamp_t> time) {
        if (!time || m_connection.selectionOwner(m_selection) != XCB_NONE)
            return;
        xcb_set_selection_owner(m_connection.handle(), m_connection.window(), m_selection, *time);
        if (m_connection.selectionOwner(m_selection) != m_connection.window())
            return;
        onPartTaken(*time);
        announce(*time);
    });
}

/// Clients that start later look for the owner; those that wait are told (ICCCM 2.8).
void ClipboardManager::announce(xcb_timestamp_t time) {
    xcb_client_message_event_t notice{};
    notice.response_type = XCB_CLIENT_MESSAGE;
    notice.format = 32;
    notice.window = m_connection.root();
    notice.type = m_connection.atom(QStringLiteral("MANAGER"));
    notice.data.data32[0] = time;
    notice.data.data32[1] = m_selection;
    notice.data.data32[2] = m_connection.window();
    xcb_send_event(m_connection.handle(), 0, m_connection.root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&notice));
}

void ClipboardManager::ownerChanged(bool isSafe) {
    answerAll(isSafe);
    m_wasKept.reset();
    if (isSafe)
        m_wasKept = true;
}

void ClipboardManager::settle(bool wasKept) {
    m_wasKept = wasKept;
    answerAll(wasKept);
}

void ClipboardManager::handleSaveRequest(const xcb_selection_request_event_t& request, Instant now) {
    if (m_wasKept)
        answer(request, *m_wasKept);
    else
        m_waiting.push_back({request, now + m_limit});
}

void ClipboardManager::answer(const xcb_selection_request_event_t& request, bool wasKept) {
    xcb_atom_t property = XCB_ATOM_NONE;
    if (wasKept) {
        property = request.property == XCB_ATOM_NONE ? request.target : request.property;
        m_connection.setProperty(request.requestor, property, m_connection.atom(QStringLiteral("NULL")), 32, {});
    }
    m_connection.notifyRequestor(request, property);
}

void ClipboardManager::answerAll(bool wasKept) {
    for (const Waiting& waiting : std::exchange(m_waiting, {}))
        answer(waiting.request, wasKept);
}

void ClipboardManager::expire(Instant now) {
    std::erase_if(m_waiting, [this, now](const Waiting& waiting) {
        if (waiting.overdue > now)
            return false;
        qCInfo(logging::x11) << "A program that quits is told after" << m_limit.count()
                             << "ms that its copy is not kept.";
        answer(waiting.request, false);
        return true;
    });
}

std::optional<ClipboardManager::Instant> ClipboardManager::nextDeadline() const {
    if (m_waiting.empty())
        return std::nullopt;
    // In the order of their asking, and all with the same limit.
    return m_waiting.front().overdue;
}

} // namespace vellumry
