// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/applications/DesktopEntryIndex.h"
#include "platform/display/SourceApp.h"

namespace vellumry {

/// The application that the hints lead to, as users and the program's lists know it; both fields empty for empty hints.
/// Main thread.
[[nodiscard]] SourceApp sourceAppOf(const ApplicationHints& hints, const DesktopEntryIndex& index);

/// The id that a sandbox (Flatpak) writes where its process sees its root folder; empty for a process without one.
[[nodiscard]] QString sandboxedID(qint64 process);

} // namespace vellumry
