// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/keyring/GObjectPointer.h"

#include <chrono>
#include <condition_variable>
#include <gio/gio.h>
#include <mutex>
#include <stop_token>
#include <thread>

namespace vellumry {

/// Cancels blocking GIO calls that take longer than allowed, or that are no longer awaited. Lives on the stack
/// around the calls that are given `cancellable()`; one thread makes the calls, a second one watches the time.
class CallDeadline {
public:
    explicit CallDeadline(std::chrono::milliseconds limit, std::stop_token stop = {});
    CallDeadline(const CallDeadline&) = delete;
    CallDeadline& operator=(const CallDeadline&) = delete;
    /// Ends the watch; what was not cancelled until then never will be.
    ~CallDeadline();

    [[nodiscard]] GCancellable* cancellable() const { return m_cancellable.get(); }
    [[nodiscard]] bool hasPassed() const { return g_cancellable_is_cancelled(m_cancellable.get()); }

private:
    GObjectPointer<GCancellable> m_cancellable{g_cancellable_new()};
    std::mutex m_mutex;
    std::condition_variable_any m_changed;
    bool m_isOver = false;
    std::thread m_watch;
};

} // namespace vellumry
