// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/selection/HostileOwner.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace vellumry {

namespace {

constexpr int chunksBeforeTheEnd = 3;

QByteArray raw(const std::vector<quint32>& numbers) {
    return {reinterpret_cast<const char*>(numbers.data()), qsizetype(numbers.size() * sizeof(quint32))};
}

} // namespace

xcb_timestamp_t HostileOwner::serverTime() {
    const xcb_atom_t property = atom("PEER_TIME");
    xcb_change_property(m_connection, XCB_PROP_MODE_APPEND, m_window, property, XCB_ATOM_INTEGER, 8, 0, nullptr);
    xcb_flush(m_connection);
    for (;;) {
        const Reply<xcb_generic_event_t> event(xcb_wait_for_event(m_connection));
        if (!event)
            return XCB_CURRENT_TIME;
        const auto* change = reinterpret_cast<const xcb_property_notify_event_t*>(event.get());
        if ((event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY && change->atom == property)
            return change->time;
        handle(*event);
    }
}

bool HostileOwner::own(const QByteArray& selection, std::vector<Offer> offers) {
    const xcb_timestamp_t time = serverTime();
    m_offers[atom(selection)] = std::move(offers);
    xcb_set_selection_owner(m_connection, m_window, atom(selection), time);
    return owns(selection);
}

void HostileOwner::clear(const QByteArray& selection) {
    m_offers.erase(atom(selection));
    xcb_set_selection_owner(m_connection, XCB_NONE, atom(selection), XCB_CURRENT_TIME);
    xcb_flush(m_connection);
}

void HostileOwner::ask(const QByteArray& selection, const QByteArray& target) {
    const xcb_atom_t property = atom("PEER_ANSWER_" + QByteArray::number(m_asked++));
    m_incoming[property] = {target};
    xcb_convert_selection(m_connection, m_window, atom(selection), atom(target), property, XCB_CURRENT_TIME);
    xcb_flush(m_connection);
}

void HostileOwner::askAndVanish(const QByteArray& selection, const QByteArray& target) {
    const xcb_window_t window = xcb_generate_id(m_connection);
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, window, m_root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_convert_selection(m_connection, window, atom(selection), atom(target), atom("PEER_VANISHES"), XCB_CURRENT_TIME);
    xcb_destroy_window(m_connection, window);
    xcb_flush(m_connection);
}

void HostileOwner::askAndStall(const QByteArray& selection, const QByteArray& target) {
    const xcb_atom_t property = atom("PEER_STALLS_" + QByteArray::number(m_asked++));
    xcb_convert_selection(m_connection, m_window, atom(selection), atom(target), property, XCB_CURRENT_TIME);
    xcb_flush(m_connection);
}

bool HostileOwner::isWatched() {
    const Reply<xcb_get_window_attributes_reply_t> reply(
        xcb_get_window_attributes_reply(m_connection, xcb_get_window_attributes(m_connection, m_window), nullptr));
    return reply && (reply->all_event_masks & ~reply->your_event_mask) != 0;
}

bool HostileOwner::takeFocus() {
    xcb_map_window(m_connection, m_window);
    xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_POINTER_ROOT, m_window, XCB_CURRENT_TIME);
    const Reply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    return reply && reply->focus == m_window;
}

void HostileOwner::breakSilence() {
    for (Offer& offer : m_offers[atom("CLIPBOARD")]) {
        if (offer.manner == Manner::silence)
            offer.manner = Manner::whole;
    }
    for (const auto& request : std::exchange(m_silenced, {}))
        answerRequest(request);
    xcb_flush(m_connection);
}

void HostileOwner::askForMany(const QByteArray& selection, const QByteArrayList& targets) {
    std::vector<quint32> pairs;
    for (const QByteArray& target : targets) {
        const xcb_atom_t property = atom("PEER_ANSWER_" + QByteArray::number(m_asked++));
        m_incoming[property] = {target};
        pairs.push_back(atom(target));
        pairs.push_back(property);
    }
    const xcb_atom_t list = atom("PEER_LIST");
    set({m_window, list}, atom("ATOM_PAIR"), 32, raw(pairs));
    xcb_convert_selection(m_connection, m_window, atom(selection), atom("MULTIPLE"), list, XCB_CURRENT_TIME);
    xcb_flush(m_connection);
}

void HostileOwner::pump() {
    while (m_connection) {
        const Reply<xcb_generic_event_t> event(xcb_poll_for_event(m_connection));
        if (!event)
            break;
        handle(*event);
    }
    doWork();
    if (m_connection)
        xcb_flush(m_connection);
}

void HostileOwner::doWork() {
    while (m_connection && !m_work.empty() && m_work.front().at <= std::chrono::steady_clock::now()) {
        const auto request = m_work.front().request;
        m_work.pop_front();
        answerRequest(request);
    }
}

void HostileOwner::handle(const xcb_generic_event_t& event) {
    const auto* any = &event;
    switch (event.response_type & 0x7f) {
    case XCB_SELECTION_REQUEST:
        handleRequest(*reinterpret_cast<const xcb_selection_request_event_t*>(any));
        break;
    case XCB_SELECTION_NOTIFY:
        handleNotify(*reinterpret_cast<const xcb_selection_notify_event_t*>(any));
        break;
    case XCB_PROPERTY_NOTIFY:
        handleProperty(*reinterpret_cast<const xcb_property_notify_event_t*>(any));
        break;
    case XCB_SELECTION_CLEAR:
        if (reinterpret_cast<const xcb_selection_clear_event_t*>(any)->selection == atom("CLIPBOARD"))
            lostClipboard = true;
        break;
    default:
        break;
    }
}

// Owning

void HostileOwner::handleRequest(const xcb_selection_request_event_t& request) {
    requests.append(atomName(request.target));
    const auto work = workFor(request);
    if (work.count() == 0 && m_work.empty()) {
        if (answerRequest(request))
            xcb_flush(m_connection);
        return;
    }
    const Instant now = std::chrono::steady_clock::now();
    m_work.push_back({request, (m_work.empty() ? now : m_work.back().at) + work});
}

std::chrono::milliseconds HostileOwner::workFor(const xcb_selection_request_event_t& request) {
    if (request.target == atom("TARGETS"))
        return targetsWork;
    for (const Offer& offer : m_offers[request.selection]) {
        if (atom(offer.target) == request.target)
            return offer.work;
    }
    return {};
}

/// False when nothing is to be said.
bool HostileOwner::answerRequest(const xcb_selection_request_event_t& request) {
    const Destination destination{request.requestor, request.property};
    bool isGiven = false;
    const std::vector<Offer>& offers = m_offers[request.selection];
    if (request.target == atom("TARGETS")) {
        if (targetsManner == Manner::silence)
            return false;
        if (targetsManner != Manner::refusal) {
            std::vector<quint32> atoms{atom("TARGETS"), atom("TIMESTAMP")};
            for (const Offer& offer : offers)
                atoms.push_back(atom(offer.target));
            set(destination, XCB_ATOM_ATOM, 32, raw(targetAtoms.value_or(atoms)));
            isGiven = true;
        }
    } else {
        const auto found =
            std::ranges::find_if(offers, [&](const Offer& offer) { return atom(offer.target) == request.target; });
        if (found != offers.end() && found->manner == Manner::silence) {
            m_silenced.push_back(request);
            return false;
        }
        isGiven = found != offers.end() && found->manner != Manner::refusal;
        if (isGiven && found->manner == Manner::whole) {
            set(destination, atom(found->type.isEmpty() ? found->target : found->type), found->format, found->bytes);
        } else if (isGiven) {
            const quint32 events = XCB_EVENT_MASK_PROPERTY_CHANGE;
            xcb_change_window_attributes(m_connection, request.requestor, XCB_CW_EVENT_MASK, &events);
            m_outgoing[destination] = Outgoing{*found};
            set(destination, atom("INCR"), 32, raw({found->announced.value_or(quint32(found->bytes.size()))}));
        }
    }
    xcb_selection_notify_event_t notice{};
    notice.response_type = XCB_SELECTION_NOTIFY;
    notice.time = request.time;
    notice.requestor = request.requestor;
    notice.selection = request.selection;
    notice.target = request.target;
    notice.property = isGiven ? request.property : xcb_atom_t(XCB_ATOM_NONE);
    std::array<char, 32> buffer{};
    std::memcpy(buffer.data(), &notice, sizeof notice);
    xcb_send_event(m_connection, 0, request.requestor, 0, buffer.data());
    return true;
}

void HostileOwner::sendChunk(Destination destination) {
    Outgoing& outgoing = m_outgoing.at(destination);
    const Offer& offer = outgoing.offer;
    const bool isHalfWay = outgoing.chunks >= chunksBeforeTheEnd;
    if (isHalfWay && offer.manner == Manner::silenceHalfWay)
        return;
    if (isHalfWay && offer.manner == Manner::deathHalfWay) {
        leave();
        return;
    }
    const QByteArray chunk =
        offer.manner == Manner::endless ? QByteArray(chunkBytes, 'e') : offer.bytes.mid(outgoing.offset, chunkBytes);
    set(destination, atom(offer.type.isEmpty() ? offer.target : offer.type), 8, chunk);
    outgoing.offset += chunk.size();
    ++outgoing.chunks;
    ++chunksSent;
    if (chunk.isEmpty())
        m_outgoing.erase(destination);
}

// Asking

HostileOwner::Answer HostileOwner::takeProperty(xcb_atom_t property) {
    const auto cookie =
        xcb_get_property(m_connection, 1, m_window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, 64 * 1024 * 1024);
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_connection, cookie, nullptr));
    if (!reply || reply->type == XCB_ATOM_NONE)
        return {};
    return {atomName(reply->type), reply->format,
            QByteArray(static_cast<const char*>(xcb_get_property_value(reply.get())),
                       xcb_get_property_value_length(reply.get()))};
}

void HostileOwner::handleNotify(const xcb_selection_notify_event_t& notify) {
    if (notify.target == atom("MULTIPLE")) {
        // The owner has set the properties of what it gives, and crossed out the rest.
        const Answer list = takeProperty(notify.property);
        std::vector<quint32> pairs(static_cast<std::size_t>(list.bytes.size()) / sizeof(quint32));
        if (!pairs.empty())
            std::memcpy(pairs.data(), list.bytes.constData(), pairs.size() * sizeof(quint32));
        for (std::size_t i = 0; i + 1 < pairs.size(); i += 2) {
            xcb_selection_notify_event_t single = notify;
            single.target = pairs[i];
            single.property = pairs[i + 1];
            handleNotify(single);
        }
        return;
    }
    if (notify.property == XCB_ATOM_NONE) {
        answers[atomName(notify.target)] = {};
        return;
    }
    const auto incoming = m_incoming.find(notify.property);
    if (incoming == m_incoming.end())
        return;
    Answer answer = takeProperty(notify.property);
    if (answer.type == "INCR") {
        incoming->second.collected.wasIncremental = true;
        return;
    }
    answers[incoming->second.target] = std::move(answer);
    m_incoming.erase(incoming);
}

void HostileOwner::handleProperty(const xcb_property_notify_event_t& change) {
    if (change.state == XCB_PROPERTY_DELETE) {
        if (m_outgoing.contains({change.window, change.atom}))
            sendChunk({change.window, change.atom});
        return;
    }
    const auto incoming = m_incoming.find(change.atom);
    if (change.window != m_window || incoming == m_incoming.end() || !incoming->second.collected.wasIncremental)
        return;
    Answer& collected = incoming->second.collected;
    const Answer chunk = takeProperty(change.atom);
    if (chunk.type.isEmpty())
        return;
    collected.type = chunk.type;
    collected.format = chunk.format;
    collected.bytes += chunk.bytes;
    if (chunk.bytes.isEmpty()) {
        answers[incoming->second.target] = std::move(collected);
        m_incoming.erase(incoming);
    }
}

} // namespace vellumry
