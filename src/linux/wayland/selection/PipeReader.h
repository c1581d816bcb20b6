// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/wayland/Descriptor.h"

#include <QByteArray>
#include <chrono>
#include <functional>
#include <list>
#include <optional>
#include <poll.h>
#include <vector>

namespace vellumry {

/// Takes in what owners of a selection write into pipes, several at once. An owner that falls silent, never ends, or
/// writes more than is wanted loses its pipe, and costs nothing beyond. One thread; time is handed in.
class PipeReader {
public:
    using Instant = std::chrono::steady_clock::time_point;
    struct Outcome {
        QByteArray bytes;
        bool wasLarger = false; ///< there was more than was asked for, and nothing is here
    };
    struct Request {
        Descriptor pipe;
        qint64 maxBytes = 0;
        std::chrono::milliseconds silence{}; ///< between two signs of life
        Instant deadline;                    ///< for all of it
        /// Nothing when the owner fell silent.
        std::function<void(std::optional<Outcome> outcome)> done;
    };

    void read(Request request, Instant now);
    /// Gives up on everything.
    void endAll();
    /// Gives up on what has not come by then.
    void endAllAt(Instant deadline);
    void addDescriptors(std::vector<pollfd>& descriptors) const;
    /// Reads from those of `descriptors` that are ours and have something.
    void handle(const std::vector<pollfd>& descriptors, Instant now);
    /// Gives up on what is overdue.
    void expire(Instant now);
    [[nodiscard]] std::optional<Instant> nextDeadline() const;

private:
    struct Transfer {
        Request request;
        QByteArray collected;
        Instant overdue; ///< the silence that counts
        [[nodiscard]] Instant deadline() const { return std::min(overdue, request.deadline); }
    };
    using Transfers = std::list<Transfer>;

    /// The end of a transfer, without an outcome when its pipe failed.
    struct Ending {
        std::optional<Outcome> outcome;
    };
    [[nodiscard]] static std::optional<Ending> take(Transfer& transfer, Instant now);
    void finish(Transfers::iterator transfer, std::optional<Outcome> outcome);

    Transfers m_transfers;
};

} // namespace vellumry
