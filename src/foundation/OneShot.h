// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QTimer>
#include <chrono>
#include <condition_variable>
#include <coroutine>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <type_traits>
#include <utility>
#include <variant>

namespace vellumry {

/// Queues `function` for the main thread's event loop. Any thread. Dropped when the application has gone.
void postToMain(std::function<void()> function);

/// A result that is delivered once, from any thread, and awaited once, on the main thread. The first delivery counts,
/// later ones are dropped. Copies are one and the same; each thread keeps its own copy.
///
/// What was delivered on the main thread is taken without suspending, or resumes the waiter inside `deliver`. What was
/// delivered on another thread always suspends the waiter, which the event loop resumes, so that the order of things
/// does not depend on which thread was faster.
template <typename Value>
class OneShot {
public:
    using Stored = std::conditional_t<std::is_void_v<Value>, std::monostate, Value>;

    /// True for the first delivery, which counts.
    bool deliver(Stored value = {}) const {
        return settle([&value](Shared& shared) { shared.value.emplace(std::move(value)); });
    }
    /// Awaiting it throws `error`.
    bool deliverError(std::exception_ptr error) const {
        return settle([&error](Shared& shared) { shared.error = std::move(error); });
    }
    /// Delivers `value` after `limit` if nothing has come by then. Main thread, once.
    void deliverAfter(std::chrono::milliseconds limit, Stored value = {}) const {
        auto* timer = new QTimer(QCoreApplication::instance());
        timer->setSingleShot(true);
        QObject::connect(timer, &QTimer::timeout, timer, [self = *this, value = std::move(value)]() mutable {
            self.m_shared->stopTimer();
            self.deliver(std::move(value));
        });
        timer->start(limit);
        m_shared->timer = timer;
    }

    /// Blocks for the result, at most `limit`; nothing when it did not come, or came as an error. In place of awaiting,
    /// and only for what another thread of this program delivers without waiting for another process.
    [[nodiscard]] std::optional<Stored> waitFor(std::chrono::milliseconds limit) const {
        std::unique_lock lock(m_shared->mutex);
        m_shared->arrived.wait_for(lock, limit, [this] { return m_shared->isDelivered; });
        return std::exchange(m_shared->value, std::nullopt);
    }

    [[nodiscard]] bool await_ready() const {
        const std::lock_guard lock(m_shared->mutex);
        return m_shared->isDelivered && m_shared->deliveredOn == std::this_thread::get_id();
    }
    void await_suspend(std::coroutine_handle<> waiting) const {
        const std::lock_guard lock(m_shared->mutex);
        if (m_shared->isDelivered) {
            postToMain([waiting] { waiting.resume(); });
            return;
        }
        m_shared->waiting = waiting;
        m_shared->waitingOn = std::this_thread::get_id();
    }
    Value await_resume() const {
        m_shared->stopTimer();
        const std::lock_guard lock(m_shared->mutex);
        if (m_shared->error)
            std::rethrow_exception(m_shared->error);
        if constexpr (!std::is_void_v<Value>)
            return *std::exchange(m_shared->value, std::nullopt);
    }

private:
    struct Shared {
        std::mutex mutex;
        std::condition_variable arrived;
        bool isDelivered = false;
        std::thread::id deliveredOn;
        std::optional<Stored> value;
        std::exception_ptr error;
        std::coroutine_handle<> waiting;
        std::thread::id waitingOn;
        /// Touched on the main thread only. Belongs to the application: the last to hold this may be another thread.
        QTimer* timer = nullptr;

        void stopTimer() {
            if (!timer)
                return;
            timer->stop();
            timer->disconnect(); // frees the value it would have delivered
            std::exchange(timer, nullptr)->deleteLater();
        }
    };

    template <typename Fill>
    bool settle(Fill fill) const {
        std::coroutine_handle<> waiting;
        bool isHere = false;
        {
            const std::lock_guard lock(m_shared->mutex);
            if (m_shared->isDelivered)
                return false;
            m_shared->isDelivered = true;
            m_shared->deliveredOn = std::this_thread::get_id();
            fill(*m_shared);
            waiting = std::exchange(m_shared->waiting, nullptr);
            isHere = m_shared->waitingOn == m_shared->deliveredOn;
        }
        m_shared->arrived.notify_all();
        // Behind this the object may be gone: it may lie in the coroutine that goes on.
        if (waiting && isHere)
            waiting.resume();
        else if (waiting)
            postToMain([waiting] { waiting.resume(); });
        return true;
    }

    std::shared_ptr<Shared> m_shared = std::make_shared<Shared>();
};

} // namespace vellumry
