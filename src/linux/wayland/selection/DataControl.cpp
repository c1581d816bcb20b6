// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/selection/DataControl.h"

#include <algorithm>
#include <cerrno>

namespace vellumry {

namespace {

const QString extName = QStringLiteral("ext_data_control_manager_v1");
const QString wlrName = QStringLiteral("zwlr_data_control_manager_v1");
constexpr quint32 wlrPrimaryVersion = 2;

/// The manager under its older name. All else that is said is the same, message for message.
wl_interface wlrManager() {
    wl_interface interface = ext_data_control_manager_v1_interface;
    interface.name = "zwlr_data_control_manager_v1";
    interface.version = wlrPrimaryVersion;
    return interface;
}

} // namespace

class DataControl::WaylandOffer final : public Offer {
public:
    explicit WaylandOffer(ext_data_control_offer_v1* proxy)
        : m_proxy(owned(proxy, &ext_data_control_offer_v1_destroy)) {}
    [[nodiscard]] Descriptor receive(const QString& mimeType) const override {
        Pipe pipe = makePipe();
        if (pipe.writing.isOpen())
            ext_data_control_offer_v1_receive(m_proxy.get(), mimeType.toUtf8().constData(), pipe.writing.get());
        return std::move(pipe.reading);
    }
    void take(const char* type) { addType(QString::fromUtf8(type)); }

private:
    WaylandPointer<ext_data_control_offer_v1> m_proxy;
};

struct DataControl::WaylandSource final : public Source {
    WaylandPointer<ext_data_control_source_v1> proxy;
};

/// What libwayland calls, as far as it is not said in a lambda at the place.
struct DataControl::Listeners {
    static DataControl& self(void* data) { return *static_cast<DataControl*>(data); }

    static void global(void* data, wl_registry*, quint32 name, const char* interface, quint32 version) {
        self(data).addGlobal(name, QString::fromLatin1(interface), version);
    }
    static void globalRemove(void* data, wl_registry*, quint32 name) { self(data).removeGlobal(name); }
    static void dataOffer(void* data, ext_data_control_device_v1*, ext_data_control_offer_v1* offer) {
        self(data).takeOffer(offer);
    }
    static void selection(void* data, ext_data_control_device_v1*, ext_data_control_offer_v1* offer) {
        DataControl& control = self(data);
        std::unique_ptr<Offer> taken = control.offerOf(offer);
        if (control.onSelection)
            control.onSelection(std::move(taken));
    }
    static void primarySelection(void* data, ext_data_control_device_v1*, ext_data_control_offer_v1* offer) {
        // Marked text is not looked at; the offer is kept as long as it stands.
        self(data).m_primary = self(data).offerOf(offer);
    }
    static void finished(void* data, ext_data_control_device_v1*) {
        DataControl& control = self(data);
        control.m_device.reset();
        if (control.onSelection)
            control.onSelection(nullptr);
    }
    static void offered(void* data, ext_data_control_offer_v1*, const char* type) {
        static_cast<WaylandOffer*>(data)->take(type);
    }
    static void send(void* data, ext_data_control_source_v1*, const char* type, int pipe) {
        Descriptor descriptor(pipe);
        const auto& source = *static_cast<WaylandSource*>(data);
        if (source.onSend)
            source.onSend(QString::fromUtf8(type), std::move(descriptor));
    }
    static void cancelled(void* data, ext_data_control_source_v1*) {
        // The callee may destroy the source, and the function with it.
        const auto told = static_cast<WaylandSource*>(data)->onCancelled;
        if (told)
            told();
    }
    static void done(void* data, wl_callback* callback, quint32) {
        auto node = self(data).m_syncs.extract(callback);
        wl_callback_destroy(callback);
        if (!node.empty() && node.mapped())
            node.mapped()();
    }

    static constexpr wl_registry_listener ofRegistry{global, globalRemove};
    static constexpr ext_data_control_device_v1_listener ofDevice{dataOffer, selection, finished, primarySelection};
    static constexpr ext_data_control_offer_v1_listener ofOffer{offered};
    static constexpr ext_data_control_source_v1_listener ofSource{send, cancelled};
    static constexpr wl_callback_listener ofCallback{done};
};

OrReason<std::unique_ptr<DataControl>> DataControl::create(const QByteArray& displayName) {
    wl_display* display = wl_display_connect(displayName.isEmpty() ? nullptr : displayName.constData());
    if (display == nullptr)
        return std::unexpected(Reason{QStringLiteral("no Wayland display")});
    std::unique_ptr<DataControl> control(new DataControl(display));
    if (!control->roundTrip())
        return std::unexpected(Reason{QStringLiteral("the compositor does not answer")});
    control->bindManager();
    if (!control->m_manager)
        return std::unexpected(Reason{
            QStringLiteral("the compositor offers no data control (ext_data_control_v1, zwlr_data_control_v1)")});
    control->followSeat();
    return control;
}

DataControl::DataControl(wl_display* display)
    : m_display(owned(display, &wl_display_disconnect))
    , m_registry(owned(wl_display_get_registry(display), &wl_registry_destroy)) {
    wl_registry_add_listener(m_registry.get(), &Listeners::ofRegistry, this);
}

DataControl::~DataControl() {
    for (const auto& [callback, done] : m_syncs)
        wl_callback_destroy(callback);
}

void DataControl::addGlobal(quint32 name, const QString& interface, quint32 version) {
    if (interface == extName || interface == wlrName) {
        m_globals[interface] = Global{name, version};
        return;
    }
    if (interface != QLatin1String(wl_seat_interface.name))
        return;
    auto* seat = static_cast<wl_seat*>(wl_registry_bind(m_registry.get(), name, &wl_seat_interface, 1));
    m_seats.push_back(Seat{name, owned(seat, &wl_seat_destroy)});
    followSeat();
}

void DataControl::removeGlobal(quint32 name) {
    if (m_seats.empty())
        return;
    const bool isFollowed = m_seats.front().name == name;
    std::erase_if(m_seats, [name](const Seat& seat) { return seat.name == name; });
    if (!isFollowed)
        return;
    m_device.reset();
    if (onSelection)
        onSelection(nullptr);
    followSeat();
}

void DataControl::bindManager() {
    static const wl_interface wlr = wlrManager();
    const bool isExt = m_globals.contains(extName);
    if (!isExt && !m_globals.contains(wlrName))
        return;
    const Global& global = m_globals.at(isExt ? extName : wlrName);
    const quint32 version = isExt ? 1U : std::min(global.version, wlrPrimaryVersion);
    m_hasPrimary = isExt || version >= wlrPrimaryVersion;
    void* manager =
        wl_registry_bind(m_registry.get(), global.name, isExt ? &ext_data_control_manager_v1_interface : &wlr, version);
    m_manager = owned(static_cast<ext_data_control_manager_v1*>(manager), &ext_data_control_manager_v1_destroy);
}

void DataControl::followSeat() {
    if (!m_manager || m_device || m_seats.empty())
        return;
    m_device = owned(ext_data_control_manager_v1_get_data_device(m_manager.get(), m_seats.front().proxy.get()),
                     &ext_data_control_device_v1_destroy);
    ext_data_control_device_v1_add_listener(m_device.get(), &Listeners::ofDevice, this);
}

void DataControl::takeOffer(ext_data_control_offer_v1* proxy) {
    auto offer = std::make_unique<WaylandOffer>(proxy);
    ext_data_control_offer_v1_add_listener(proxy, &Listeners::ofOffer, offer.get());
    m_announced[proxy] = std::move(offer);
}

std::unique_ptr<SelectionControl::Offer> DataControl::offerOf(ext_data_control_offer_v1* proxy) {
    auto node = m_announced.extract(proxy);
    return node.empty() ? nullptr : std::move(node.mapped());
}

std::unique_ptr<SelectionControl::Source> DataControl::makeSource(const QStringList& mimeTypes) {
    auto source = std::make_unique<WaylandSource>();
    source->proxy =
        owned(ext_data_control_manager_v1_create_data_source(m_manager.get()), &ext_data_control_source_v1_destroy);
    ext_data_control_source_v1_add_listener(source->proxy.get(), &Listeners::ofSource, source.get());
    for (const QString& type : mimeTypes)
        ext_data_control_source_v1_offer(source->proxy.get(), type.toUtf8().constData());
    return source;
}

ext_data_control_source_v1* DataControl::proxyOf(const Source* source) {
    return source != nullptr ? static_cast<const WaylandSource*>(source)->proxy.get() : nullptr;
}

void DataControl::setSelection(const Source* source) {
    if (m_device)
        ext_data_control_device_v1_set_selection(m_device.get(), proxyOf(source));
}

void DataControl::setPrimarySelection(const Source* source) {
    if (m_device && m_hasPrimary)
        ext_data_control_device_v1_set_primary_selection(m_device.get(), proxyOf(source));
}

void DataControl::sync(std::function<void()> done) {
    wl_callback* callback = wl_display_sync(m_display.get());
    m_syncs[callback] = std::move(done);
    wl_callback_add_listener(callback, &Listeners::ofCallback, this);
}

void DataControl::prepareWait(std::vector<pollfd>& descriptors) {
    wl_display* const display = m_display.get();
    while (!isBroken() && !(m_isReading = wl_display_prepare_read(display) == 0))
        (void)wl_display_dispatch_pending(display);
    short wanted = POLLIN;
    if (m_isReading && wl_display_flush(display) < 0 && errno == EAGAIN)
        wanted = POLLIN | POLLOUT;
    // A descriptor below zero is not waited for.
    descriptors.push_back({m_isReading ? wl_display_get_fd(display) : -1, wanted, 0});
}

void DataControl::finishWait(const std::vector<pollfd>& descriptors) {
    if (!std::exchange(m_isReading, false))
        return;
    wl_display* const display = m_display.get();
    const bool isReady = std::ranges::any_of(descriptors, [display](const pollfd& polled) {
        return polled.fd == wl_display_get_fd(display) && (polled.revents & ~POLLOUT) != 0;
    });
    if (!isReady)
        wl_display_cancel_read(display);
    else if (wl_display_read_events(display) >= 0)
        (void)wl_display_dispatch_pending(display);
}

} // namespace vellumry
