// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>

namespace vellumry {

/// The window the user was typing in, and the keys that paste into it. Main thread.
class PasteTarget {
public:
    virtual ~PasteTarget() = default;
    /// True when this session lets us press keys.
    [[nodiscard]] virtual bool isTrusted() const = 0;
    /// Asks the user for the permission where the platform has one; does nothing elsewhere.
    virtual void requestTrust() = 0;
    /// True while another program holds the keyboard or a password field has the focus. Answers within a moment.
    [[nodiscard]] virtual QCoro::Task<bool> isSecureInput() = 0;
    /// Waits, at most a moment, until the window that was in front has its focus back. False when it did not get it,
    /// has gone, or another window has the focus: then nothing may be typed.
    [[nodiscard]] virtual QCoro::Task<bool> regainFocus() = 0;
    /// Waits, at most a moment, until no other program holds the keyboard: a menu that was chosen from is still going.
    [[nodiscard]] virtual QCoro::Task<void> keyboardFree() { co_return; }
    /// Lets go of every key that is still down, then presses the target's own paste chord. Terminals get what they
    /// paste from as well (the primary selection).
    virtual void pressPaste() = 0;
};

} // namespace vellumry
