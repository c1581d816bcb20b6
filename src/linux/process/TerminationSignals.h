// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSocketNotifier>
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

} // namespace vellumry
