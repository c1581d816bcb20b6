// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"
#include "linux/keyring/GObjectPointer.h"

#include <QByteArray>
#include <chrono>
#include <functional>
#include <gio/gio.h>
#include <gio/gunixfdlist.h>
#include <memory>
#include <poll.h>
#include <vector>

namespace vellumry {

/// A connection to the session bus of its own, for a thread that waits by `poll`. Used by one thread at a time; what it
/// calls back, it calls from `finishWait` and `prepareWait`.
class PolledBus {
public:
    /// The answer to a call; null when it failed. The list holds the descriptors that came with it, or is null.
    using Answer = std::function<void(GVariant* values, GUnixFDList* descriptors)>;
    using Signal = std::function<void(const char* name, GVariant* values)>;

    struct Object {
        QByteArray service;
        QByteArray path;
        QByteArray interface;
    };

    [[nodiscard]] static OrReason<std::unique_ptr<PolledBus>> create();
    ~PolledBus();
    PolledBus(const PolledBus&) = delete;
    PolledBus& operator=(const PolledBus&) = delete;

    [[nodiscard]] bool isBroken() const { return g_dbus_connection_is_closed(m_connection.get()) != FALSE; }
    /// Asks for a bus name, without waiting in line for it. Waits for the bus. False when another client has it.
    [[nodiscard]] bool own(const char* name);
    /// Whether a bus name has an owner. Waits for the bus.
    [[nodiscard]] bool hasOwner(const char* name);
    /// Calls a method; takes the arguments over (null for none). `answer` may be unset.
    void call(const Object& object, const char* method, GVariant* arguments, Answer answer,
              GUnixFDList* descriptors = nullptr);
    /// Hears the signals of an object from now on.
    void listen(const Object& object, Signal told);
    /// Tells of a name that has an owner, or has none any more, from now on.
    void watch(const char* name, std::function<void(bool isThere)> told);

    void prepareWait(std::vector<pollfd>& descriptors);
    void finishWait(const std::vector<pollfd>& descriptors);
    void flush();
    /// Waits until it is true; false when the time was up before.
    bool waitUntil(const std::function<bool()>& isDone, std::chrono::milliseconds limit);

private:
    class Scope;

    PolledBus(GDBusConnection* connection, GMainContext* context);

    GMainContext* m_context;
    GObjectPointer<GDBusConnection> m_connection;
    std::vector<guint> m_subscriptions;
    int m_priority = 0;
    std::vector<GPollFD> m_polled; ///< between `prepareWait` and `finishWait`
    bool m_isWaiting = false;
    std::shared_ptr<bool> m_life = std::make_shared<bool>(true); ///< what is answered later finds us gone by it
};

} // namespace vellumry
