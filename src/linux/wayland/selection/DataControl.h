// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"
#include "linux/wayland/Descriptor.h"
#include "linux/wayland/WaylandPointer.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include <ext-data-control-v1-client-protocol.h>
#include <wayland-client.h>

namespace vellumry {

/// A connection to a compositor and the data-control protocol on it, by either of its names: ext_data_control_v1 and
/// zwlr_data_control_v1 (version 2) differ in nothing but that. One thread.
///
/// Follows the first seat that there is, and another one when it goes.
class DataControl {
public:
    /// What another program, or this one, put on a selection.
    class Offer {
    public:
        explicit Offer(ext_data_control_offer_v1* proxy)
            : m_proxy(owned(proxy, &ext_data_control_offer_v1_destroy)) {}
        [[nodiscard]] const QStringList& mimeTypes() const { return m_mimeTypes; }
        /// The list was so long that it was not kept: what was not looked at might refuse the copy.
        [[nodiscard]] bool isTooLong() const { return m_isTooLong; }
        /// Asks for the bytes of a type. The owner writes them into the pipe whose reading end this is; not open when
        /// the system has no pipe to give.
        [[nodiscard]] Descriptor receive(const QString& mimeType) const;

    private:
        friend class DataControl;
        WaylandPointer<ext_data_control_offer_v1> m_proxy;
        QStringList m_mimeTypes;
        bool m_isTooLong = false;
    };

    /// What we put on a selection, until it is destroyed. The callbacks are not called any more from then on.
    class Source {
    public:
        /// Somebody wants the bytes of a type.
        std::function<void(const QString& mimeType, Descriptor pipe)> onSend;
        /// Another source has taken its place.
        std::function<void()> onCancelled;

    private:
        friend class DataControl;
        WaylandPointer<ext_data_control_source_v1> m_proxy;
    };

    /// Fails when there is no such display or it has neither protocol. An empty name stands for $WAYLAND_DISPLAY.
    [[nodiscard]] static OrReason<std::unique_ptr<DataControl>> create(const QByteArray& displayName);
    ~DataControl();
    DataControl(const DataControl&) = delete;
    DataControl& operator=(const DataControl&) = delete;

    /// The clipboard changed; null when it is empty now.
    std::function<void(std::unique_ptr<Offer> offer)> onSelection;

    [[nodiscard]] wl_display* display() const { return m_display.get(); }
    [[nodiscard]] bool isBroken() const { return wl_display_get_error(m_display.get()) != 0; }
    /// False where the primary selection cannot be owned.
    [[nodiscard]] bool hasPrimary() const { return m_hasPrimary; }
    /// False while there is no seat, and so no clipboard.
    [[nodiscard]] bool hasDevice() const { return m_device != nullptr; }
    [[nodiscard]] std::unique_ptr<Source> makeSource(const QStringList& mimeTypes) const;
    /// Null empties the selection. A source can be used once.
    void setSelection(const Source* source);
    void setPrimarySelection(const Source* source);
    /// Calls back when the compositor has done all that was asked before, and told what came of it.
    void sync(std::function<void()> done);
    /// Waits for that, at the start. False when the connection broke.
    bool roundTrip() { return wl_display_roundtrip(m_display.get()) >= 0; }

private:
    struct Listeners;
    struct Seat {
        quint32 name = 0;
        WaylandPointer<wl_seat> proxy;
    };

    explicit DataControl(wl_display* display);
    void addGlobal(quint32 name, const QString& interface, quint32 version);
    void removeGlobal(quint32 name);
    void bindManager();
    void followSeat();
    void takeOffer(ext_data_control_offer_v1* proxy);
    [[nodiscard]] std::unique_ptr<Offer> offerOf(ext_data_control_offer_v1* proxy);

    WaylandPointer<wl_display> m_display;
    WaylandPointer<wl_registry> m_registry;
    struct Global {
        quint32 name = 0;
        quint32 version = 0;
    };
    std::map<QString, Global> m_globals; ///< the two managers that may be offered
    WaylandPointer<ext_data_control_manager_v1> m_manager;
    std::vector<Seat> m_seats;
    WaylandPointer<ext_data_control_device_v1> m_device;
    bool m_hasPrimary = false;
    /// Announced, not yet put on a selection.
    std::map<ext_data_control_offer_v1*, std::unique_ptr<Offer>> m_announced;
    std::unique_ptr<Offer> m_primary;
    std::map<wl_callback*, std::function<void()>> m_syncs;
};

} // namespace vellumry
