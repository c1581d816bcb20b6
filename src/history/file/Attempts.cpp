// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/Attempts.h"

#include "foundation/Logging.h"

namespace vellumry {

QCoro::Task<bool> attempted(QCoro::Task<void> task) {
    try {
        co_await task;
        co_return true;
    } catch (const SQLiteError& error) {
        qCInfo(logging::history) << "the history file refused a change: SQLite" << error.extendedCode() << "errno"
                                 << error.systemError();
    } catch (const std::exception&) {
        qCInfo(logging::history) << "the history file refused a change";
    }
    co_return false;
}

QCoro::Task<std::optional<ClipPayload>> attemptedPayload(QCoro::Task<std::optional<ClipPayload>> reading) {
    try {
        co_return co_await reading;
    } catch (const std::exception&) {
        qCWarning(logging::history) << "what a clip holds cannot be read from the history file";
    }
    co_return std::nullopt;
}

} // namespace vellumry
