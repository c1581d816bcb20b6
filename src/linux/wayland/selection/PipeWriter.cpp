// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/selection/PipeWriter.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace vellumry {

namespace {

constexpr std::size_t mostTransfers = 256;

} // namespace

void PipeWriter::write(Descriptor pipe, QByteArray bytes, Instant now) {
    fcntl(pipe.get(), F_SETFL, fcntl(pipe.get(), F_GETFL) | O_NONBLOCK);
    Transfer transfer{std::move(pipe), std::move(bytes), 0, now + m_stalledLimit};
    if (push(transfer, now))
        return;
    if (m_transfers.size() >= mostTransfers)
        m_transfers.erase(std::ranges::min_element(m_transfers, {}, &Transfer::overdue));
    m_transfers.push_back(std::move(transfer));
}

bool PipeWriter::push(Transfer& transfer, Instant now) const {
    while (transfer.offset < transfer.bytes.size()) {
        const ssize_t written = ::write(transfer.pipe.get(), transfer.bytes.constData() + transfer.offset,
                                        static_cast<std::size_t>(transfer.bytes.size() - transfer.offset));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return errno != EAGAIN;
        transfer.offset += written;
        transfer.overdue = now + m_stalledLimit;
    }
    return true;
}

void PipeWriter::addDescriptors(std::vector<pollfd>& descriptors) const {
    for (const Transfer& transfer : m_transfers)
        descriptors.push_back({transfer.pipe.get(), POLLOUT, 0});
}

void PipeWriter::handle(const std::vector<pollfd>& descriptors, Instant now) {
    std::erase_if(m_transfers, [&](Transfer& transfer) {
        const bool isReady = std::ranges::any_of(
            descriptors, [&](const pollfd& polled) { return polled.fd == transfer.pipe.get() && polled.revents != 0; });
        return isReady && push(transfer, now);
    });
}

void PipeWriter::expire(Instant now) {
    std::erase_if(m_transfers, [now](const Transfer& transfer) { return transfer.overdue <= now; });
}

std::optional<PipeWriter::Instant> PipeWriter::nextDeadline() const {
    const auto first = std::ranges::min_element(m_transfers, {}, &Transfer::overdue);
    return first == m_transfers.end() ? std::nullopt : std::optional(first->overdue);
}

} // namespace vellumry
