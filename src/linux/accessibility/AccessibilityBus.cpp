// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/accessibility/AccessibilityBus.h"

#include "foundation/Logging.h"

namespace vellumry {

namespace {

constexpr auto accessibleInterface = "org.a11y.atspi.Accessible";
constexpr auto busInterface = "org.freedesktop.DBus";

const AccessibilityBus::Node busItself{"org.freedesktop.DBus", "/org/freedesktop/DBus"};
const AccessibilityBus::Node launcher{"org.a11y.Bus", "/org/a11y/bus"};
const AccessibilityBus::Node desktop{"org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root"};

/// A set of small numbers, as rules of the Collection interface have them.
template <std::size_t Words>
GVariant* setOf(quint32 member) {
    gint32 words[Words] = {};
    words[member / 32] = static_cast<gint32>(1U << (member % 32));
    return g_variant_new_fixed_array(G_VARIANT_TYPE_INT32, words, Words, sizeof(gint32));
}

std::vector<AccessibilityBus::Node> nodesOf(GVariant* list) {
    std::vector<AccessibilityBus::Node> nodes;
    GVariantIter iterator;
    g_variant_iter_init(&iterator, list);
    const char* name = nullptr;
    const char* path = nullptr;
    while (g_variant_iter_next(&iterator, "(&s&o)", &name, &path))
        nodes.push_back({name, path});
    return nodes;
}

} // namespace

AccessibilityBus::AccessibilityBus(GCancellable* cancellable)
    : m_cancellable(cancellable) {
    const QByteArray address = busAddress();
    if (!address.isEmpty())
        m_bus = connect(address.constData());
    if (!m_bus)
        qCInfo(logging::accessibility) << "no accessibility bus: password fields are not told apart";
}

GObjectPointer<GDBusConnection> AccessibilityBus::connect(const char* address) const {
    constexpr auto asClient = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                                G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    return GObjectPointer<GDBusConnection>(
        g_dbus_connection_new_for_address_sync(address, asClient, nullptr, m_cancellable, nullptr));
}

QByteArray AccessibilityBus::busAddress() const {
    const std::unique_ptr<char, decltype(&g_free)> session(
        g_dbus_address_get_for_bus_sync(G_BUS_TYPE_SESSION, m_cancellable, nullptr), g_free);
    if (session == nullptr)
        return {};
    const auto connection = connect(session.get());
    const auto answer = call(connection.get(), launcher, "org.a11y.Bus", "GetAddress", nullptr, "(s)");
    if (answer == nullptr)
        return {};
    const char* address = nullptr;
    g_variant_get(answer.get(), "(&s)", &address);
    return address;
}

// Asking must not start a service that is not running.
GVariantPointer AccessibilityBus::call(GDBusConnection* connection, const Node& node, const char* interface,
                                       const char* method, GVariant* arguments, const char* answer) const {
    const GVariantPointer owned(arguments != nullptr ? g_variant_ref_sink(arguments) : nullptr);
    if (connection == nullptr)
        return nullptr;
    return GVariantPointer(g_dbus_connection_call_sync(connection, node.name.constData(), node.path.constData(),
                                                       interface, method, arguments, G_VARIANT_TYPE(answer),
                                                       G_DBUS_CALL_FLAGS_NO_AUTO_START, -1, m_cancellable, nullptr));
}

qint64 AccessibilityBus::processOf(const QByteArray& name) const {
    GVariant* arguments = g_variant_new("(s)", name.constData());
    const auto answer = call(m_bus.get(), busItself, busInterface, "GetConnectionUnixProcessID", arguments, "(u)");
    guint32 process = 0;
    if (answer != nullptr)
        g_variant_get(answer.get(), "(u)", &process);
    return process;
}

std::vector<AccessibilityBus::Node> AccessibilityBus::applicationsOf(qint64 process) const {
    std::vector<Node> applications = children(desktop);
    std::erase_if(applications, [this, process](const Node& root) { return processOf(root.name) != process; });
    return applications;
}

std::vector<AccessibilityBus::Node> AccessibilityBus::children(const Node& node) const {
    const auto answer = call(m_bus.get(), node, accessibleInterface, "GetChildren", nullptr, "(a(so))");
    if (answer == nullptr)
        return {};
    const GVariantPointer list(g_variant_get_child_value(answer.get(), 0));
    return nodesOf(list.get());
}

quint64 AccessibilityBus::states(const Node& node) const {
    const auto answer = call(m_bus.get(), node, accessibleInterface, "GetState", nullptr, "(au)");
    if (answer == nullptr)
        return 0;
    const GVariantPointer list(g_variant_get_child_value(answer.get(), 0));
    gsize count = 0;
    const auto* words = static_cast<const quint32*>(g_variant_get_fixed_array(list.get(), &count, sizeof(quint32)));
    const quint64 low = count > 0 ? words[0] : 0;
    const quint64 high = count > 1 ? words[1] : 0;
    return low | high << 32;
}

AccessibilityBus::Role AccessibilityBus::roleOf(const Node& node) const {
    const auto answer = call(m_bus.get(), node, accessibleInterface, "GetRole", nullptr, "(u)");
    guint32 role = 0;
    if (answer != nullptr)
        g_variant_get(answer.get(), "(u)", &role);
    return Role{role};
}

std::optional<bool> AccessibilityBus::contains(const Node& node, Role role, State state) const {
    // AtspiCollectionMatchType. No object has all roles of a set, so the role is matched as one of any.
    constexpr gint32 all = 1;
    constexpr gint32 any = 2;
    GVariant* rule = g_variant_new("(@aiia{ss}i@aiiasib)", setOf<2>(static_cast<quint32>(state)), all, nullptr, all,
                                   setOf<4>(static_cast<quint32>(role)), any, nullptr, all, FALSE);
    constexpr guint32 inTreeOrder = 1; // AtspiCollectionSortOrder
    constexpr gint32 one = 1;
    GVariant* arguments = g_variant_new("(@(aiia{ss}iaiiasib)uib)", rule, inTreeOrder, one, TRUE);
    const auto answer = call(m_bus.get(), node, "org.a11y.atspi.Collection", "GetMatches", arguments, "(a(so))");
    if (answer == nullptr)
        return std::nullopt;
    const GVariantPointer list(g_variant_get_child_value(answer.get(), 0));
    return g_variant_n_children(list.get()) > 0;
}

} // namespace vellumry
