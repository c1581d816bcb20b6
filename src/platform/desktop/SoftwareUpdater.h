// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Date.h"

#include <QString>
#include <functional>
#include <optional>

namespace vellumry {

/// Looks for newer versions of the program, fetches and verifies them, and replaces the program. What it does not
/// decide itself it asks its delegate. Main thread.
class SoftwareUpdater {
public:
    struct Item {
        QString displayVersion;
        bool isCritical = false;
    };
    /// Why a check came to nothing, for a user that asked for one.
    enum class Outcome : quint8 { upToDate, failed };

    virtual ~SoftwareUpdater() = default;

    /// A verified version is here and would be installed at the next start. `installNow` replaces the program and
    /// starts it anew. True when the delegate calls it at a time of its own; false: the updater installs at once.
    std::function<bool(const Item& item, std::function<void()> installNow)> willInstallOnQuit;
    /// A check is over, whatever came of it.
    std::function<void()> didFinishCycle = [] {};
    /// A newer version is known that is not fetched by itself. True when the updater is to show it.
    std::function<bool(const Item& item, bool isInImmediateFocus)> shouldHandleShowing;
    /// It is about to be shown, by the updater or, when not `isHandled`, by the delegate.
    std::function<void(bool isHandled, const Item& item)> willHandleShowing;
    /// The user has seen what was shown.
    std::function<void()> didReceiveUserAttention = [] {};
    /// What began with a check has come to its end.
    std::function<void()> willFinishSession = [] {};
    /// A check that the user asked for found nothing to install.
    std::function<void(Outcome outcome)> onOutcome = [](Outcome) {};

    /// From now on it checks once a day. Once.
    virtual void start() = 0;
    [[nodiscard]] virtual bool canCheck() const = 0;
    /// The user asks: what is found is fetched.
    virtual void check() = 0;
    [[nodiscard]] virtual std::optional<Date> lastCheck() const = 0;
    /// Newer versions are fetched without being asked for.
    [[nodiscard]] virtual bool automaticallyDownloads() const = 0;
    virtual void setAutomaticallyDownloads(bool value) = 0;
};

} // namespace vellumry
