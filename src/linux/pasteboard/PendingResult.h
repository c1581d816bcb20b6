// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/SerialExecutor.h"

#include <chrono>
#include <condition_variable>
#include <coroutine>
#include <memory>
#include <mutex>
#include <optional>

namespace vellumry {

/// A value that the pasteboard thread delivers once and the main thread takes once. Copies share the value. Await a
/// local copy, on the main thread: a value that is there already is taken without suspending.
template <typename Value>
class PendingResult {
public:
    /// Hands the value over; what comes after the first is ignored. Any thread.
    void deliver(Value value) const {
        std::coroutine_handle<> waiting;
        {
            const std::lock_guard lock(m_shared->mutex);
            if (m_shared->delivered)
                return;
            m_shared->delivered = true;
            m_shared->value.emplace(std::move(value));
            waiting = std::exchange(m_shared->waiting, nullptr);
        }
        m_shared->arrived.notify_all();
        if (waiting)
            postToMain([waiting] { waiting.resume(); });
    }

    /// Blocks for the value, at most `limit`; nothing when it did not come. Only for what the X server alone answers.
    [[nodiscard]] std::optional<Value> waitFor(std::chrono::milliseconds limit) const {
        std::unique_lock lock(m_shared->mutex);
        m_shared->arrived.wait_for(lock, limit, [this] { return m_shared->delivered; });
        return std::exchange(m_shared->value, std::nullopt);
    }

    bool await_ready() const {
        const std::lock_guard lock(m_shared->mutex);
        return m_shared->delivered;
    }
    bool await_suspend(std::coroutine_handle<> waiting) const {
        const std::lock_guard lock(m_shared->mutex);
        if (m_shared->delivered)
            return false;
        m_shared->waiting = waiting;
        return true;
    }
    Value await_resume() const {
        const std::lock_guard lock(m_shared->mutex);
        return std::move(*m_shared->value);
    }

private:
    struct Shared {
        std::mutex mutex;
        std::condition_variable arrived;
        bool delivered = false;
        std::optional<Value> value;
        std::coroutine_handle<> waiting;
    };
    std::shared_ptr<Shared> m_shared = std::make_shared<Shared>();
};

} // namespace vellumry
