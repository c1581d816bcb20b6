// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/Attempts.h"

namespace vellumry {

QCoro::Task<bool> attempted(QCoro::Task<void> task) {
    try {
        co_await task;
        co_return true;
    } catch (const std::exception&) {
    }
    co_return false;
}

QCoro::Task<std::optional<ClipPayload>> attemptedPayload(QCoro::Task<std::optional<ClipPayload>> reading) {
    try {
        co_return co_await reading;
    } catch (const std::exception&) {
    }
    co_return std::nullopt;
}

} // namespace vellumry
