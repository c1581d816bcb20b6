// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/wayland/Descriptor.h"

#include <QByteArray>
#include <QStringList>
#include <functional>
#include <future>
#include <list>
#include <mutex>
#include <thread>
#include <vector>

struct wl_client;
struct wl_display;
struct wl_global;
struct wl_resource;

namespace vellumry {

/// A compositor that has seats and data control, nothing to show, and manners that no real one has. It runs on a thread
/// of its own; the calls come back when it has done what was asked and sent what that makes it tell.
class FakeCompositor {
public:
    explicit FakeCompositor(int seats);
    ~FakeCompositor();
    FakeCompositor(const FakeCompositor&) = delete;
    FakeCompositor& operator=(const FakeCompositor&) = delete;

    /// What $WAYLAND_DISPLAY would hold.
    [[nodiscard]] const QByteArray& name() const { return m_name; }
    void addSeat();
    /// The oldest.
    void removeSeat();
    /// Data control is offered no more; clients that have it keep it.
    void withdrawManager();
    /// Ends all connections at once, as a crash does.
    void die();
    /// A copy of another program of which nothing is ever written, on all seats.
    void offer(const QStringList& types);
    void offerNothing();
    /// The pipes that a reading of such a copy has left, each still open.
    [[nodiscard]] std::vector<int> asked();
    /// What our client has put on the clipboard, by its types; empty without.
    [[nodiscard]] QStringList held();
    /// How many devices our client has.
    [[nodiscard]] int devices();

private:
    struct Requests;
    struct Source {
        wl_resource* resource = nullptr;
        QStringList types;
    };

    /// Runs it on the compositor's thread.
    void run(const std::function<void()>& function);
    void runQueued();
    void makeSeat();
    void tell(wl_resource* device);

    wl_display* m_display = nullptr;
    QByteArray m_name;
    std::list<wl_global*> m_seats;
    wl_global* m_manager = nullptr;
    std::vector<wl_resource*> m_devices;
    std::list<Source> m_sources;
    std::vector<Descriptor> m_asked;
    QStringList m_offered;
    wl_resource* m_selection = nullptr; ///< the client's source
    Descriptor m_wake;
    std::mutex m_mutex;
    std::vector<std::packaged_task<void()>> m_queue; ///< guarded
    bool m_isEnding = false;
    std::thread m_thread;
};

} // namespace vellumry
