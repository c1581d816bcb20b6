// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/gnome/PolledBus.h"

#include <algorithm>

namespace vellumry {

namespace {

constexpr guint32 withoutQueue = 4; ///< DBUS_NAME_FLAG_DO_NOT_QUEUE
constexpr guint32 isOwner = 1;
constexpr guint32 isOwnerAlready = 4;
constexpr int busMilliseconds = 2000;
const PolledBus::Object bus{"org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus"};

struct VariantUnreference {
    void operator()(GVariant* value) const { g_variant_unref(value); }
};
using VariantPointer = std::unique_ptr<GVariant, VariantUnreference>;

struct PendingCall {
    PolledBus::Answer answer;
    std::weak_ptr<bool> life;
};

} // namespace

/// What GIO is asked for in here is answered in the bus's own context.
class PolledBus::Scope {
public:
    explicit Scope(GMainContext* context)
        : m_context(context) {
        g_main_context_push_thread_default(m_context);
    }
    ~Scope() { g_main_context_pop_thread_default(m_context); }
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

private:
    GMainContext* m_context;
};

OrReason<std::unique_ptr<PolledBus>> PolledBus::create() {
    GMainContext* context = g_main_context_new();
    const Scope scope(context);
    GErrorReceiver error;
    gchar* address = g_dbus_address_get_for_bus_sync(G_BUS_TYPE_SESSION, nullptr, error.receive());
    GDBusConnection* connection = nullptr;
    if (address != nullptr) {
        const auto flags = GDBusConnectionFlags(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
        connection = g_dbus_connection_new_for_address_sync(address, flags, nullptr, nullptr, error.receive());
        g_free(address);
    }
    if (connection == nullptr) {
        g_main_context_unref(context);
        return std::unexpected(Reason{QStringLiteral("no session bus")});
    }
    return std::unique_ptr<PolledBus>(new PolledBus(connection, context));
}

PolledBus::PolledBus(GDBusConnection* connection, GMainContext* context)
    : m_context(context)
    , m_connection(connection) {}

PolledBus::~PolledBus() {
    m_life.reset();
    for (const guint subscription : m_subscriptions)
        g_dbus_connection_signal_unsubscribe(m_connection.get(), subscription);
    {
        const Scope scope(m_context);
        (void)g_dbus_connection_close_sync(m_connection.get(), nullptr, nullptr);
        // Calls under way hear of the end, and what is kept for them is freed.
        while (g_main_context_iteration(m_context, FALSE) != FALSE) {
        }
    }
    m_connection.reset();
    g_main_context_unref(m_context);
}

bool PolledBus::own(const char* name) {
    const Scope scope(m_context);
    const VariantPointer answer(
        g_dbus_connection_call_sync(m_connection.get(), bus.service.constData(), bus.path.constData(),
                                    bus.interface.constData(), "RequestName", g_variant_new("(su)", name, withoutQueue),
                                    G_VARIANT_TYPE("(u)"), G_DBUS_CALL_FLAGS_NONE, busMilliseconds, nullptr, nullptr));
    guint32 outcome = 0;
    if (answer)
        g_variant_get(answer.get(), "(u)", &outcome);
    return outcome == isOwner || outcome == isOwnerAlready;
}

bool PolledBus::hasOwner(const char* name) {
    const Scope scope(m_context);
    const VariantPointer answer(g_dbus_connection_call_sync(
        m_connection.get(), bus.service.constData(), bus.path.constData(), bus.interface.constData(), "NameHasOwner",
        g_variant_new("(s)", name), G_VARIANT_TYPE("(b)"), G_DBUS_CALL_FLAGS_NONE, busMilliseconds, nullptr, nullptr));
    gboolean isThere = FALSE;
    if (answer)
        g_variant_get(answer.get(), "(b)", &isThere);
    return isThere != FALSE;
}

void PolledBus::call(const Object& object, const char* method, GVariant* arguments, Answer answer,
                     GUnixFDList* descriptors) {
    const Scope scope(m_context);
    auto* pending = new PendingCall{std::move(answer), m_life};
    g_dbus_connection_call_with_unix_fd_list(
        m_connection.get(), object.service.constData(), object.path.constData(), object.interface.constData(), method,
        arguments, nullptr, G_DBUS_CALL_FLAGS_NO_AUTO_START, -1, descriptors, nullptr,
        [](GObject* source, GAsyncResult* result, gpointer data) {
            const std::unique_ptr<PendingCall> asked(static_cast<PendingCall*>(data));
            GUnixFDList* list = nullptr;
            const VariantPointer values(
                g_dbus_connection_call_with_unix_fd_list_finish(G_DBUS_CONNECTION(source), &list, result, nullptr));
            const GObjectPointer<GUnixFDList> owned(list);
            if (asked->answer && !asked->life.expired())
                asked->answer(values.get(), list);
        },
        pending);
}

void PolledBus::listen(const Object& object, Signal told) {
    const Scope scope(m_context);
    m_subscriptions.push_back(g_dbus_connection_signal_subscribe(
        m_connection.get(), object.service.constData(), object.interface.constData(), nullptr, object.path.constData(),
        nullptr, G_DBUS_SIGNAL_FLAGS_NONE,
        [](GDBusConnection*, const gchar*, const gchar*, const gchar*, const gchar* name, GVariant* values,
           gpointer data) { (*static_cast<Signal*>(data))(name, values); },
        new Signal(std::move(told)), [](gpointer data) { delete static_cast<Signal*>(data); }));
}

void PolledBus::watch(const char* name, std::function<void(bool isThere)> told) {
    const Scope scope(m_context);
    using Told = std::function<void(bool)>;
    const auto shared = std::make_shared<Told>(std::move(told));
    m_subscriptions.push_back(g_dbus_connection_signal_subscribe(
        m_connection.get(), bus.service.constData(), bus.interface.constData(), "NameOwnerChanged",
        bus.path.constData(), name, G_DBUS_SIGNAL_FLAGS_NONE,
        [](GDBusConnection*, const gchar*, const gchar*, const gchar*, const gchar*, GVariant* values, gpointer data) {
            const char* owner = nullptr;
            g_variant_get_child(values, 2, "&s", &owner);
            (**static_cast<std::shared_ptr<Told>*>(data))(*owner != '\0');
        },
        new std::shared_ptr<Told>(shared), [](gpointer data) { delete static_cast<std::shared_ptr<Told>*>(data); }));
    call(bus, "NameHasOwner", g_variant_new("(s)", name), [shared](GVariant* values, GUnixFDList*) {
        gboolean isThere = FALSE;
        if (values != nullptr)
            g_variant_get(values, "(b)", &isThere);
        (*shared)(isThere != FALSE);
    });
}

void PolledBus::prepareWait(std::vector<pollfd>& descriptors) {
    {
        const Scope scope(m_context);
        while (g_main_context_iteration(m_context, FALSE) != FALSE) {
        }
    }
    m_isWaiting = g_main_context_acquire(m_context) != FALSE;
    if (!m_isWaiting)
        return;
    (void)g_main_context_prepare(m_context, &m_priority);
    gint timeout = 0;
    const gint count = g_main_context_query(m_context, m_priority, &timeout, nullptr, 0);
    m_polled.resize(std::size_t(count));
    (void)g_main_context_query(m_context, m_priority, &timeout, m_polled.data(), count);
    for (const GPollFD& polled : m_polled)
        descriptors.push_back({polled.fd, short(polled.events), 0});
}

void PolledBus::finishWait(const std::vector<pollfd>& descriptors) {
    if (!std::exchange(m_isWaiting, false))
        return;
    for (GPollFD& polled : m_polled) {
        const auto found = std::ranges::find(descriptors, polled.fd, &pollfd::fd);
        polled.revents = found == descriptors.end() ? 0 : gushort(found->revents);
    }
    const bool isReady = g_main_context_check(m_context, m_priority, m_polled.data(), gint(m_polled.size())) != FALSE;
    if (isReady) {
        const Scope scope(m_context);
        g_main_context_dispatch(m_context);
    }
    g_main_context_release(m_context);
}

void PolledBus::flush() {
    const Scope scope(m_context);
    (void)g_dbus_connection_flush_sync(m_connection.get(), nullptr, nullptr);
}

bool PolledBus::waitUntil(const std::function<bool()>& isDone, std::chrono::milliseconds limit) {
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (!isDone()) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now()).count();
        if (left <= 0 || isBroken())
            return false;
        std::vector<pollfd> descriptors;
        prepareWait(descriptors);
        if (!isDone())
            (void)poll(descriptors.data(), descriptors.size(), int(left));
        finishWait(descriptors);
    }
    return true;
}

} // namespace vellumry
