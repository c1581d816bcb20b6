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

    /// Runs `job` on the executor, which destroys it too. Awaiting it on the main thread suspends and resumes there
    /// with the job's result, or with the exception it threw. The result must be awaited.
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

/// A job and what became of it.
template <typename Job>
struct ExecutorCall {
    using Result = std::invoke_result_t<Job>;
    using Stored = std::conditional_t<std::is_void_v<Result>, bool, Result>;

    explicit ExecutorCall(Job wanted)
        : job(std::move(wanted)) {}
    void run() {
        try {
            if constexpr (std::is_void_v<Result>) {
                (*job)();
                value = true;
            } else {
                value.emplace((*job)());
            }
        } catch (...) {
            error = std::current_exception();
        }
        // Here, not where the result is awaited: freeing what a job holds may take as long as the job.
        job.reset();
    }

    std::optional<Job> job;
    std::optional<Stored> value;
    std::exception_ptr error;
};

template <typename Job>
class ExecutorAwaiter {
public:
    using Result = std::invoke_result_t<Job>;

    ExecutorAwaiter(SerialExecutor& executor, Job job)
        : m_executor(&executor)
        , m_call(std::make_shared<ExecutorCall<Job>>(std::move(job))) {}

    bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> waiting) {
        m_executor->post([call = m_call, waiting] {
            call->run();
            postToMain([waiting] { waiting.resume(); });
        });
    }
    Result await_resume() {
        if (m_call->error)
            std::rethrow_exception(m_call->error);
        if constexpr (!std::is_void_v<Result>)
            return std::move(*m_call->value);
    }

private:
    SerialExecutor* m_executor;
    std::shared_ptr<ExecutorCall<Job>> m_call;
};

} // namespace detail

template <typename Job>
auto SerialExecutor::run(Job job) {
    return detail::ExecutorAwaiter<Job>(*this, std::move(job));
}

} // namespace vellumry
