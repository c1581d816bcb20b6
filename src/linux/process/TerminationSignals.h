// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSocketNotifier>
#include <chrono>
#include <functional>
#include <memory>

namespace vellumry {

/// SIGTERM, SIGINT and SIGHUP as calls on the main thread, so that the program ends as it does with its session: a
/// history that is closed, not torn off. Only the first signal is caught; another one ends the process at once. One
/// object at a time; main thread, after the application object.
class TerminationSignals {
public:
    explicit TerminationSignals(std::function<void()> onSignal);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    int m_readEnd = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

/// Ends the process when it has not ended by itself by then, whatever its threads wait for: with SIGALRM, which a
/// service manager reports. Once, at the end.
void endProcessWithin(std::chrono::seconds limit);

} // namespace vellumry
