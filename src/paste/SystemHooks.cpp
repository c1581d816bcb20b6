// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/SystemHooks.h"

#include "foundation/RunDetached.h"
#include "platform/display/PasteTarget.h"

#include <QCoroTimer>
#include <QTimer>

namespace vellumry {

namespace {

// A disk that does not answer in this time has proved nothing about its files.
constexpr std::chrono::milliseconds fileDeadline{3000};

QCoro::Task<void> sleepPrecisely(std::chrono::milliseconds duration) {
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    timer.setSingleShot(true);
    timer.start(duration);
    co_await timer;
}

QCoro::Task<std::optional<std::vector<FileStatus>>> runOneFileJob(SystemHooks::FileJob job) {
    auto running = runDetached(std::move(job), fileDeadline);
    co_return co_await running;
}

} // namespace

SystemHooks SystemHooks::of(Pasteboard& pasteboard, PasteTarget& target) {
    SystemHooks hooks;
    hooks.pasteboard = &pasteboard;
    hooks.isTrusted = [&target] { return target.isTrusted(); };
    hooks.isSecureInput = [&target] { return target.isSecureInput(); };
    hooks.regainFocus = [&target] { return target.regainFocus(); };
    hooks.pressPaste = [&target] { target.pressPaste(); };
    hooks.sleep = sleepPrecisely;
    hooks.runFileJob = runOneFileJob;
    return hooks;
}

} // namespace vellumry
