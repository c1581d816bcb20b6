// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>

namespace vellumry {

/// Makes sure that one copy of the program runs in a session, and hears what a second start or a key binding of the
/// desktop asks of it. Main thread.
class SingleInstance {
public:
    virtual ~SingleInstance() = default;
    /// True when another copy runs already; it has then been told to come forward, and this process ends.
    [[nodiscard]] virtual bool isAnotherCopyRunning() = 0;
    /// The user started the program again.
    std::function<void()> onReopen;
    /// One of the program's actions by name: "open-panel", "toggle-stack", …
    std::function<void(const QString& action)> onAction;
    /// Asks for lines of text that say how the program is, for `vellumry --status`.
    std::function<QString()> onStatus;
};

} // namespace vellumry
