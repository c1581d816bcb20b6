// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/X11IdleTime.h"

#include <cstring>

#include <X11/Xlib.h>
#include <X11/extensions/sync.h>

namespace vellumry {

X11IdleTime::X11IdleTime(std::shared_ptr<XlibConnection> connection)
    : m_connection(std::move(connection)) {
    Display* display = m_connection->display();
    int event = 0;
    int error = 0;
    int major = 0;
    int minor = 0;
    if (!XSyncQueryExtension(display, &event, &error) || !XSyncInitialize(display, &major, &minor))
        return;
    int count = 0;
    XSyncSystemCounter* counters = XSyncListSystemCounters(display, &count);
    for (int index = 0; index < count; ++index) {
        if (std::strcmp(counters[index].name, "IDLETIME") == 0)
            m_counter = counters[index].counter;
    }
    if (counters)
        XSyncFreeSystemCounterList(counters);
}

double X11IdleTime::seconds() const {
    XSyncValue value{};
    if (m_counter == 0 || !XSyncQueryCounter(m_connection->display(), m_counter, &value))
        return 0;
    const auto high = static_cast<quint64>(static_cast<quint32>(XSyncValueHigh32(value)));
    return static_cast<double>(high << 32 | XSyncValueLow32(value)) / 1000.0;
}

} // namespace vellumry
