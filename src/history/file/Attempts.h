// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/file/ClipDatabase.h"

/// Work on the history file whose failure is not the user's concern, because memory is what counts. Nothing is thrown.
namespace vellumry {

/// Whether the task came to its end without an exception.
[[nodiscard]] QCoro::Task<bool> attempted(QCoro::Task<void> task);

/// The stored payload; nothing as well when it cannot be read.
[[nodiscard]] QCoro::Task<std::optional<ClipPayload>> attemptedPayload(QCoro::Task<std::optional<ClipPayload>> reading);

} // namespace vellumry
