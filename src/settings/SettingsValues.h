// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/Preferences.h"

#include <QStringList>

namespace vellumry {

/// What the settings file says, read once and as a whole, so that a change is told by comparing. Main thread.
struct SettingsValues {
    bool pasteDirectly = true;
    bool plainTextByDefault = false;
    bool soundWhenPasting = false;
    bool saveNewScreenshots = false;
    bool pinnedShortcutsEnabled = true;
    bool panelMoved = false; ///< the panel has a place of the user's choosing on some display
    Preferences::Appearance appearance = Preferences::Appearance::system;
    qint64 recentInMenu = 0;
    qint64 keepForDays = 0;
    qint64 keepAtMost = 0;
    qint64 mediaLimitMB = 0;
    qint64 secretSeconds = 0;
    Shortcut openPanelShortcut{};
    Shortcut pasteStackShortcut{};
    QStringList ignoredApps{};
    QStringList terminalApps{};

    [[nodiscard]] static SettingsValues read(const Preferences& preferences);
    bool operator==(const SettingsValues&) const = default;
};

} // namespace vellumry
