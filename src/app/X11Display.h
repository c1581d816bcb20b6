// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"

#include <memory>
#include <optional>

namespace vellumry {

class ClassicIcon;
class PortalIntroduction;
class XlibConnection;
struct Platform;

/// The program on an X server, be it that of an X11 session or Xwayland.
namespace x11display {

/// The seams of the display; portals, under Xwayland alone, are asked once `introduction` is made. `connection` is set
/// to the one that keys, focus and windows share; the pasteboard has its own, with its own thread. The reason when the
/// server cannot be used; `platform` then has what is known of its capabilities, if anything. Main thread, after the
/// application object.
[[nodiscard]] std::optional<Reason> add(Platform& platform, const std::shared_ptr<PortalIntroduction>& introduction,
                                        std::shared_ptr<XlibConnection>& connection);

/// For trays that embed a window (XEmbed). Main thread.
[[nodiscard]] std::unique_ptr<ClassicIcon> classicIcon(const std::shared_ptr<XlibConnection>& connection);

} // namespace x11display

} // namespace vellumry
