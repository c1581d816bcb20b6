// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/OneShot.h"

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

    /// Queues `job`, which must not throw: its outcome is not awaited.
    void post(std::function<void()> job);

    /// Runs `job` on the executor, which destroys it too. To be awaited on the main thread, which suspends and resumes
    /// there with the job's result, or with the exception it threw.
    template <typename Job>
    [[nodiscard]] OneShot<std::invoke_result_t<Job&>> run(Job job);

    /// True on the executor's own thread.
    [[nodiscard]] bool isCurrent() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

template <typename Job>
OneShot<std::invoke_result_t<Job&>> SerialExecutor::run(Job job) {
    using Result = std::invoke_result_t<Job&>;
    const OneShot<Result> result;
    post([result, held = std::make_shared<std::optional<Job>>(std::move(job))] {
        // The job goes before its result is told: freeing what it holds may take as long as the job.
        try {
            if constexpr (std::is_void_v<Result>) {
                (**held)();
                held->reset();
                result.deliver();
            } else {
                Result value = (**held)();
                held->reset();
                result.deliver(std::move(value));
            }
        } catch (...) {
            held->reset();
            result.deliverError(std::current_exception());
        }
    });
    return result;
}

} // namespace vellumry
