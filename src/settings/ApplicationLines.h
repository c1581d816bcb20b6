// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/InstalledApplications.h"
#include "settings/FormListModel.h"

#include <QStringList>

/// Lists of applications as the settings show them. Pure functions.
namespace vellumry::applicationlines {

using Applications = std::vector<InstalledApplication>;

/// One line for each identifier that is installed, by name, then one for each other that the user added. The password
/// managers that are ignored by default are not listed before they are installed; `notListed` counts them.
[[nodiscard]] std::vector<FormLine> ignored(const QStringList& identifiers, const Applications& installed);
[[nodiscard]] int notListed(const QStringList& identifiers, const Applications& installed);

/// The user's own words on terminals: window classes that paste like one, and with "!" before it those that do not.
[[nodiscard]] std::vector<FormLine> terminals(const QStringList& windowClasses, const Applications& installed);

/// The applications to choose from: those whose name has `words` in it, with the chosen ones marked.
[[nodiscard]] std::vector<FormLine> offered(const Applications& installed, const QString& words,
                                            const QStringList& chosen);

} // namespace vellumry::applicationlines
