// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/SettingsValues.h"

namespace vellumry {

SettingsValues SettingsValues::read(const Preferences& preferences) {
    const UserDefaults& defaults = preferences.defaults();
    SettingsValues values;
    values.pasteDirectly = defaults.boolean(QStringLiteral("pasteDirectly"));
    values.plainTextByDefault = defaults.boolean(QStringLiteral("plainTextByDefault"));
    values.soundWhenPasting = defaults.boolean(QStringLiteral("soundWhenPasting"));
    values.saveNewScreenshots = defaults.boolean(QStringLiteral("saveNewScreenshots"));
    values.pinnedShortcutsEnabled = defaults.boolean(QStringLiteral("pinnedShortcutsEnabled"));
    values.panelMoved = preferences.hasPanelPositions();
    values.appearance = preferences.appearance();
    values.recentInMenu = Preferences::recentInMenu(defaults);
    values.keepForDays = preferences.keepForDays();
    values.keepAtMost = preferences.keepAtMost();
    values.mediaLimitMB = preferences.mediaLimitMB();
    values.secretSeconds = preferences.sensitiveSeconds();
    values.openPanelShortcut =
        preferences.shortcut(QStringLiteral("openPanelShortcut")).value_or(Shortcut::openPanelDefault());
    values.pasteStackShortcut =
        preferences.shortcut(QStringLiteral("pasteStackShortcut")).value_or(Shortcut::pasteStackDefault());
    values.ignoredApps = preferences.ignoredApps();
    values.terminalApps = Preferences::terminalApps(defaults);
    return values;
}

} // namespace vellumry
