// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/Capability.h"
#include "settings/FormListModel.h"

#include <QStringList>
#include <vector>

namespace vellumry {

/// What is known of the desktop while the program runs.
struct DesktopState {
    std::vector<Capability> capabilities{};
    QStringList shortcutProblems{}; ///< a sentence for each shortcut that another program holds
    bool isMemoryOnly = false;      ///< the history could not be opened so far
    bool isWaylandSession = false;

    bool operator==(const DesktopState&) const = default;
};

/// "What works on this desktop": a line for each feature, found or missing, with what to do about it. The technical
/// reasons stay in English, as they are in the log. A feature that no capability speaks of is left out. Pure.
[[nodiscard]] std::vector<FormLine> desktopReport(const DesktopState& state);

} // namespace vellumry
