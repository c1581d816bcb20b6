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
    m_engine->control().flush();
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
    SelectionControl& control = m_engine->control();
    std::vector<pollfd> descriptors{{m_wakeDescriptor.get(), POLLIN, 0}};
    control.prepareWait(descriptors);
    m_engine->addDescriptors(descriptors);
    (void)poll(descriptors.data(), descriptors.size(), sleepingTime());
    if (descriptors[0].revents != 0) {
        eventfd_t count = 0;
        (void)eventfd_read(m_wakeDescriptor.get(), &count);
    }
    control.finishWait(descriptors);
    if (!m_isBroken && control.isBroken())
        noteBreak();
    m_engine->handle(descriptors, std::chrono::steady_clock::now());
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
