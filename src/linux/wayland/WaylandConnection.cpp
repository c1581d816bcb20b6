// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/WaylandConnection.h"

#include "foundation/Logging.h"
#include "linux/process/ProcessHardening.h"

#include <QSocketNotifier>
#include <algorithm>

namespace vellumry {

struct WaylandConnection::Listeners {
    static void global(void* data, wl_registry*, quint32 name, const char* interface, quint32 version) {
        static_cast<WaylandConnection*>(data)->m_globals[QString::fromLatin1(interface)] = Global{name, version};
    }
    static void globalRemove(void* data, wl_registry*, quint32 name) {
        auto& globals = static_cast<WaylandConnection*>(data)->m_globals;
        globals.removeIf([name](const auto& entry) { return entry.value().name == name; });
    }
    static constexpr wl_registry_listener registry{global, globalRemove};
};

OrReason<std::shared_ptr<WaylandConnection>> WaylandConnection::create(const QByteArray& displayName) {
    // Until the compositor has answered: by then it knows which program this is.
    const VisibleProcess visible;
    wl_display* display = wl_display_connect(displayName.isEmpty() ? nullptr : displayName.constData());
    if (display == nullptr)
        return std::unexpected(Reason{QStringLiteral("no Wayland display")});
    std::shared_ptr<WaylandConnection> connection(new WaylandConnection(display));
    if (wl_display_roundtrip(display) < 0)
        return std::unexpected(Reason{QStringLiteral("the compositor does not answer")});
    constexpr quint32 seatVersion = 5;
    if (auto* seat = connection->bind<wl_seat>(wl_seat_interface, seatVersion))
        connection->m_seat = owned(seat, &wl_seat_destroy);
    return connection;
}

WaylandConnection::WaylandConnection(wl_display* display)
    : m_display(owned(display, &wl_display_disconnect))
    , m_registry(owned(wl_display_get_registry(display), &wl_registry_destroy))
    , m_notifier(std::make_unique<QSocketNotifier>(wl_display_get_fd(display), QSocketNotifier::Read)) {
    wl_registry_add_listener(m_registry.get(), &Listeners::registry, this);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &WaylandConnection::readEvents);
}

WaylandConnection::~WaylandConnection() = default;

quint32 WaylandConnection::version(const wl_interface& interface) const {
    return version(QString::fromLatin1(interface.name));
}

void* WaylandConnection::bindGlobal(const wl_interface& interface, quint32 version) const {
    const auto global = m_globals.constFind(QString::fromLatin1(interface.name));
    if (global == m_globals.constEnd())
        return nullptr;
    return wl_registry_bind(m_registry.get(), global->name, &interface, std::min(version, global->version));
}

void WaylandConnection::flush() {
    wl_display_flush(m_display.get());
}

void WaylandConnection::roundTrip() {
    wl_display_roundtrip(m_display.get());
}

void WaylandConnection::readEvents() {
    // It reads, and calls back for what was read.
    if (wl_display_dispatch(m_display.get()) < 0) {
        qCWarning(logging::wayland) << "The compositor has gone.";
        m_notifier->setEnabled(false);
        Q_EMIT broke();
        return;
    }
    wl_display_flush(m_display.get());
}

} // namespace vellumry
