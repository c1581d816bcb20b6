// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/process/TerminationSignals.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace vellumry {

namespace {

constexpr std::array caught{SIGTERM, SIGINT, SIGHUP};

/// The end that the handler writes to. A signal may arrive on any thread.
std::atomic<int> writeEnd = -1;

/// Does only what a handler may (signal-safety(7)).
void handle(int) {
    const int error = errno;
    const char byte = 0;
    (void)!write(writeEnd.load(), &byte, 1);
    errno = error;
}

} // namespace

// A pipe, not signalfd(2): that needs the signals blocked in every thread, and in each program that is started from
// one.
TerminationSignals::TerminationSignals(std::function<void()> onSignal) {
    std::array<int, 2> ends{-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return; // the signals end the process as they always do
    m_readEnd = ends[0];
    writeEnd = ends[1];
    m_notifier = std::make_unique<QSocketNotifier>(m_readEnd, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [this, told = std::move(onSignal)] {
                         m_notifier->setEnabled(false);
                         told();
                     });
    for (const int number : caught) {
        struct sigaction action {};
        action.sa_handler = &handle;
        // Once: a second signal ends the program at once.
        action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
        sigaction(number, &action, nullptr);
    }
}

TerminationSignals::~TerminationSignals() {
    if (!m_notifier)
        return;
    for (const int number : caught)
        (void)std::signal(number, SIG_DFL);
    m_notifier.reset();
    close(m_readEnd);
    close(writeEnd.exchange(-1));
}

// The kernel ends it: no thread is needed that could hang as well.
void endProcessWithin(std::chrono::seconds limit) {
    (void)std::signal(SIGALRM, SIG_DFL);
    alarm(static_cast<unsigned int>(limit.count()));
}

} // namespace vellumry
