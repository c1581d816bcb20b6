// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/FileAccess.h"
#include "paste/ShortcutRegistrations.h"
#include "platform/desktop/InstalledApplications.h"
#include "settings/DesktopReport.h"
#include "settings/Preferences.h"

#include <QCoroTask>
#include <functional>
#include <optional>

namespace vellumry {

/// What there is to say of newer versions.
struct UpdateState {
    bool isEnabled = false;
    bool automaticallyInstalls = false;
    std::optional<QString> readyVersion{};
    std::optional<double> secondsSinceCheck{};

    bool operator==(const UpdateState&) const = default;
};

/// How the settings reach everything outside the preferences. What is not set does nothing. Main thread.
struct SettingsActions {
    std::function<bool()> isLaunchedAtLogin = [] { return false; };
    /// False when the desktop refused.
    std::function<bool(bool isWanted)> setLaunchAtLogin = [](bool) { return false; };
    /// False when no folder of screenshots could be opened.
    std::function<QCoro::Task<bool>(bool isWanted)> setScreenshotSaving = [](bool) -> QCoro::Task<bool> {
        co_return false;
    };
    /// One sentence for each shortcut that another program holds.
    std::function<QStringList()> reloadShortcuts = [] { return QStringList(); };
    std::function<void(bool isSuspended)> suspendShortcuts = [](bool) {};
    /// A free shortcut for the first that is taken.
    std::function<std::optional<ShortcutRegistrations::Offer>()> offerShortcut =
        []() -> std::optional<ShortcutRegistrations::Offer> { return std::nullopt; };
    std::function<void()> applyRetention = [] {};
    std::function<void(Preferences::Appearance appearance)> applyAppearance = [](Preferences::Appearance) {};
    std::function<bool()> isTrusted = [] { return false; };
    std::function<void()> allowPasting = [] {};
    std::function<QCoro::Task<void>()> clearHistory = []() -> QCoro::Task<void> { co_return; };
    std::function<QCoro::Task<void>()> deleteEverything = []() -> QCoro::Task<void> { co_return; };
    std::function<QCoro::Task<FileAccess::Result>()> allowFileFolders = []() -> QCoro::Task<FileAccess::Result> {
        co_return FileAccess::Result();
    };
    /// What the history takes on the disk, in words; empty when that is not known.
    std::function<QString()> historySize = [] { return QString(); };
    std::function<qint64()> clipCount = [] { return qint64(0); };
    std::function<QCoro::Task<std::vector<InstalledApplication>>()> installedApplications =
        []() -> QCoro::Task<std::vector<InstalledApplication>> { co_return std::vector<InstalledApplication>(); };
    std::function<DesktopState()> desktopState = [] { return DesktopState(); };
    std::function<UpdateState()> updates = [] { return UpdateState(); };
    std::function<void(bool isOn)> setAutomaticUpdates = [](bool) {};
    std::function<void()> checkForUpdates = [] {};
    std::function<void()> installUpdate = [] {};
    std::function<void(const QString& address)> openLink = [](const QString&) {};
    std::function<void()> beep = [] {};
};

} // namespace vellumry
