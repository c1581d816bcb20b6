// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/selection/PipeReader.h"

#include <algorithm>
#include <cerrno>
#include <unistd.h>
#include <utility>

namespace vellumry {

namespace {

/// At a time, from one owner: other owners, and readers of ours, have their turn too.
constexpr qsizetype mostBytesAtATime = 4 * 1024 * 1024;
constexpr qsizetype leastRoom = 64 * 1024;

} // namespace

void PipeReader::read(Request request, Instant now) {
    const Instant overdue = now + request.silence;
    m_transfers.push_back(Transfer{std::move(request), {}, overdue});
}

void PipeReader::endAll() {
    while (!m_transfers.empty())
        finish(m_transfers.begin(), std::nullopt);
}

void PipeReader::endAllAt(Instant deadline) {
    for (Transfer& transfer : m_transfers)
        transfer.request.deadline = std::min(transfer.request.deadline, deadline);
}

void PipeReader::addDescriptors(std::vector<pollfd>& descriptors) const {
    for (const Transfer& transfer : m_transfers)
        descriptors.push_back({transfer.request.pipe.get(), POLLIN, 0});
}

void PipeReader::handle(const std::vector<pollfd>& descriptors, Instant now) {
    for (auto next = m_transfers.begin(); next != m_transfers.end();) {
        const auto transfer = next++;
        const bool isReady = std::ranges::any_of(descriptors, [&](const pollfd& polled) {
            return polled.fd == transfer->request.pipe.get() && polled.revents != 0;
        });
        if (!isReady)
            continue;
        if (auto ending = take(*transfer, now))
            finish(transfer, std::move(ending->outcome));
    }
}

std::optional<PipeReader::Ending> PipeReader::take(Transfer& transfer, Instant now) {
    QByteArray& collected = transfer.collected;
    for (qsizetype taken = 0; taken < mostBytesAtATime;) {
        const qsizetype size = collected.size();
        collected.resize(size + std::max(leastRoom, size / 2));
        const ssize_t got = ::read(transfer.request.pipe.get(), collected.data() + size,
                                   static_cast<std::size_t>(collected.size() - size));
        collected.resize(size + std::max<qsizetype>(got, 0));
        if (got < 0 && (errno == EAGAIN || errno == EINTR))
            return std::nullopt;
        if (got < 0)
            return Ending();
        if (got == 0)
            return Ending{Outcome{std::exchange(collected, {}), false}};
        if (collected.size() > transfer.request.maxBytes)
            return Ending{Outcome{{}, true}};
        taken += got;
        transfer.overdue = now + transfer.request.silence;
    }
    return std::nullopt;
}

void PipeReader::expire(Instant now) {
    for (auto next = m_transfers.begin(); next != m_transfers.end();) {
        const auto transfer = next++;
        if (transfer->deadline() <= now)
            finish(transfer, std::nullopt);
    }
}

std::optional<PipeReader::Instant> PipeReader::nextDeadline() const {
    const auto first = std::ranges::min_element(m_transfers, {}, &Transfer::deadline);
    return first == m_transfers.end() ? std::nullopt : std::optional(first->deadline());
}

void PipeReader::finish(Transfers::iterator transfer, std::optional<Outcome> outcome) {
    const auto done = std::move(transfer->request.done);
    m_transfers.erase(transfer);
    done(std::move(outcome));
}

} // namespace vellumry
