// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/selection/X11Pasteboard.h"

#include "linux/x11/selection/X11PasteboardService.h"

namespace vellumry {

OrReason<std::unique_ptr<X11Pasteboard>> X11Pasteboard::create(const QByteArray& displayName,
                                                               const PasteboardLimits& limits) {
    std::unique_ptr<X11Pasteboard> pasteboard(new X11Pasteboard(limits));
    auto service = X11PasteboardService::create(displayName, limits, pasteboard->notices());
    if (!service)
        return std::unexpected(std::move(service.error()));
    pasteboard->setService(std::move(*service));
    return pasteboard;
}

} // namespace vellumry
