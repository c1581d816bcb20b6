// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/wayland/keys/WaylandKeymap.h"
#include "platform/display/HotKeyRegistrar.h"

#include <QDBusConnection>
#include <QHash>
#include <QObject>

namespace vellumry {

/// Global keys by Plasma's org.kde.KGlobalAccel, without a question to the user. They stand in the system settings
/// under the program's name as long as they are held. Main thread.
class GlobalAccelHotKeys final : public QObject, public HotKeyRegistrar {
    Q_OBJECT
public:
    GlobalAccelHotKeys(QDBusConnection bus, std::shared_ptr<WaylandKeymap> keymap);
    ~GlobalAccelHotKeys() override;

    /// True when the service runs or the bus would start it.
    [[nodiscard]] static bool isThere(const QDBusConnection& bus);

    /// Waits for the service, a second at most.
    [[nodiscard]] bool grab(quint32 id, KeyCode keyCode, Modifiers modifiers) override;
    void release(quint32 id) override;

private Q_SLOTS:
    void pressed(const QString& component, const QString& action, qlonglong time);

private:
    [[nodiscard]] int qtKeyOf(KeyCode keyCode, Modifiers modifiers) const;
    bool listen();

    QDBusConnection m_bus;
    std::shared_ptr<WaylandKeymap> m_keymap;
    QHash<quint32, QString> m_actions; ///< by id
    bool m_isListening = false;
};

} // namespace vellumry
