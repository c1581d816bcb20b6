// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/selection/CurrentOffer.h"

#include "foundation/Logging.h"

#include <utility>

namespace vellumry {

namespace {

constexpr qint64 longestTargetList = 1024 * 1024;

} // namespace

void CurrentOffer::setOwner(xcb_atom_t selection, Ownership ownership) {
    reset();
    m_selection = selection;
    m_ownership = ownership;
}

void CurrentOffer::ask(xcb_atom_t selection, Ownership ownership, Instant now) {
    setOwner(selection, ownership);
    m_isAsking = true;
    askForTargets(ownership.since, now + m_limits.targetList, now);
}

void CurrentOffer::reset() {
    m_ownership.reset();
    answered(nullptr);
}

void CurrentOffer::read(Result result, Instant now) {
    if (!m_ownership) {
        result.deliver(nullptr);
        return;
    }
    if (m_offer && now < m_offer->moment.deadline) {
        result.deliver(m_offer);
        return;
    }
    m_waiting.push_back(std::move(result));
    if (std::exchange(m_isAsking, true))
        return;
    askForTargets(m_ownership->since, now + m_limits.targetList, now);
}

void CurrentOffer::askForTargets(xcb_timestamp_t time, Instant answerDeadline, Instant now) {
    SelectionReader::Request request;
    request.selection = m_selection;
    request.target = m_connection.atom(QStringLiteral("TARGETS"));
    request.time = time;
    request.maxBytes = longestTargetList;
    request.silence = m_limits.targetList;
    request.deadline = answerDeadline;
    request.done = [=, this, count = m_ownership->changeCount](std::optional<XcbProperty> targets) {
        // The reading of an owner that was replaced is ended when it is no longer awaited.
        if (!m_ownership || m_ownership->changeCount != count)
            return;
        const Instant answeredAt = std::chrono::steady_clock::now();
        if (targets && !targets->isTooLong)
            answered(SelectionOffer::of(m_connection, *targets, m_limits.targetCount,
                                        {count, time, answeredAt + m_limits.copy}));
        else if (time != XCB_CURRENT_TIME && answeredAt < answerDeadline)
            // Refused. Owners that note a later time than they gave the server take our request for one to their
            // predecessor.
            askForTargets(XCB_CURRENT_TIME, answerDeadline, answeredAt);
        else {
            qCWarning(logging::x11) << "A program that copied something did not say in time what it offers.";
            answered(nullptr);
        }
    };
    m_reader.read(std::move(request), now);
}

void CurrentOffer::answered(std::shared_ptr<const SelectionOffer> offer) {
    m_isAsking = false;
    m_offer = std::move(offer);
    for (const Result& result : std::exchange(m_waiting, {}))
        result.deliver(m_offer);
}

} // namespace vellumry
