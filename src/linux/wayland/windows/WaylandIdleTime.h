// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/wayland/WaylandConnection.h"

#include <chrono>
#include <memory>
#include <optional>

struct ext_idle_notification_v1;

namespace vellumry {

/// How long ago the user last pressed a key or moved the pointer, as the compositor tells (ext-idle-notify-v1): nothing
/// until they have rested for a while, so that typing does not wake the program key by key. Main thread.
class WaylandIdleTime {
public:
    /// Rests shorter than `rest` count as none.
    explicit WaylandIdleTime(std::shared_ptr<WaylandConnection> connection,
                             std::chrono::milliseconds rest = std::chrono::minutes(1));
    ~WaylandIdleTime();
    WaylandIdleTime(const WaylandIdleTime&) = delete;
    WaylandIdleTime& operator=(const WaylandIdleTime&) = delete;

    /// 0 where the compositor does not tell, or a program keeps it from being idle (a film).
    [[nodiscard]] double seconds() const;

private:
    std::shared_ptr<WaylandConnection> m_connection; ///< outlives the proxy
    WaylandPointer<ext_idle_notification_v1> m_notification;
    std::chrono::milliseconds m_rest;
    std::optional<std::chrono::steady_clock::time_point> m_since;
};

} // namespace vellumry
