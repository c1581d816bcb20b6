// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/windows/WaylandIdleTime.h"

#include <utility>

#include <ext-idle-notify-v1-client-protocol.h>

namespace vellumry {

WaylandIdleTime::WaylandIdleTime(std::shared_ptr<WaylandConnection> connection, std::chrono::milliseconds rest)
    : m_connection(std::move(connection))
    , m_rest(rest) {
    auto* notifier = m_connection->seat() == nullptr
                         ? nullptr
                         : m_connection->bind<ext_idle_notifier_v1>(ext_idle_notifier_v1_interface, 1);
    if (notifier == nullptr)
        return;
    m_notification = owned(
        ext_idle_notifier_v1_get_idle_notification(notifier, static_cast<quint32>(rest.count()), m_connection->seat()),
        &ext_idle_notification_v1_destroy);
    ext_idle_notifier_v1_destroy(notifier);
    static constexpr ext_idle_notification_v1_listener listener{
        [](void* data, ext_idle_notification_v1*) {
            auto* const self = static_cast<WaylandIdleTime*>(data);
            self->m_since = std::chrono::steady_clock::now() - self->m_rest;
        },
        [](void* data, ext_idle_notification_v1*) { static_cast<WaylandIdleTime*>(data)->m_since.reset(); }};
    ext_idle_notification_v1_add_listener(m_notification.get(), &listener, this);
    m_connection->flush();
}

WaylandIdleTime::~WaylandIdleTime() = default;

double WaylandIdleTime::seconds() const {
    if (!m_since)
        return 0;
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - *m_since).count();
}

} // namespace vellumry
