// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/wayland/windows/WaylandWindows.h"

#include <map>

struct zwlr_foreign_toplevel_handle_v1;
struct zwlr_foreign_toplevel_manager_v1;

namespace vellumry {

/// The windows by wlr-foreign-toplevel-management-unstable-v1: sway, labwc and their kin. Main thread.
class ForeignToplevels final : public WaylandWindows {
public:
    /// Null where it is not offered.
    [[nodiscard]] static std::unique_ptr<WaylandWindows> create(std::shared_ptr<WaylandConnection> connection);
    ~ForeignToplevels() override;

private:
    struct Listeners;
    struct Toplevel {
        WaylandPointer<zwlr_foreign_toplevel_handle_v1> proxy;
        ID id = 0;
        Window pending; ///< until "done"
    };

    ForeignToplevels(std::shared_ptr<WaylandConnection> connection, zwlr_foreign_toplevel_manager_v1* manager);
    void take(zwlr_foreign_toplevel_handle_v1* proxy);

    std::shared_ptr<WaylandConnection> m_connection; ///< outlives the proxies
    WaylandPointer<zwlr_foreign_toplevel_manager_v1> m_manager;
    std::map<zwlr_foreign_toplevel_handle_v1*, Toplevel> m_toplevels;
};

} // namespace vellumry
