// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/tray/MenuLayout.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QTimer>
#include <functional>

namespace vellumry {

/// A menu for the desktop's panel to show: com.canonical.dbusmenu. It is asked for anew at each opening, though not
/// more often than a person can open menus. Lives as long as the object it is attached to. Main thread.
class MenuInterface : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT)
    Q_PROPERTY(QString TextDirection READ textDirection CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)

public:
    MenuInterface(QObject* parent, QDBusConnection bus, MenuLayout::Draw draw);

    /// Answers the menu as it is now.
    std::function<std::vector<ActionMenuItem>()> onMenu = [] { return std::vector<ActionMenuItem>(); };
    /// The menu would be another one: told to the desktop within a second, unless it shows the menu just now.
    void menuChanged();

    [[nodiscard]] uint version() const { return 3; }
    [[nodiscard]] QString textDirection() const;
    [[nodiscard]] QString status() const { return QStringLiteral("normal"); }
    [[nodiscard]] QStringList iconThemePath() const { return {}; }

public Q_SLOTS:
    // The bus knows these by their names, hence the capitals.
    uint GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames, const QDBusMessage& message,
                   vellumry::MenuNode& layout);
    QList<vellumry::MenuProperties> GetGroupProperties(const QList<int>& ids, const QStringList& propertyNames);
    QDBusVariant GetProperty(int id, const QString& name, const QDBusMessage& message);
    void Event(int id, const QString& eventId, const QDBusVariant& data, uint timestamp);
    QList<int> EventGroup(const QList<vellumry::MenuEvent>& events);
    bool AboutToShow(int id);
    QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors);

Q_SIGNALS:
    void ItemsPropertiesUpdated(const QList<vellumry::MenuProperties>& updatedProps,
                                const QList<vellumry::MenuPropertyNames>& removedProps);
    void LayoutUpdated(uint revision, int parent);
    void ItemActivationRequested(int id, uint timestamp);

private:
    /// True when the menu became another one.
    bool rebuild();
    void refresh();
    void ensureBuilt();
    void happened(int id, const QString& event);

    QDBusConnection m_bus;
    MenuLayout m_layout;
    QElapsedTimer m_sinceRebuild;
    QTimer m_telling;
    bool m_isOpen = false;
    bool m_isRead = false; ///< the desktop has the menu as it is
};

} // namespace vellumry
