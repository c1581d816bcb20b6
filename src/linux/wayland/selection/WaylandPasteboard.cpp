// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/selection/WaylandPasteboard.h"

#include "linux/wayland/selection/DataControl.h"
#include "linux/wayland/selection/DataControlService.h"

namespace vellumry {

OrReason<std::unique_ptr<WaylandPasteboard>> WaylandPasteboard::create(const QByteArray& displayName,
                                                                       const PasteboardLimits& limits) {
    auto control = DataControl::create(displayName);
    if (!control)
        return std::unexpected(std::move(control.error()));
    return createOn(std::move(*control), limits);
}

OrReason<std::unique_ptr<WaylandPasteboard>> WaylandPasteboard::createOn(std::unique_ptr<SelectionControl> control,
                                                                         const PasteboardLimits& limits) {
    std::unique_ptr<WaylandPasteboard> pasteboard(new WaylandPasteboard(limits));
    auto service = DataControlService::create(std::move(control), limits, pasteboard->notices());
    if (!service)
        return std::unexpected(std::move(service.error()));
    pasteboard->m_conversation = (*service)->thread();
    pasteboard->setService(std::move(*service));
    return pasteboard;
}

} // namespace vellumry
