// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QMetaObject>
#include <coroutine>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <type_traits>

namespace vellumry {

/// A thread that runs jobs one after the other, in the order they came. The destructor runs what is queued, then joins.
/// `post` and `run` may be called from any thread.
class SerialExecutor {
public:
    /// `name` shows in debuggers; `lowPriority` puts the thread behind everything the user waits for.
    explicit SerialExecutor(const char* name, bool lowPriority = false);
    ~SerialExecutor();
    SerialExecutor(const SerialExecutor&) = delete;
    SerialExecutor& operator=(const SerialExecutor&) = delete;

    /// Queues `job`, which must not throw: nobody waits for it.
    void post(std::function<void()> job);

    /// Runs `job` on the executor. Awaiting it on the main thread suspends and resumes there with the job's result, or
    /// with the exception it threw. The result must be awaited.
    template <typename Job>
    [[nodiscard]] auto run(Job job);

    /// True on the executor's own thread.
    [[nodiscard]] bool isCurrent() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

/// Queues `function` for the main thread's event loop. Any thread. Dropped when the application has gone.
void postToMain(std::function<void()> function);

namespace detail {

template <typename Result>
struct ExecutorOutcome {
    using Stored = std::conditional_t<std::is_void_v<Result>, bool, Result>;
    std::optional<Stored> value;
    std::exception_ptr error;
};

template <typename Job>
class ExecutorAwaiter {
public:
    using Result = std::invoke_result_t<Job>;

    ExecutorAwaiter(SerialExecutor& executor, Job job)
        : m_executor(&executor)
        , m_job(std::move(job)) {}

    bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> waiting) {
        m_executor->post([outcome = m_outcome, job = std::move(m_job), waiting]() mutable {
            try {
                if constexpr (std::is_void_v<Result>) {
                    job();
                    outcome->value = true;
                } else {
                    outcome->value.emplace(job());
                }
            } catch (...) {
                outcome->error = std::current_exception();
            }
            postToMain([waiting] { waiting.resume(); });
        });
    }
    Result await_resume() {
        if (m_outcome->error)
            std::rethrow_exception(m_outcome->error);
        if constexpr (!std::is_void_v<Result>)
            return std::move(*m_outcome->value);
    }

private:
    SerialExecutor* m_executor;
    Job m_job;
    std::shared_ptr<ExecutorOutcome<Result>> m_outcome = std::make_shared<ExecutorOutcome<Result>>();
};

} // namespace detail

template <typename Job>
auto SerialExecutor::run(Job job) {
    return detail::ExecutorAwaiter<Job>(*this, std::move(job));
}

} // namespace vellumry
