// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/selection/OwedAnswers.h"

#include "linux/x11/selection/SelectionReader.h"

#include <algorithm>
#include <poll.h>

namespace vellumry::owedanswers {

namespace {

using Clock = std::chrono::steady_clock;

void takeAnswers(XcbConnection& connection, SelectionReader& reader) {
    while (const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(connection.handle())}) {
        if ((event->response_type & 0x7f) == XCB_SELECTION_NOTIFY)
            reader.handleSelectionNotify(reinterpret_cast<const xcb_selection_notify_event_t&>(*event), Clock::now());
    }
}

} // namespace

void await(XcbConnection& connection, SelectionReader& reader, std::chrono::milliseconds limit) {
    if (connection.isBroken())
        return;
    const xcb_window_t manager = connection.selectionOwner(connection.atom(connection.managerSelection()));
    if (manager == XCB_NONE)
        return;
    const Clock::time_point end = Clock::now() + limit;
    takeAnswers(connection, reader);
    while (!connection.isBroken() && reader.isOwedAnswersBy(manager)) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
        if (left <= 0)
            return;
        xcb_flush(connection.handle());
        pollfd descriptor{connection.fileDescriptor(), POLLIN, 0};
        (void)poll(&descriptor, 1, static_cast<int>(left));
        takeAnswers(connection, reader);
    }
}

} // namespace vellumry::owedanswers
