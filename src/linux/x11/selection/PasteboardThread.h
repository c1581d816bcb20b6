// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/selection/PasteboardEngine.h"

#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace vellumry {

/// Runs a `PasteboardEngine`: waits for the X server, for commands and for the engine's next deadline, and for nothing
/// else, so an idle pasteboard costs no wake-up; only, when things have been quiet for a moment, it overwrites what was
/// last copied in the connection's buffers. Made and destroyed on the main thread; the destructor ends the thread.
class PasteboardThread {
public:
    using Command = std::function<void(PasteboardEngine& engine, PasteboardEngine::Instant now)>;

    /// Fails when the system gives no event descriptor.
    [[nodiscard]] static OrReason<std::unique_ptr<PasteboardThread>> create(std::unique_ptr<PasteboardEngine> engine);
    ~PasteboardThread();
    PasteboardThread(const PasteboardThread&) = delete;
    PasteboardThread& operator=(const PasteboardThread&) = delete;

    /// Queues a command; it runs even when the connection has broken or the thread is ending. Any thread.
    void post(Command command);
    /// For what the engine answers on any thread.
    [[nodiscard]] const PasteboardEngine& engine() const { return *m_engine; }

private:
    PasteboardThread(std::unique_ptr<PasteboardEngine> engine, int wakeDescriptor);
    void run();
    void handleEvents();
    /// False when the thread is to end.
    bool runCommands();
    void sleepUntilNeeded();
    [[nodiscard]] int sleepingTime() const;
    void wake() const;

    const std::unique_ptr<PasteboardEngine> m_engine;
    const int m_wakeDescriptor;
    bool m_isBroken = false;  ///< pasteboard thread
    bool m_hasWorked = false; ///< since the buffers were overwritten; pasteboard thread
    std::mutex m_mutex;
    std::vector<Command> m_commands; ///< guarded
    bool m_isEnding = false;         ///< guarded
    std::thread m_thread;
};

} // namespace vellumry
