// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/SerialExecutor.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <pthread.h>
#include <string>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace vellumry {

struct SerialExecutor::Private {
    std::mutex mutex;
    std::condition_variable wake;
    std::deque<std::function<void()>> jobs;
    bool ending = false;
    std::thread thread;

    void work() {
        std::unique_lock lock(mutex);
        for (;;) {
            wake.wait(lock, [this] { return ending || !jobs.empty(); });
            if (jobs.empty())
                return;
            {
                // The job is destroyed unlocked too: what it holds may post again.
                const std::function<void()> job = std::move(jobs.front());
                jobs.pop_front();
                lock.unlock();
                job();
            }
            lock.lock();
        }
    }
};

SerialExecutor::SerialExecutor(const char* name, bool lowPriority)
    : d(std::make_unique<Private>()) {
    d->thread = std::thread([this, threadName = std::string(name).substr(0, 15), lowPriority] {
        pthread_setname_np(pthread_self(), threadName.c_str());
        // On Linux a nice value belongs to the thread; failing to lower it changes nothing but speed.
        if (lowPriority)
            (void)setpriority(PRIO_PROCESS, static_cast<id_t>(gettid()), 15);
        d->work();
    });
}

SerialExecutor::~SerialExecutor() {
    {
        const std::lock_guard lock(d->mutex);
        d->ending = true;
    }
    d->wake.notify_one();
    d->thread.join();
}

void SerialExecutor::post(std::function<void()> job) {
    {
        const std::lock_guard lock(d->mutex);
        d->jobs.push_back(std::move(job));
    }
    d->wake.notify_one();
}

bool SerialExecutor::isCurrent() const {
    return std::this_thread::get_id() == d->thread.get_id();
}

} // namespace vellumry
