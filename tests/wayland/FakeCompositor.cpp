// SPDX-License-Identifier: GPL-3.0-or-later
#include "wayland/FakeCompositor.h"

#include <stdexcept>
#include <sys/eventfd.h>

#include <ext-data-control-v1-server-protocol.h>
#include <wayland-server.h>

namespace vellumry {

/// What the client asks for. The data of all resources but a source's own is the compositor.
struct FakeCompositor::Requests {
    static FakeCompositor& self(wl_resource* resource) {
        return *static_cast<FakeCompositor*>(wl_resource_get_user_data(resource));
    }
    static void destroy(wl_client*, wl_resource* resource) { wl_resource_destroy(resource); }

    static void input(wl_client* client, wl_resource* seat, uint32_t id) {
        // A keyboard without keys: an object without requests that matter here.
        wl_resource_create(client, &wl_keyboard_interface, wl_resource_get_version(seat), id);
    }
    static void bindSeat(wl_client* client, void* data, uint32_t version, uint32_t id) {
        static const struct wl_seat_interface requests {
            &input, &input, &input, &destroy
        };
        wl_resource* seat = wl_resource_create(client, &wl_seat_interface, int(version), id);
        wl_resource_set_implementation(seat, &requests, data, nullptr);
    }

    static void offerType(wl_client*, wl_resource* source, const char* type) {
        static_cast<Source*>(wl_resource_get_user_data(source))->types.append(QString::fromUtf8(type));
    }
    static void createSource(wl_client* client, wl_resource* manager, uint32_t id) {
        static const struct ext_data_control_source_v1_interface requests {
            &offerType, &destroy
        };
        wl_resource* source = wl_resource_create(client, &ext_data_control_source_v1_interface, 1, id);
        self(manager).m_sources.push_back({source, {}});
        wl_resource_set_implementation(source, &requests, &self(manager).m_sources.back(), &dropSource);
    }
    static void dropSource(wl_resource* source) {
        static_cast<Source*>(wl_resource_get_user_data(source))->resource = nullptr;
    }

    static void setSelection(wl_client*, wl_resource* device, wl_resource* source) {
        self(device).m_selection = source;
    }
    static void setPrimary(wl_client*, wl_resource*, wl_resource*) {}
    static void dropDevice(wl_resource* device) { std::erase(self(device).m_devices, device); }
    static void getDevice(wl_client* client, wl_resource* manager, uint32_t id, wl_resource*) {
        static const struct ext_data_control_device_v1_interface requests {
            &setSelection, &destroy, &setPrimary
        };
        wl_resource* device = wl_resource_create(client, &ext_data_control_device_v1_interface, 1, id);
        wl_resource_set_implementation(device, &requests, &self(manager), &dropDevice);
        self(manager).m_devices.push_back(device);
        self(manager).tell(device);
    }
    static void bindManager(wl_client* client, void* data, uint32_t, uint32_t id) {
        static const struct ext_data_control_manager_v1_interface requests {
            &createSource, &getDevice, &destroy
        };
        wl_resource* manager = wl_resource_create(client, &ext_data_control_manager_v1_interface, 1, id);
        wl_resource_set_implementation(manager, &requests, data, nullptr);
    }

    static void receive(wl_client*, wl_resource* offer, const char*, int32_t pipe) {
        self(offer).m_asked.emplace_back(pipe);
    }
    static constexpr struct ext_data_control_offer_v1_interface offer {
        &receive, &destroy
    };
};

FakeCompositor::FakeCompositor(int seats)
    : m_display(wl_display_create())
    , m_wake(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    const char* socket = wl_display_add_socket_auto(m_display);
    if (socket == nullptr)
        throw std::runtime_error("no socket for the compositor");
    m_name = socket;
    for (int seat = 0; seat < seats; ++seat)
        makeSeat();
    m_manager = wl_global_create(m_display, &ext_data_control_manager_v1_interface, 1, this, &Requests::bindManager);
    const auto woken = [](int, uint32_t, void* data) {
        static_cast<FakeCompositor*>(data)->runQueued();
        return 0;
    };
    wl_event_loop_add_fd(wl_display_get_event_loop(m_display), m_wake.get(), WL_EVENT_READABLE, woken, this);
    m_thread = std::thread([this] {
        while (!m_isEnding) {
            wl_display_flush_clients(m_display);
            wl_event_loop_dispatch(wl_display_get_event_loop(m_display), -1);
        }
    });
}

FakeCompositor::~FakeCompositor() {
    run([this] { m_isEnding = true; });
    m_thread.join();
    wl_display_destroy_clients(m_display);
    wl_display_destroy(m_display);
}

void FakeCompositor::run(const std::function<void()>& function) {
    std::packaged_task<void()> task(function);
    auto done = task.get_future();
    {
        const std::lock_guard lock(m_mutex);
        m_queue.push_back(std::move(task));
    }
    (void)eventfd_write(m_wake.get(), 1);
    done.get();
}

void FakeCompositor::runQueued() {
    eventfd_t count = 0;
    (void)eventfd_read(m_wake.get(), &count);
    std::vector<std::packaged_task<void()>> queue;
    {
        const std::lock_guard lock(m_mutex);
        queue.swap(m_queue);
    }
    for (auto& task : queue) {
        task();
        wl_display_flush_clients(m_display);
    }
}

void FakeCompositor::makeSeat() {
    m_seats.push_back(wl_global_create(m_display, &wl_seat_interface, 5, this, &Requests::bindSeat));
}

void FakeCompositor::addSeat() {
    run([this] { makeSeat(); });
}

void FakeCompositor::removeSeat() {
    run([this] {
        wl_global_remove(m_seats.front());
        m_seats.pop_front();
    });
}

void FakeCompositor::withdrawManager() {
    run([this] { wl_global_remove(m_manager); });
}

void FakeCompositor::die() {
    run([this] { wl_display_destroy_clients(m_display); });
}

void FakeCompositor::offer(const QStringList& types) {
    run([this, types] {
        m_offered = types;
        m_selection = nullptr;
        for (wl_resource* device : m_devices)
            tell(device);
    });
}

void FakeCompositor::offerNothing() {
    offer({});
}

void FakeCompositor::tell(wl_resource* device) {
    if (m_offered.isEmpty()) {
        ext_data_control_device_v1_send_selection(device, nullptr);
        return;
    }
    wl_resource* offer = wl_resource_create(wl_resource_get_client(device), &ext_data_control_offer_v1_interface, 1, 0);
    wl_resource_set_implementation(offer, &Requests::offer, this, nullptr);
    ext_data_control_device_v1_send_data_offer(device, offer);
    for (const QString& type : m_offered)
        ext_data_control_offer_v1_send_offer(offer, type.toUtf8().constData());
    ext_data_control_device_v1_send_selection(device, offer);
}

std::vector<int> FakeCompositor::asked() {
    std::vector<int> pipes;
    run([&] {
        for (const Descriptor& pipe : m_asked)
            pipes.push_back(pipe.get());
    });
    return pipes;
}

QStringList FakeCompositor::held() {
    QStringList types;
    run([&] {
        for (const Source& source : m_sources) {
            if (source.resource != nullptr && source.resource == m_selection)
                types = source.types;
        }
    });
    return types;
}

int FakeCompositor::devices() {
    int count = 0;
    run([&] { count = int(m_devices.size()); });
    return count;
}

} // namespace vellumry
