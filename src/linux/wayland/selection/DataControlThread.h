// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"
#include "linux/wayland/selection/DataControlEngine.h"

#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace vellumry {

/// Runs a `DataControlEngine`: waits for the compositor, for pipes, for commands and for the engine's next deadline,
/// and for nothing else, so an idle pasteboard costs no wake-up. Made and destroyed on the main thread; the destructor
/// ends the thread.
class DataControlThread {
public:
    using Command = std::function<void(DataControlEngine& engine, DataControlEngine::Instant now)>;

    /// Fails when the system gives no event descriptor.
    [[nodiscard]] static OrReason<std::unique_ptr<DataControlThread>> create(std::unique_ptr<DataControlEngine> engine);
    ~DataControlThread();
    DataControlThread(const DataControlThread&) = delete;
    DataControlThread& operator=(const DataControlThread&) = delete;

    /// Queues a command; it runs even when the connection has broken or the thread is ending. Any thread.
    void post(Command command);
    /// For what the engine answers on any thread.
    [[nodiscard]] const DataControlEngine& engine() const { return *m_engine; }

private:
    DataControlThread(std::unique_ptr<DataControlEngine> engine, Descriptor wakeDescriptor);
    void run();
    /// False when the thread is to end.
    bool runCommands();
    /// Waits for something to do, and does what pipes and compositor want.
    void wait();
    void noteBreak();
    [[nodiscard]] int sleepingTime() const;
    void wake() const;

    const std::unique_ptr<DataControlEngine> m_engine;
    const Descriptor m_wakeDescriptor;
    bool m_isBroken = false; ///< pasteboard thread
    std::mutex m_mutex;
    std::vector<Command> m_commands; ///< guarded
    bool m_isEnding = false;         ///< guarded
    std::thread m_thread;
};

} // namespace vellumry
