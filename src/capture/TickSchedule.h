// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <optional>

namespace vellumry {

/// When to look at a pasteboard that tells of its changes: a moment after the last word of a burst, so that a program
/// which writes in several steps is read once, and soon after the first word in any case. A value over a monotonic
/// clock in milliseconds.
class TickSchedule {
public:
    static constexpr qint64 quiet = 20;    ///< from the last notification of a burst to the tick
    static constexpr qint64 longest = 250; ///< from the first notification of a burst to the tick at the latest

    /// A change was told of at `now`; gives the time of the next tick, never earlier than `now`.
    [[nodiscard]] qint64 notified(qint64 now);
    /// The tick runs: the next notification begins a burst of its own.
    void ticked() { m_first.reset(); }

private:
    std::optional<qint64> m_first;
};

} // namespace vellumry
