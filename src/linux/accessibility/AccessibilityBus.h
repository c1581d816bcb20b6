// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/keyring/GObjectPointer.h"
#include "linux/keyring/PrivateMainContext.h"

#include <QByteArray>
#include <QtGlobal>
#include <gio/gio.h>
#include <memory>
#include <optional>
#include <vector>

namespace vellumry {

struct GVariantUnreference {
    void operator()(GVariant* value) const { g_variant_unref(value); }
};
using GVariantPointer = std::unique_ptr<GVariant, GVariantUnreference>;

/// One conversation on the desktop's accessibility bus (AT-SPI 2, the interfaces `org.a11y.atspi.*`). It only asks: it
/// starts no bus and registers for nothing, so no application does more than before. Blocking calls, each given up when
/// `cancellable` is; failures are empty answers. One thread.
class AccessibilityBus {
public:
    /// An object of an application's tree.
    struct Node {
        QByteArray name; ///< the application's name on the bus
        QByteArray path;
        bool operator==(const Node&) const = default;
    };
    /// Bits of `states` (AtspiStateType).
    enum State : int { active = 1, focused = 12, showing = 25 };
    /// Answers of `roleOf` (AtspiRole).
    enum class Role : quint32 { passwordText = 40 };

    /// Connects where such a bus runs. `cancellable` must outlive this.
    explicit AccessibilityBus(GCancellable* cancellable);
    AccessibilityBus(const AccessibilityBus&) = delete;
    AccessibilityBus& operator=(const AccessibilityBus&) = delete;

    /// The roots of the applications that the process runs.
    [[nodiscard]] std::vector<Node> applicationsOf(qint64 process) const;
    [[nodiscard]] std::vector<Node> children(const Node& node) const;
    [[nodiscard]] quint64 states(const Node& node) const;
    [[nodiscard]] Role roleOf(const Node& node) const;
    /// Whether an object below `node` has the role and the state; nothing when the application cannot be asked that.
    [[nodiscard]] std::optional<bool> contains(const Node& node, Role role, State state) const;

    [[nodiscard]] static bool has(quint64 states, State state) { return (states >> state & 1) != 0; }

private:
    [[nodiscard]] GObjectPointer<GDBusConnection> connect(const char* address) const;
    [[nodiscard]] QByteArray busAddress() const;
    [[nodiscard]] GVariantPointer call(GDBusConnection* connection, const Node& node, const char* interface,
                                       const char* method, GVariant* arguments, const char* answer) const;
    [[nodiscard]] qint64 processOf(const QByteArray& name) const;

    GCancellable* m_cancellable;
    /// Goes last and takes along what GIO left with it.
    PrivateMainContext m_context;
    GObjectPointer<GDBusConnection> m_bus;
};

} // namespace vellumry
