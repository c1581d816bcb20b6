// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"

#include <QString>
#include <memory>
#include <optional>
#include <vector>

namespace vellumry {

class DesktopExtension;
class PortalIntroduction;
struct Capability;
struct Platform;

/// Where the program works as a native Wayland program, and with what. Only in builds that have the Wayland part.
namespace waylanddisplay {

/// True in a session whose compositor offers what the program cannot do without, unless the user chose another
/// platform of Qt. Before the application object.
[[nodiscard]] bool isWanted();

/// What this session's compositor offers and lacks; empty outside of a Wayland session and in builds without the
/// Wayland part.
[[nodiscard]] std::vector<Capability> capabilities();

/// The seams of the display for this session; portals are asked once `introduction` is made. Main thread, after the
/// application object.
[[nodiscard]] std::optional<Reason> add(Platform& platform, const std::shared_ptr<PortalIntroduction>& introduction);

/// What the user could switch on for the program to work natively here; null without. After the application object.
[[nodiscard]] std::unique_ptr<DesktopExtension> extension();

} // namespace waylanddisplay

} // namespace vellumry
