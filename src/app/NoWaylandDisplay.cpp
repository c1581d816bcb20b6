// SPDX-License-Identifier: GPL-3.0-or-later
// For systems without what the Wayland part is built from.
#include "app/WaylandDisplay.h"

#include "platform/desktop/Capability.h"
#include "platform/desktop/DesktopExtension.h"

namespace vellumry::waylanddisplay {

bool isWanted() {
    return false;
}

std::vector<Capability> capabilities() {
    return {};
}

std::optional<Reason> add(Platform&, const std::shared_ptr<PortalIntroduction>&) {
    return Reason{QStringLiteral("this build has no Wayland part")};
}

std::unique_ptr<DesktopExtension> extension() {
    return nullptr;
}

} // namespace vellumry::waylanddisplay
