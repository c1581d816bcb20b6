// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"
#include "linux/wayland/WaylandPointer.h"
#include "linux/wayland/selection/SelectionControl.h"

#include <QByteArray>
#include <map>

#include <ext-data-control-v1-client-protocol.h>
#include <wayland-client.h>

namespace vellumry {

/// A connection to a compositor and the data-control protocol on it, by either of its names: ext_data_control_v1 and
/// zwlr_data_control_v1 (version 2) differ in nothing but that. One thread.
///
/// Follows the first seat that there is, and another one when it goes.
class DataControl final : public SelectionControl {
public:
    /// Fails when there is no such display or it has neither protocol. An empty name stands for $WAYLAND_DISPLAY.
    [[nodiscard]] static OrReason<std::unique_ptr<DataControl>> create(const QByteArray& displayName);
    ~DataControl() override;
    DataControl(const DataControl&) = delete;
    DataControl& operator=(const DataControl&) = delete;

    [[nodiscard]] bool isBroken() const override { return wl_display_get_error(m_display.get()) != 0; }
    [[nodiscard]] bool hasPrimary() const override { return m_hasPrimary; }
    /// False while there is no seat.
    [[nodiscard]] bool hasDevice() const override { return m_device != nullptr; }
    [[nodiscard]] std::unique_ptr<Source> makeSource(const QStringList& mimeTypes) override;
    void setSelection(const Source* source) override;
    void setPrimarySelection(const Source* source) override;
    void sync(std::function<void()> done) override;
    bool roundTrip() override { return wl_display_roundtrip(m_display.get()) >= 0; }
    void prepareWait(std::vector<pollfd>& descriptors) override;
    void finishWait(const std::vector<pollfd>& descriptors) override;
    void flush() override { wl_display_flush(m_display.get()); }

private:
    struct Listeners;
    class WaylandOffer;
    struct WaylandSource;
    struct Seat {
        quint32 name = 0;
        WaylandPointer<wl_seat> proxy;
    };

    explicit DataControl(wl_display* display);
    void addGlobal(quint32 name, const QString& interface, quint32 version);
    void removeGlobal(quint32 name);
    void bindManager();
    void followSeat();
    [[nodiscard]] static ext_data_control_source_v1* proxyOf(const Source* source);
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
    std::map<ext_data_control_offer_v1*, std::unique_ptr<WaylandOffer>> m_announced;
    std::unique_ptr<Offer> m_primary;
    std::map<wl_callback*, std::function<void()>> m_syncs;
    bool m_isReading = false; ///< between `prepareWait` and `finishWait`
};

} // namespace vellumry
