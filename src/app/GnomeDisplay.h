// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"

#include <optional>
#include <vector>

namespace vellumry {

struct Capability;
struct Platform;

/// GNOME, which offers programs neither data control nor the layer shell: our extension of its shell does what the
/// compositor does elsewhere. Only in builds that have the Wayland part.
namespace gnomedisplay {

/// This is a session of GNOME, by its own word.
[[nodiscard]] bool isGnome();
/// The session's shell has our extension, switched on. Asks the session bus; needs no application object.
[[nodiscard]] bool hasExtension();
/// What works in this session, and what to do for more. Asks the session bus.
[[nodiscard]] std::vector<Capability> capabilities();
/// The seams of the display by the extension. Main thread, after the application object.
[[nodiscard]] std::optional<Reason> add(Platform& platform);

} // namespace gnomedisplay

} // namespace vellumry
