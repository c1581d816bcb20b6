// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/tray/MenuInterface.h"

#include <QGuiApplication>
#include <algorithm>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

/// Shorter than it takes to open a menu twice. A peer that asks without end is answered from the last look.
constexpr qint64 restMilliseconds = 30;
constexpr auto tellingDelay = 1s;

} // namespace

MenuInterface::MenuInterface(QObject* parent, QDBusConnection bus, MenuLayout::Draw draw)
    : QDBusAbstractAdaptor(parent)
    , m_bus(std::move(bus))
    , m_layout(std::move(draw)) {
    registerMenuTypes();
    m_telling.setSingleShot(true);
    m_telling.setInterval(tellingDelay);
    connect(&m_telling, &QTimer::timeout, this, &MenuInterface::refresh);
}

QString MenuInterface::textDirection() const {
    return QGuiApplication::isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

bool MenuInterface::rebuild() {
    if (m_sinceRebuild.isValid() && m_sinceRebuild.elapsed() < restMilliseconds)
        return false;
    const bool isChanged = m_layout.set(onMenu());
    m_sinceRebuild.start();
    return isChanged;
}

void MenuInterface::ensureBuilt() {
    if (m_layout.revision() == 0)
        rebuild();
}

void MenuInterface::refresh() {
    if (m_isOpen || !rebuild())
        return;
    m_isRead = false;
    Q_EMIT LayoutUpdated(m_layout.revision(), 0);
}

// A desktop that has not read the menu yet hears nothing: it will ask.
void MenuInterface::menuChanged() {
    if (m_isRead && !m_isOpen && !m_telling.isActive())
        m_telling.start();
}

uint MenuInterface::GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames,
                              const QDBusMessage& message, MenuNode& layout) {
    ensureBuilt();
    m_isRead = true;
    if (auto node = m_layout.node(parentId, recursionDepth, propertyNames)) {
        layout = std::move(*node);
    } else {
        message.setDelayedReply(true);
        m_bus.send(message.createErrorReply(QDBusError::InvalidArgs, QStringLiteral("no entry of this number")));
    }
    return m_layout.revision();
}

QList<MenuProperties> MenuInterface::GetGroupProperties(const QList<int>& ids, const QStringList& propertyNames) {
    ensureBuilt();
    return m_layout.properties(ids, propertyNames);
}

QDBusVariant MenuInterface::GetProperty(int id, const QString& name, const QDBusMessage& message) {
    ensureBuilt();
    if (const auto value = m_layout.property(id, name))
        return QDBusVariant(*value);
    message.setDelayedReply(true);
    m_bus.send(message.createErrorReply(QDBusError::InvalidArgs, QStringLiteral("no such entry or property")));
    return {};
}

void MenuInterface::happened(int id, const QString& event) {
    if (event == QLatin1String("clicked")) {
        // Queued: the desktop has its answer before anything is done.
        if (const auto handler = m_layout.handlerOf(id))
            QMetaObject::invokeMethod(this, handler, Qt::QueuedConnection);
        m_isOpen = false;
        menuChanged();
    } else if (id == 0 && event == QLatin1String("opened")) {
        // Some desktops say only this.
        if (!m_isOpen)
            refresh();
        m_isOpen = true;
    } else if (id == 0 && event == QLatin1String("closed")) {
        m_isOpen = false;
        menuChanged();
    }
}

void MenuInterface::Event(int id, const QString& eventId, const QDBusVariant&, uint) {
    happened(id, eventId);
}

QList<int> MenuInterface::EventGroup(const QList<MenuEvent>& events) {
    QList<int> unknown;
    for (const MenuEvent& event : events) {
        if (m_layout.contains(event.id))
            happened(event.id, event.name);
        else
            unknown.append(event.id);
    }
    return unknown;
}

bool MenuInterface::AboutToShow(int id) {
    if (id != 0 || !rebuild())
        return false;
    // Said as well: some desktops listen to this alone.
    Q_EMIT LayoutUpdated(m_layout.revision(), 0);
    return true;
}

QList<int> MenuInterface::AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors) {
    ensureBuilt();
    QList<int> updated;
    for (const int id : ids) {
        if (!m_layout.contains(id))
            idErrors.append(id);
        else if (AboutToShow(id))
            updated.append(id);
    }
    return updated;
}

} // namespace vellumry
