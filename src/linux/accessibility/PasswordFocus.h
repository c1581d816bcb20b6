// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/SerialExecutor.h"

#include <QCoroTask>
#include <chrono>
#include <memory>

namespace vellumry {

/// Knows whether the user is typing into a password field, from the desktop's accessibility bus. It asks at the moment
/// of a paste: to be told of every move of the focus would make every application of the session report them to us all
/// day. Main thread; the asking is done on a thread of its own.
///
/// A hint, no proof: an application that does not use the bus, or answers too slowly, has no password fields for us.
class PasswordFocus {
public:
    explicit PasswordFocus(std::chrono::milliseconds deadline = std::chrono::milliseconds(250))
        : m_deadline(deadline) {}

    /// True when a password field has the focus in the active window of the process; of any window of it when none is
    /// active, since a window that just got the keyboard back may not have said so. Answers within the deadline.
    [[nodiscard]] QCoro::Task<bool> isIn(qint64 process);

private:
    std::chrono::milliseconds m_deadline;
    /// Made when first asked.
    std::shared_ptr<SerialExecutor> m_executor;
};

} // namespace vellumry
