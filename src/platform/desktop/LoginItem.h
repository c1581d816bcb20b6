// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace vellumry {

/// Whether the desktop starts the program when the user logs in. Main thread; a file of the user's own is all that is
/// touched.
class LoginItem {
public:
    virtual ~LoginItem() = default;
    /// As the desktop has it now: the user may change it elsewhere.
    [[nodiscard]] virtual bool isEnabled() const = 0;
    /// True when it is as wanted afterwards; false when the desktop or the disk refused, and then nothing has changed.
    [[nodiscard]] virtual bool setEnabled(bool isWanted) = 0;
};

} // namespace vellumry
