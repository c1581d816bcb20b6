// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/windows/PlasmaWindows.h"

#include <utility>

#include <plasma-window-management-client-protocol.h>

namespace vellumry {

namespace {

/// The first that names windows by their uuid alone is 13; what came after 16 is of no use here.
constexpr quint32 leastVersion = 13;
constexpr quint32 knownVersion = 16;

/// For events that tell nothing we want to know: libwayland has no other word for that.
template <typename... Arguments>
void ignore(void*, Arguments...) {}

} // namespace

struct PlasmaWindows::Listeners {
    using Proxy = org_kde_plasma_window;
    using Management = org_kde_plasma_window_management;

    static PlasmaWindows& self(void* data) { return *static_cast<PlasmaWindows*>(data); }
    template <typename Change>
    static void change(void* data, Proxy* proxy, Change apply) {
        const auto found = self(data).m_windows.find(proxy);
        if (found == self(data).m_windows.end())
            return;
        apply(found->second.window);
        self(data).update(found->second.id, found->second.window);
    }

    static void windowWithUuid(void* data, Management*, quint32, const char* uuid) { self(data).take(uuid); }
    static void applicationID(void* data, Proxy* proxy, const char* id) {
        change(data, proxy, [id](Window& window) { window.applicationID = QString::fromUtf8(id); });
    }
    static void state(void* data, Proxy* proxy, quint32 flags) {
        const bool isActive = (flags & ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_ACTIVE) != 0;
        change(data, proxy, [isActive](Window& window) { window.isActive = isActive; });
    }
    static void process(void* data, Proxy* proxy, quint32 process) {
        change(data, proxy, [process](Window& window) { window.process = process; });
    }
    static void unmapped(void* data, Proxy* proxy) { self(data).drop(proxy); }

    static constexpr org_kde_plasma_window_management_listener management{
        .show_desktop_changed = &ignore<Management*, quint32>,
        .window = &ignore<Management*, quint32>,
        .stacking_order_changed = &ignore<Management*, wl_array*>,
        .stacking_order_uuid_changed = &ignore<Management*, const char*>,
        .window_with_uuid = &windowWithUuid,
        .stacking_order_changed_2 = &ignore<Management*>,
    };
    static constexpr org_kde_plasma_window_listener window{
        .title_changed = &ignore<Proxy*, const char*>,
        .app_id_changed = &applicationID,
        .state_changed = &state,
        .virtual_desktop_changed = &ignore<Proxy*, int32_t>,
        .themed_icon_name_changed = &ignore<Proxy*, const char*>,
        .unmapped = &unmapped,
        .initial_state = &ignore<Proxy*>,
        .parent_window = &ignore<Proxy*, Proxy*>,
        .geometry = &ignore<Proxy*, int32_t, int32_t, quint32, quint32>,
        .icon_changed = &ignore<Proxy*>,
        .pid_changed = &process,
        .virtual_desktop_entered = &ignore<Proxy*, const char*>,
        .virtual_desktop_left = &ignore<Proxy*, const char*>,
        .application_menu = &ignore<Proxy*, const char*, const char*>,
        .activity_entered = &ignore<Proxy*, const char*>,
        .activity_left = &ignore<Proxy*, const char*>,
        .resource_name_changed = &ignore<Proxy*, const char*>,
        .client_geometry = &ignore<Proxy*, int32_t, int32_t, quint32, quint32>,
    };
};

std::unique_ptr<WaylandWindows> PlasmaWindows::create(std::shared_ptr<WaylandConnection> connection) {
    if (connection->version(org_kde_plasma_window_management_interface) < leastVersion)
        return nullptr;
    auto* management =
        connection->bind<org_kde_plasma_window_management>(org_kde_plasma_window_management_interface, knownVersion);
    std::unique_ptr<PlasmaWindows> windows(new PlasmaWindows(connection, management));
    // The windows that are open already, then what they are.
    connection->roundTrip();
    connection->roundTrip();
    return windows;
}

PlasmaWindows::PlasmaWindows(std::shared_ptr<WaylandConnection> connection,
                             org_kde_plasma_window_management* management)
    : m_connection(std::move(connection))
    , m_management(owned(management, &org_kde_plasma_window_management_destroy)) {
    org_kde_plasma_window_management_add_listener(management, &Listeners::management, this);
}

PlasmaWindows::~PlasmaWindows() = default;

void PlasmaWindows::take(const char* uuid) {
    org_kde_plasma_window* proxy = org_kde_plasma_window_management_get_window_by_uuid(m_management.get(), uuid);
    m_windows[proxy] = PlasmaWindow{owned(proxy, &org_kde_plasma_window_destroy), add(), {}};
    org_kde_plasma_window_add_listener(proxy, &Listeners::window, this);
    m_connection->flush();
}

void PlasmaWindows::drop(org_kde_plasma_window* proxy) {
    const auto gone = m_windows.extract(proxy);
    if (!gone.empty())
        remove(gone.mapped().id);
}

} // namespace vellumry
