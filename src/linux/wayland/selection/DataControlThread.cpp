// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/selection/DataControlThread.h"

#include "foundation/Logging.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <pthread.h>
#include <sys/eventfd.h>

namespace vellumry {

OrReason<std::unique_ptr<DataControlThread>> DataControlThread::create(std::unique_ptr<DataControlEngine> engine) {
    Descriptor descriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    if (!descriptor.isOpen())
        return std::unexpected(Reason{QStringLiteral("no event descriptor, error %1").arg(errno)});
    return std::unique_ptr<DataControlThread>(new DataControlThread(std::move(engine), std::move(descriptor)));
}

DataControlThread::DataControlThread(std::unique_ptr<DataControlEngine> engine, Descriptor wakeDescriptor)
    : m_engine(std::move(engine))
    , m_wakeDescriptor(std::move(wakeDescriptor)) {
    // Before anybody can have a change count: no change is missed from then on.
    m_engine->start();
    m_thread = std::thread([this] {
        pthread_setname_np(pthread_self(), "pasteboard");
        // A reader that closes its pipe is no reason to end.
        sigset_t brokenPipe;
        sigemptyset(&brokenPipe);
        sigaddset(&brokenPipe, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &brokenPipe, nullptr);
        run();
    });
}

DataControlThread::~DataControlThread() {
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    wake();
    m_thread.join();
}

void DataControlThread::post(Command command) {
    {
        const std::lock_guard lock(m_mutex);
        m_commands.push_back(std::move(command));
    }
    wake();
}

void DataControlThread::wake() const {
    // A full counter wakes just as well.
    (void)eventfd_write(m_wakeDescriptor.get(), 1);
}

void DataControlThread::run() {
    while (runCommands()) {
        m_engine->expire(std::chrono::steady_clock::now());
        wait();
    }
    m_engine->end();
    // Commands of the last moment still get their answer, which is nothing.
    runCommands();
    wl_display_flush(m_engine->control().display());
}

bool DataControlThread::runCommands() {
    std::vector<Command> commands;
    bool isEnding = false;
    {
        const std::lock_guard lock(m_mutex);
        commands.swap(m_commands);
        isEnding = m_isEnding;
    }
    for (const Command& command : commands)
        command(*m_engine, std::chrono::steady_clock::now());
    return !isEnding;
}

void DataControlThread::wait() {
    wl_display* const display = m_engine->control().display();
    bool isReading = false;
    while (!m_isBroken && !(isReading = wl_display_prepare_read(display) == 0)) {
        if (wl_display_dispatch_pending(display) < 0)
            noteBreak();
    }
    short wanted = POLLIN;
    if (isReading && wl_display_flush(display) < 0 && errno == EAGAIN)
        wanted = POLLIN | POLLOUT;
    // A descriptor below zero is not waited for.
    std::vector<pollfd> descriptors{{m_wakeDescriptor.get(), POLLIN, 0},
                                    {isReading ? wl_display_get_fd(display) : -1, wanted, 0}};
    m_engine->addDescriptors(descriptors);
    (void)poll(descriptors.data(), descriptors.size(), sleepingTime());
    if (descriptors[0].revents != 0) {
        eventfd_t count = 0;
        (void)eventfd_read(m_wakeDescriptor.get(), &count);
    }
    if (isReading)
        readEvents((descriptors[1].revents & ~POLLOUT) != 0);
    m_engine->handle(descriptors, std::chrono::steady_clock::now());
}

void DataControlThread::readEvents(bool isReady) {
    wl_display* const display = m_engine->control().display();
    if (!isReady) {
        wl_display_cancel_read(display);
        return;
    }
    if (wl_display_read_events(display) < 0 || wl_display_dispatch_pending(display) < 0)
        noteBreak();
}

void DataControlThread::noteBreak() {
    m_isBroken = true;
    qCWarning(logging::wayland) << "The compositor has gone, and the clipboard with it.";
    m_engine->end();
}

int DataControlThread::sleepingTime() const {
    const auto next = m_engine->nextDeadline();
    if (!next)
        return -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*next - std::chrono::steady_clock::now());
    return static_cast<int>(std::max<std::chrono::milliseconds::rep>(left.count(), 0));
}

} // namespace vellumry
