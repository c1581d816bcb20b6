// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/selection/SelectionReader.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

namespace vellumry {

namespace {

constexpr int propertyCount = 64;
constexpr std::chrono::seconds drainLimit{5};
/// A size that an owner announces is only its word; more than this is not set aside for it.
constexpr qint64 trustedAnnouncement = 16 * 1024 * 1024;

XcbProperty tooLong() {
    XcbProperty property;
    property.isTooLong = true;
    return property;
}

} // namespace

void SelectionReader::read(Request request, Instant now) {
    const std::optional<xcb_atom_t> property = freeProperty();
    if (!property) {
        request.done(std::nullopt);
        return;
    }
    m_connection.deleteProperty(m_connection.window(), *property);
    xcb_convert_selection(m_connection.handle(), m_connection.window(), request.selection, request.target, *property,
                          request.time);
    Transfer& transfer = m_transfers[*property];
    transfer.sequence = ++m_sequence;
    transfer.ownership = m_ownership;
    transfer.owner = m_owner;
    transfer.request = std::move(request);
    transfer.overdue = isNextInTurn(transfer) ? now + transfer.request.silence : transfer.request.deadline;
}

/// True when the owner has nothing else of ours to do before it.
bool SelectionReader::isNextInTurn(const Transfer& transfer) const {
    return std::ranges::none_of(m_transfers, [&](const auto& entry) {
        const Transfer& other = entry.second;
        const bool isUnanswered = other.phase == Phase::asked || other.phase == Phase::abandoned;
        return isUnanswered && other.ownership == transfer.ownership &&
               other.request.selection == transfer.request.selection && other.sequence > m_answered &&
               other.sequence < transfer.sequence;
    });
}

/// The owner goes on to the next request: its silence about that one begins.
void SelectionReader::noteAnswer(const Transfer& answered, Instant now) {
    if (answered.ownership != m_ownership)
        return;
    // What was asked before and passed over will not be answered any more.
    m_answered = std::max(m_answered, answered.sequence);
    for (auto& [property, transfer] : m_transfers) {
        const bool isWaiting = transfer.phase == Phase::asked && transfer.sequence > m_answered;
        if (isWaiting && transfer.ownership == m_ownership && isNextInTurn(transfer))
            transfer.overdue = now + transfer.request.silence;
    }
}

std::optional<xcb_atom_t> SelectionReader::freeProperty() {
    for (int i = 0; i < propertyCount; ++i) {
        const xcb_atom_t property = m_connection.atom(QStringLiteral("VELLUMRY_TRANSFER_%1").arg(i));
        if (property != XCB_ATOM_NONE && !m_transfers.contains(property))
            return property;
    }
    // All in use: the answer that has been missing longest will hardly come now.
    auto oldest = m_transfers.end();
    for (auto transfer = m_transfers.begin(); transfer != m_transfers.end(); ++transfer) {
        if (transfer->second.phase != Phase::abandoned)
            continue;
        if (oldest == m_transfers.end() || transfer->second.sequence < oldest->second.sequence)
            oldest = transfer;
    }
    if (oldest == m_transfers.end())
        return std::nullopt;
    const xcb_atom_t property = oldest->first;
    m_transfers.erase(oldest);
    m_reused.insert(property);
    return property;
}

SelectionReader::Transfers::iterator SelectionReader::transferFor(const xcb_selection_notify_event_t& event) {
    if (event.property != XCB_ATOM_NONE)
        return m_transfers.find(event.property);
    // A refusal does not name the property; owners answer in the order in which they were asked.
    auto match = m_transfers.end();
    for (auto transfer = m_transfers.begin(); transfer != m_transfers.end(); ++transfer) {
        const Transfer& candidate = transfer->second;
        const bool isOpen = candidate.phase == Phase::asked || candidate.phase == Phase::abandoned;
        if (!isOpen || candidate.request.selection != event.selection || candidate.request.target != event.target ||
            candidate.request.time != event.time)
            continue;
        if (match == m_transfers.end() || candidate.sequence < match->second.sequence)
            match = transfer;
    }
    return match;
}

void SelectionReader::handleSelectionNotify(const xcb_selection_notify_event_t& event, Instant now) {
    const auto found = transferFor(event);
    if (found == m_transfers.end())
        return;
    Transfer& transfer = found->second;
    if (transfer.phase != Phase::asked && transfer.phase != Phase::abandoned)
        return;
    const bool isToThis = event.target == transfer.request.target && event.time == transfer.request.time;
    if (m_reused.contains(found->first) && !isToThis) {
        m_connection.deleteProperty(m_connection.window(), found->first);
        return;
    }
    noteAnswer(transfer, now);
    if (event.property == XCB_ATOM_NONE) {
        finish(found, std::nullopt);
        return;
    }

    constexpr qint64 announcementBytes = 64;
    const bool isWanted = transfer.phase == Phase::asked;
    const qint64 maxBytes = isWanted ? std::max(transfer.request.maxBytes, announcementBytes) : announcementBytes;
    std::optional<XcbProperty> answer = m_connection.property(m_connection.window(), found->first, maxBytes, true);
    if (answer && answer->type == m_connection.atom(QStringLiteral("INCR"))) {
        beginIncremental(found, *answer, now);
        return;
    }
    if (answer && answer->type == XCB_ATOM_NONE)
        answer.reset();
    else if (answer && answer->bytes.size() > transfer.request.maxBytes)
        answer = tooLong();
    finish(found, std::move(answer));
}

/// Taking the announcement off the window, which `property` has done, asks for the first chunk.
void SelectionReader::beginIncremental(Transfers::iterator found, const XcbProperty& announcement, Instant now) {
    Transfer& transfer = found->second;
    if (transfer.phase == Phase::abandoned) {
        transfer.phase = Phase::draining;
        transfer.overdue = transfer.request.deadline = now + drainLimit;
        return;
    }
    transfer.phase = Phase::incremental;
    transfer.overdue = now + transfer.request.silence;
    quint32 announced = 0;
    if (announcement.bytes.size() >= qsizetype(sizeof announced))
        std::memcpy(&announced, announcement.bytes.constData(), sizeof announced);
    transfer.collected.bytes.reserve(std::min({qint64(announced), transfer.request.maxBytes, trustedAnnouncement}));
}

void SelectionReader::handleNewValue(xcb_atom_t property, Instant now) {
    const auto found = m_transfers.find(property);
    if (found == m_transfers.end())
        return;
    if (found->second.phase == Phase::incremental) {
        takeChunk(found, now);
    } else if (found->second.phase == Phase::draining) {
        // Nothing is read but whether this was the end.
        const std::optional<XcbProperty> chunk = m_connection.property(m_connection.window(), property, 0, true);
        if (chunk && !chunk->isTooLong && chunk->type != XCB_ATOM_NONE)
            m_transfers.erase(found);
    }
}

void SelectionReader::takeChunk(Transfers::iterator found, Instant now) {
    Transfer& transfer = found->second;
    XcbProperty& collected = transfer.collected;
    const qint64 room = transfer.request.maxBytes - collected.bytes.size();
    const std::optional<XcbProperty> chunk = m_connection.property(m_connection.window(), found->first, room, true);
    if (!chunk || chunk->isTooLong) {
        giveUp(found, now, chunk);
        return;
    }
    // The property may be gone when the owner's own clumsiness deleted it.
    if (chunk->type == XCB_ATOM_NONE)
        return;
    if (chunk->bytes.isEmpty()) {
        if (collected.format == 0) {
            collected.type = chunk->type;
            collected.format = chunk->format;
        }
        if (collected.bytes.capacity() > collected.bytes.size() * 5 / 4)
            collected.bytes.squeeze();
        finish(found, std::move(collected));
        return;
    }
    if (collected.format == 0) {
        collected.type = chunk->type;
        collected.format = chunk->format;
    }
    collected.bytes.append(chunk->bytes);
    transfer.overdue = now + transfer.request.silence;
}

void SelectionReader::finish(Transfers::iterator found, std::optional<XcbProperty> outcome) {
    const Done done = std::move(found->second.request.done);
    m_transfers.erase(found);
    if (done)
        done(std::move(outcome));
}

void SelectionReader::giveUp(Transfers::iterator found, Instant now, std::optional<XcbProperty> outcome) {
    Transfer& transfer = found->second;
    const Done done = std::exchange(transfer.request.done, nullptr);
    transfer.collected = {};
    if (transfer.phase == Phase::incremental) {
        transfer.phase = Phase::draining;
        transfer.overdue = transfer.request.deadline = now + drainLimit;
    } else {
        transfer.phase = Phase::abandoned;
    }
    if (done)
        done(std::move(outcome));
}

void SelectionReader::setOwner(xcb_atom_t selection, xcb_window_t owner, Instant now) {
    ++m_ownership;
    m_owner = owner;
    std::vector<xcb_atom_t> ending;
    for (const auto& [property, transfer] : m_transfers) {
        const bool isAwaited = transfer.phase == Phase::asked || transfer.phase == Phase::incremental;
        if (isAwaited && transfer.request.selection == selection)
            ending.push_back(property);
    }
    for (const xcb_atom_t property : ending) {
        if (const auto found = m_transfers.find(property); found != m_transfers.end())
            giveUp(found, now);
    }
}

bool SelectionReader::isOwedAnswersBy(xcb_window_t windowOfClient) const {
    return std::ranges::any_of(m_transfers, [&](const auto& entry) {
        const Transfer& transfer = entry.second;
        const bool isUnanswered = transfer.phase == Phase::asked || transfer.phase == Phase::abandoned;
        return isUnanswered && m_connection.isSameClient(transfer.owner, windowOfClient);
    });
}

void SelectionReader::expire(Instant now) {
    std::vector<xcb_atom_t> overdue;
    for (const auto& [property, transfer] : m_transfers) {
        if (transfer.phase != Phase::abandoned && transfer.deadline() <= now)
            overdue.push_back(property);
    }
    for (const xcb_atom_t property : overdue) {
        const auto found = m_transfers.find(property);
        if (found == m_transfers.end())
            continue;
        if (found->second.phase == Phase::draining)
            found->second.phase = Phase::abandoned;
        else
            giveUp(found, now);
    }
}

std::optional<SelectionReader::Instant> SelectionReader::nextDeadline() const {
    std::optional<Instant> next;
    for (const auto& [property, transfer] : m_transfers) {
        if (transfer.phase != Phase::abandoned && (!next || transfer.deadline() < *next))
            next = transfer.deadline();
    }
    return next;
}

} // namespace vellumry
