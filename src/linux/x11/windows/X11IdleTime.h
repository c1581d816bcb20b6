// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/windows/XlibConnection.h"

#include <memory>

namespace vellumry {

/// How long ago the user last pressed a key or moved the pointer, as the X server counts it (X Synchronization
/// Extension, the counter IDLETIME). Main thread.
class X11IdleTime {
public:
    explicit X11IdleTime(std::shared_ptr<XlibConnection> connection);

    /// 0 where the server does not count.
    [[nodiscard]] double seconds() const;

private:
    std::shared_ptr<XlibConnection> m_connection;
    unsigned long m_counter = 0;
};

} // namespace vellumry
