// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/SerialExecutor.h"

#include <QTimer>
#include <chrono>
#include <coroutine>
#include <functional>
#include <memory>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

namespace vellumry {

namespace detachedrun {

/// Threads whose deadline has passed and that still run. Main thread.
inline int leftBehind = 0;
/// With so many of them whatever they wait for has gone for good, and further jobs are not begun.
constexpr int mostLeftBehind = 32;

} // namespace detachedrun

/// Awaits a job that may block for good, such as a look at a disk that has gone: it runs on a thread of its own, which
/// is left behind when the deadline passes. Created and awaited on the main thread, once; gives the job's result, or
/// nothing after the deadline, without a thread, and while too many threads were left behind. The job must own what it
/// uses and must not throw.
template <typename Result>
class DetachedRun {
public:
    DetachedRun(std::function<Result()> job, std::chrono::milliseconds deadline)
        : m_job(std::move(job))
        , m_deadline(deadline) {}

    [[nodiscard]] bool await_ready() const noexcept { return false; }
    bool await_suspend(std::coroutine_handle<> waiting) {
        if (detachedrun::leftBehind >= detachedrun::mostLeftBehind)
            return false;
        m_state->waiting = waiting;
        try {
            std::thread([state = m_state, job = std::move(m_job)] {
                auto result = std::make_shared<Result>(job());
                postToMain([state, result] { state->finish(std::move(*result)); });
            }).detach();
        } catch (const std::system_error&) {
            return false; // no thread to be had: go on without a result
        }
        m_state->startDeadline(m_deadline, m_state);
        return true;
    }
    [[nodiscard]] std::optional<Result> await_resume() { return std::move(m_state->result); }

private:
    /// Touched on the main thread only, and free of what would have to die there: the blocked thread may be its last
    /// holder.
    struct State {
        std::optional<Result> result;
        std::coroutine_handle<> waiting;
        QTimer* timer = nullptr; ///< belongs to the application

        void startDeadline(std::chrono::milliseconds deadline, const std::shared_ptr<State>& self) {
            timer = new QTimer(QCoreApplication::instance());
            timer->setSingleShot(true);
            QObject::connect(timer, &QTimer::timeout, timer, [self] {
                ++detachedrun::leftBehind;
                self->finish(std::nullopt);
            });
            timer->start(deadline);
        }
        void finish(std::optional<Result> outcome) {
            if (!waiting) {
                --detachedrun::leftBehind; // the thread has ended after all
                return;
            }
            timer->deleteLater();
            result = std::move(outcome);
            std::exchange(waiting, nullptr).resume();
        }
    };

    std::function<Result()> m_job;
    std::chrono::milliseconds m_deadline;
    std::shared_ptr<State> m_state = std::make_shared<State>();
};

} // namespace vellumry
