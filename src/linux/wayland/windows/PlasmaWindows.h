// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/wayland/windows/WaylandWindows.h"

#include <map>

struct org_kde_plasma_window;
struct org_kde_plasma_window_management;

namespace vellumry {

/// The windows by Plasma's window management, which KWin offers to programs whose desktop file asks for it. Main
/// thread.
class PlasmaWindows final : public WaylandWindows {
public:
    /// Null where it is not offered.
    [[nodiscard]] static std::unique_ptr<WaylandWindows> create(std::shared_ptr<WaylandConnection> connection);
    ~PlasmaWindows() override;

private:
    struct Listeners;
    struct PlasmaWindow {
        WaylandPointer<org_kde_plasma_window> proxy;
        ID id = 0;
        Window window;
    };

    PlasmaWindows(std::shared_ptr<WaylandConnection> connection, org_kde_plasma_window_management* management);
    void take(const char* uuid);
    void drop(org_kde_plasma_window* proxy);

    std::shared_ptr<WaylandConnection> m_connection; ///< outlives the proxies
    WaylandPointer<org_kde_plasma_window_management> m_management;
    std::map<org_kde_plasma_window*, PlasmaWindow> m_windows;
};

} // namespace vellumry
