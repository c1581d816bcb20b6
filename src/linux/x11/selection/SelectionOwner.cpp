// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/selection/SelectionOwner.h"

#include "linux/pasteboard/TargetCoding.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <vector>

namespace vellumry {

namespace {

constexpr std::size_t mostTransfers = 256;
constexpr qint64 longestPairList = 64 * 1024;

template <typename Element>
QByteArrayView bytesOf(const std::vector<Element>& elements) {
    return {reinterpret_cast<const char*>(elements.data()), qsizetype(elements.size() * sizeof(Element))};
}

} // namespace

void SelectionOwner::hold(xcb_atom_t selection, std::shared_ptr<const OfferedContents> contents,
                          xcb_timestamp_t since) {
    m_holdings[selection] = Holding{std::move(contents), since};
}

void SelectionOwner::release(xcb_atom_t selection) {
    m_holdings.erase(selection);
}

std::shared_ptr<const OfferedContents> SelectionOwner::contents(xcb_atom_t selection) const {
    const auto found = m_holdings.find(selection);
    return found == m_holdings.end() ? nullptr : found->second.contents;
}

xcb_timestamp_t SelectionOwner::since(xcb_atom_t selection) const {
    const auto found = m_holdings.find(selection);
    return found == m_holdings.end() ? xcb_timestamp_t(XCB_CURRENT_TIME) : found->second.since;
}

bool SelectionOwner::handleRequest(const xcb_selection_request_event_t& event, Instant now) {
    // Requests older than the ownership are answered too: a paste key that was held back while the contents were
    // swapped carries the time of its press.
    const auto holding = m_holdings.find(event.selection);
    // Clients from before ICCCM name no property and expect the target's.
    const xcb_atom_t property = event.property == XCB_ATOM_NONE ? event.target : event.property;
    Answer given = Answer::refused;
    if (holding != m_holdings.end()) {
        if (event.target == atom(u"MULTIPLE"))
            given = event.property == XCB_ATOM_NONE ? Answer::refused
                                                    : answerMultiple(holding->second, {event.requestor, property}, now);
        else
            given = answer(holding->second, event.target, {event.requestor, property}, now);
    }

    m_connection.notifyRequestor(event, given == Answer::refused ? xcb_atom_t(XCB_ATOM_NONE) : property);
    return given == Answer::content;
}

SelectionOwner::Answer SelectionOwner::answer(const Holding& holding, xcb_atom_t target, Key destination, Instant now) {
    if (target == atom(u"TARGETS")) {
        answerTargets(holding, destination);
        return Answer::housekeeping;
    }
    if (target == atom(u"TIMESTAMP")) {
        const std::vector<quint32> time{holding.since};
        m_connection.setProperty(destination.first, destination.second, XCB_ATOM_INTEGER, 32, bytesOf(time));
        return Answer::housekeeping;
    }
    if (!holding.contents)
        return Answer::refused;
    const QString name = m_connection.atomName(target);
    const std::optional<QByteArray> bytes = holding.contents->data(name);
    if (!bytes)
        return Answer::refused;
    return send(destination, m_connection.atom(targetcoding::propertyTypeOf(name)), *bytes, now);
}

void SelectionOwner::answerTargets(const Holding& holding, Key destination) {
    std::vector<quint32> atoms{atom(u"TARGETS"), atom(u"TIMESTAMP"), atom(u"MULTIPLE")};
    if (holding.contents) {
        for (const QString& target : holding.contents->targets())
            atoms.push_back(m_connection.atom(target));
    } else {
        atoms.push_back(atom(u"SAVE_TARGETS"));
    }
    m_connection.setProperty(destination.first, destination.second, XCB_ATOM_ATOM, 32, bytesOf(atoms));
}

SelectionOwner::Answer SelectionOwner::answerMultiple(const Holding& holding, Key destination, Instant now) {
    const std::optional<XcbProperty> asked =
        m_connection.property(destination.first, destination.second, longestPairList, false);
    if (!asked || asked->isTooLong || asked->format != 32)
        return Answer::refused;
    std::vector<quint32> pairs(static_cast<std::size_t>(asked->bytes.size()) / sizeof(quint32) / 2 * 2);
    if (!pairs.empty())
        std::memcpy(pairs.data(), asked->bytes.constData(), pairs.size() * sizeof(quint32));
    Answer best = Answer::housekeeping;
    for (std::size_t i = 0; i < pairs.size(); i += 2) {
        const bool isAnswerable = pairs[i + 1] != XCB_ATOM_NONE && pairs[i] != atom(u"MULTIPLE");
        const Answer given =
            isAnswerable ? answer(holding, pairs[i], {destination.first, pairs[i + 1]}, now) : Answer::refused;
        if (given == Answer::refused)
            pairs[i + 1] = XCB_ATOM_NONE;
        else if (given == Answer::content)
            best = Answer::content;
    }
    m_connection.setProperty(destination.first, destination.second, atom(u"ATOM_PAIR"), 32, bytesOf(pairs));
    return best;
}

SelectionOwner::Answer SelectionOwner::send(Key destination, xcb_atom_t type, const QByteArray& bytes, Instant now) {
    if (bytes.size() <= m_connection.chunkBytes()) {
        m_connection.setProperty(destination.first, destination.second, type, 8, bytes);
        return Answer::content;
    }
    if (m_transfers.size() >= mostTransfers && !m_transfers.contains(destination))
        makeRoom();
    watch(destination.first, true);
    m_transfers[destination] = Transfer{type, bytes, 0, now + m_stalledLimit};
    const std::vector<quint32> size{
        static_cast<quint32>(std::min<qsizetype>(bytes.size(), std::numeric_limits<qint32>::max()))};
    m_connection.setProperty(destination.first, destination.second, atom(u"INCR"), 32, bytesOf(size));
    return Answer::content;
}

/// One client with hundreds of readers that stall must not keep an honest one waiting.
void SelectionOwner::makeRoom() {
    std::map<quint32, int> counts;
    for (const auto& [key, transfer] : m_transfers)
        ++counts[m_connection.clientOf(key.first)];
    // The map's order breaks no tie: of several such clients the one whose transfer has stood longest loses it.
    const auto worst = std::ranges::min_element(m_transfers, [&](const auto& one, const auto& other) {
        const int ones = counts[m_connection.clientOf(one.first.first)];
        const int others = counts[m_connection.clientOf(other.first.first)];
        return ones != others ? ones > others : one.second.overdue < other.second.overdue;
    });
    if (worst != m_transfers.end())
        end(worst);
}

void SelectionOwner::handlePropertyDeleted(xcb_window_t window, xcb_atom_t property, Instant now) {
    const auto found = m_transfers.find({window, property});
    if (found == m_transfers.end())
        return;
    Transfer& transfer = found->second;
    const qsizetype length = std::min(m_connection.chunkBytes(), transfer.bytes.size() - transfer.offset);
    const QByteArrayView chunk = QByteArrayView(transfer.bytes).sliced(transfer.offset, length);
    m_connection.setProperty(window, property, transfer.type, 8, chunk);
    transfer.offset += length;
    transfer.overdue = now + m_stalledLimit;
    // A chunk of length zero is the end.
    if (length == 0)
        end(found);
}

void SelectionOwner::end(std::map<Key, Transfer>::iterator transfer) {
    const xcb_window_t window = transfer->first.first;
    m_transfers.erase(transfer);
    const bool isStillWatched =
        std::ranges::any_of(m_transfers, [window](const auto& entry) { return entry.first.first == window; });
    if (!isStillWatched)
        watch(window, false);
}

void SelectionOwner::watch(xcb_window_t window, bool on) {
    // Our own window has its events already, and must keep them.
    if (window == m_connection.window())
        return;
    const quint32 events = on ? XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY : 0;
    xcb_change_window_attributes(m_connection.handle(), window, XCB_CW_EVENT_MASK, &events);
}

void SelectionOwner::handleWindowGone(xcb_window_t window) {
    std::erase_if(m_transfers, [window](const auto& entry) { return entry.first.first == window; });
}

void SelectionOwner::expire(Instant now) {
    for (auto transfer = m_transfers.begin(); transfer != m_transfers.end();) {
        const auto current = transfer++;
        if (current->second.overdue <= now)
            end(current);
    }
}

std::optional<SelectionOwner::Instant> SelectionOwner::nextDeadline() const {
    std::optional<Instant> next;
    for (const auto& [key, transfer] : m_transfers) {
        if (!next || transfer.overdue < *next)
            next = transfer.overdue;
    }
    return next;
}

} // namespace vellumry
