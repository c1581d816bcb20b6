// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace vellumry {

/// A part of the desktop itself that lets the program do more there, installed with the program and switched off: our
/// extension of GNOME's shell. Main thread.
class DesktopExtension {
public:
    enum class Outcome {
        on,          ///< it works; the program has to start again for it
        atNextLogin, ///< the desktop looks for what was installed when the user logs in
        refused,     ///< the desktop does not let us, or the extension does not work in it
    };

    virtual ~DesktopExtension() = default;
    /// Switches it on for good. Calls `onAnswered` once, seconds later at most.
    virtual void switchOn(std::function<void(Outcome)> onAnswered) = 0;
};

} // namespace vellumry
