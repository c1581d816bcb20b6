// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <QtGlobal>
#include <vector>

namespace vellumry {

/// Presses keys for the user in whatever window has the keyboard. Main thread.
class KeyInjector {
public:
    virtual ~KeyInjector() = default;

    struct Modifier {
        quint32 evdevCode = 0;
        const char* name = nullptr; ///< of the real modifier that it sets
    };
    /// False once it is known that nothing here presses keys, with a permission or without.
    [[nodiscard]] virtual bool isThere() const { return true; }
    /// False while keys cannot be pressed; that may change.
    [[nodiscard]] virtual bool isReady() const { return true; }
    /// Asks the user for the permission, where it takes one that we do not have.
    virtual void requestPermission() {}
    /// Waits until the next `press` reaches a window. False when it will not: a permission was taken back, or nothing
    /// answers in time.
    [[nodiscard]] virtual QCoro::Task<bool> prepare() { co_return true; }
    /// Presses the modifiers, then the key, and lets go of them in the other direction.
    virtual void press(const std::vector<Modifier>& modifiers, quint32 evdevCode) = 0;
};

} // namespace vellumry
