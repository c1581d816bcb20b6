// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/selection/PasteboardThread.h"

#include "linux/x11/selection/XcbBuffers.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

namespace vellumry {

namespace {

/// So many events at a time, then a look at commands and deadlines: a client that never stops must not keep us from
/// them.
constexpr int eventsAtATime = 64;
/// Milliseconds after which what was copied or pasted is wiped out of the buffers: once for many copies, and well
/// within the shortest life of a secret.
constexpr int quietTime = 2000;

} // namespace

OrReason<std::unique_ptr<PasteboardThread>> PasteboardThread::create(std::unique_ptr<PasteboardEngine> engine) {
    const int descriptor = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (descriptor < 0)
        return std::unexpected(Reason{QStringLiteral("no event descriptor, error %1").arg(errno)});
    return std::unique_ptr<PasteboardThread>(new PasteboardThread(std::move(engine), descriptor));
}

PasteboardThread::PasteboardThread(std::unique_ptr<PasteboardEngine> engine, int wakeDescriptor)
    : m_engine(std::move(engine))
    , m_wakeDescriptor(wakeDescriptor) {
    // Before anybody can have a change count: no change of owner is missed from then on.
    m_engine->start();
    m_thread = std::thread([this] {
        pthread_setname_np(pthread_self(), "pasteboard");
        run();
    });
}

PasteboardThread::~PasteboardThread() {
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    wake();
    m_thread.join();
    close(m_wakeDescriptor);
}

void PasteboardThread::post(Command command) {
    {
        const std::lock_guard lock(m_mutex);
        m_commands.push_back(std::move(command));
    }
    wake();
}

void PasteboardThread::wake() const {
    // A full counter wakes just as well.
    (void)eventfd_write(m_wakeDescriptor, 1);
}

void PasteboardThread::run() {
    while (runCommands()) {
        handleEvents();
        m_engine->expire(std::chrono::steady_clock::now());
        sleepUntilNeeded();
    }
    m_engine->end();
    // Commands of the last moment still get their answer, which is nothing.
    runCommands();
    m_engine->awaitOwedAnswers();
    xcb_flush(m_engine->connection().handle());
}

bool PasteboardThread::runCommands() {
    std::vector<Command> commands;
    bool isEnding = false;
    {
        const std::lock_guard lock(m_mutex);
        commands.swap(m_commands);
        isEnding = m_isEnding;
    }
    m_hasWorked = m_hasWorked || !commands.empty();
    for (const Command& command : commands)
        command(*m_engine, std::chrono::steady_clock::now());
    return !isEnding;
}

void PasteboardThread::handleEvents() {
    xcb_connection_t* const connection = m_engine->connection().handle();
    for (int i = 0; i < eventsAtATime; ++i) {
        const XcbPointer<xcb_generic_event_t> event(xcb_poll_for_event(connection));
        if (!event)
            break;
        m_hasWorked = true;
        m_engine->handleEvent(*event, std::chrono::steady_clock::now());
    }
    if (!m_isBroken && m_engine->connection().isBroken()) {
        m_isBroken = true;
        m_engine->end();
    }
}

void PasteboardThread::sleepUntilNeeded() {
    xcb_connection_t* const connection = m_engine->connection().handle();
    xcb_flush(connection);
    // Waiting for a reply may have read events that the descriptor will not tell of again.
    if (const XcbPointer<xcb_generic_event_t> event(xcb_poll_for_queued_event(connection)); event) {
        m_hasWorked = true;
        m_engine->handleEvent(*event, std::chrono::steady_clock::now());
        return;
    }

    std::array<pollfd, 2> descriptors{pollfd{m_wakeDescriptor, POLLIN, 0},
                                      pollfd{m_engine->connection().fileDescriptor(), POLLIN, 0}};
    const int ready = poll(descriptors.data(), m_isBroken ? 1 : 2, sleepingTime());
    if (ready == 0 && m_hasWorked && !m_engine->nextDeadline() && !m_isBroken) {
        m_hasWorked = false;
        overwriteBuffers(m_engine->connection());
    }
    if (descriptors[0].revents != 0) {
        eventfd_t count = 0;
        (void)eventfd_read(m_wakeDescriptor, &count);
    }
}

/// Milliseconds until something is due; -1 for "until something happens".
int PasteboardThread::sleepingTime() const {
    if (m_isBroken)
        return -1;
    const auto deadline = m_engine->nextDeadline();
    if (!deadline)
        return m_hasWorked ? quietTime : -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*deadline - std::chrono::steady_clock::now());
    return static_cast<int>(std::max<qint64>(0, left.count()));
}

} // namespace vellumry
