// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/wayland/Descriptor.h"

#include <QByteArray>
#include <chrono>
#include <list>
#include <optional>
#include <poll.h>
#include <vector>

namespace vellumry {

/// Writes what we hold into the pipes of its requestors, several at once. A reader that stops reading loses
/// its pipe after a while; with hundreds of them the one that has stood longest goes first. One thread, which must have
/// SIGPIPE blocked; time is handed in.
class PipeWriter {
public:
    using Instant = std::chrono::steady_clock::time_point;

    explicit PipeWriter(std::chrono::milliseconds stalledLimit)
        : m_stalledLimit(stalledLimit) {}

    /// Begins at once: what fits into the pipe is in it on return.
    void write(Descriptor pipe, QByteArray bytes, Instant now);
    void addDescriptors(std::vector<pollfd>& descriptors) const;
    /// Writes to those of `descriptors` that are ours and have room.
    void handle(const std::vector<pollfd>& descriptors, Instant now);
    void expire(Instant now);
    [[nodiscard]] std::optional<Instant> nextDeadline() const;

private:
    struct Transfer {
        Descriptor pipe;
        QByteArray bytes;
        qsizetype offset = 0;
        Instant overdue;
    };

    /// True when the transfer is over, well or not.
    [[nodiscard]] bool push(Transfer& transfer, Instant now) const;

    const std::chrono::milliseconds m_stalledLimit;
    std::list<Transfer> m_transfers;
};

} // namespace vellumry
