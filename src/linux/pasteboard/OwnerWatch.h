// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>

namespace vellumry {

/// Tells a program that emptied the clipboard from one that ended, for display servers that show both alike. Main
/// thread.
class OwnerWatch {
public:
    virtual ~OwnerWatch() = default;
    /// Another program has copied just now.
    virtual void noteCopy() = 0;
    /// The copy that was noted last has gone. False when its program is still there, and so has emptied the clipboard.
    [[nodiscard]] virtual QCoro::Task<bool> hasEnded() = 0;
};

} // namespace vellumry
