// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"
#include "linux/wayland/WaylandPointer.h"

#include <QHash>
#include <QObject>
#include <QString>
#include <memory>

#include <wayland-client.h>

class QSocketNotifier;

namespace vellumry {

/// A connection to the compositor for keys and windows, beside Qt's own and the pasteboard's. Main thread; events come
/// from Qt's event loop.
class WaylandConnection : public QObject {
    Q_OBJECT
public:
    /// Fails when there is no such display or it does not answer. An empty name stands for $WAYLAND_DISPLAY.
    [[nodiscard]] static OrReason<std::shared_ptr<WaylandConnection>> create(const QByteArray& displayName = {});
    ~WaylandConnection() override;

    [[nodiscard]] wl_display* display() const { return m_display.get(); }
    /// The first seat; null without one.
    [[nodiscard]] wl_seat* seat() const { return m_seat.get(); }
    /// The version of a global; 0 when the compositor does not offer it to us.
    [[nodiscard]] quint32 version(const wl_interface& interface) const;
    [[nodiscard]] quint32 version(const QString& interface) const { return m_globals.value(interface).version; }
    /// Binds a global that is offered, in the highest version that both sides know up to `version`.
    template <typename Proxy>
    [[nodiscard]] Proxy* bind(const wl_interface& interface, quint32 version) const {
        return static_cast<Proxy*>(bindGlobal(interface, version));
    }
    /// Sends what was asked.
    void flush();
    /// Waits until the compositor has done what was asked, and told what came of it: a fraction of a millisecond.
    void roundTrip();

Q_SIGNALS:
    /// The compositor has ended, or ended the conversation. Once.
    void broke();

private:
    struct Global {
        quint32 name = 0;
        quint32 version = 0;
    };
    struct Listeners;

    explicit WaylandConnection(wl_display* display);
    void readEvents();
    [[nodiscard]] void* bindGlobal(const wl_interface& interface, quint32 version) const;

    WaylandPointer<wl_display> m_display;
    WaylandPointer<wl_registry> m_registry;
    WaylandPointer<wl_seat> m_seat;
    QHash<QString, Global> m_globals;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace vellumry
