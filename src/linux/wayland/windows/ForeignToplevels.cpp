// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/windows/ForeignToplevels.h"

#include <span>
#include <utility>

#include <wlr-foreign-toplevel-management-unstable-v1-client-protocol.h>

namespace vellumry {

namespace {

constexpr quint32 knownVersion = 3;

} // namespace

struct ForeignToplevels::Listeners {
    using Handle = zwlr_foreign_toplevel_handle_v1;

    static ForeignToplevels& self(void* data) { return *static_cast<ForeignToplevels*>(data); }
    static Window& pending(void* data, Handle* handle) { return self(data).m_toplevels[handle].pending; }

    static void toplevel(void* data, zwlr_foreign_toplevel_manager_v1*, Handle* handle) { self(data).take(handle); }
    static void finished(void*, zwlr_foreign_toplevel_manager_v1*) {}
    static void title(void*, Handle*, const char*) {}
    static void applicationID(void* data, Handle* handle, const char* id) {
        pending(data, handle).applicationID = QString::fromUtf8(id);
    }
    static void output(void*, Handle*, wl_output*) {}
    static void state(void* data, Handle* handle, wl_array* states) {
        const std::span values(static_cast<const quint32*>(states->data), states->size / sizeof(quint32));
        bool& isActive = pending(data, handle).isActive;
        isActive = false;
        for (const quint32 value : values)
            isActive = isActive || value == ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_ACTIVATED;
    }
    static void done(void* data, Handle* handle) {
        const Toplevel& toplevel = self(data).m_toplevels[handle];
        self(data).update(toplevel.id, toplevel.pending);
    }
    static void closed(void* data, Handle* handle) {
        const auto gone = self(data).m_toplevels.extract(handle);
        if (!gone.empty())
            self(data).remove(gone.mapped().id);
    }
    static void parent(void*, Handle*, Handle*) {}

    static constexpr zwlr_foreign_toplevel_manager_v1_listener ofManager{toplevel, finished};
    static constexpr zwlr_foreign_toplevel_handle_v1_listener ofHandle{title, applicationID, output, output,
                                                                       state, done,          closed, parent};
};

std::unique_ptr<WaylandWindows> ForeignToplevels::create(std::shared_ptr<WaylandConnection> connection) {
    auto* manager =
        connection->bind<zwlr_foreign_toplevel_manager_v1>(zwlr_foreign_toplevel_manager_v1_interface, knownVersion);
    if (manager == nullptr)
        return nullptr;
    std::unique_ptr<ForeignToplevels> windows(new ForeignToplevels(connection, manager));
    // What is open already, and which of it is active.
    connection->roundTrip();
    return windows;
}

ForeignToplevels::ForeignToplevels(std::shared_ptr<WaylandConnection> connection,
                                   zwlr_foreign_toplevel_manager_v1* manager)
    : m_connection(std::move(connection))
    , m_manager(owned(manager, &zwlr_foreign_toplevel_manager_v1_destroy)) {
    zwlr_foreign_toplevel_manager_v1_add_listener(manager, &Listeners::ofManager, this);
}

ForeignToplevels::~ForeignToplevels() = default;

void ForeignToplevels::take(zwlr_foreign_toplevel_handle_v1* proxy) {
    m_toplevels[proxy] = Toplevel{owned(proxy, &zwlr_foreign_toplevel_handle_v1_destroy), add(), {}};
    zwlr_foreign_toplevel_handle_v1_add_listener(proxy, &Listeners::ofHandle, this);
}

} // namespace vellumry
