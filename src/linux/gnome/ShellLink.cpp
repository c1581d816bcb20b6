// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/gnome/ShellLink.h"

#include "linux/gnome/ShellNames.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusServiceWatcher>

namespace vellumry {

namespace {

constexpr int shellMilliseconds = 1000;
const QString service = QString::fromLatin1(shell::service);
const QString path = QString::fromLatin1(shell::path);
const QString interface = QStringLiteral("com.vellumry.GnomeShell.Desktop");

QDBusMessage callOf(const QString& method, const QVariantList& arguments) {
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, method);
    call.setAutoStartService(false);
    call.setArguments(arguments);
    return call;
}

} // namespace

ShellLink::ShellLink(QDBusConnection bus)
    : m_bus(std::move(bus)) {
    if (!m_bus.isConnected())
        return;
    // A second copy of the program does not get the name, and is answered nothing.
    m_bus.interface()->registerService(QString::fromLatin1(shell::desktopPeer),
                                       QDBusConnectionInterface::DontQueueService,
                                       QDBusConnectionInterface::DontAllowReplacement);
    const auto hear = [this](const char* signal, const char* slot) {
        m_bus.connect(service, path, interface, QString::fromLatin1(signal), this, slot);
    };
    hear("FocusChanged", SLOT(hearFocus(qulonglong, QString, uint)));
    hear("WindowClosed", SLOT(hearClosed(qulonglong)));
    hear("KeyPressed", SLOT(hearKey(uint)));
    auto* watcher = new QDBusServiceWatcher(service, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) { setThere(!owner.isEmpty()); });
    setThere(m_bus.interface()->isServiceRegistered(service));
}

ShellLink::~ShellLink() {
    m_bus.unregisterService(QString::fromLatin1(shell::desktopPeer));
}

void ShellLink::setThere(bool isThere) {
    m_isThere = isThere;
    if (isThere)
        tell(QStringLiteral("Watch"), {});
    Q_EMIT thereChanged(isThere);
}

void ShellLink::tell(const QString& method, const QVariantList& arguments) const {
    if (m_isThere)
        m_bus.asyncCall(callOf(method, arguments));
}

std::optional<QVariantList> ShellLink::ask(const QString& method, const QVariantList& arguments) const {
    if (!m_isThere)
        return std::nullopt;
    const QDBusMessage answer = m_bus.call(callOf(method, arguments), QDBus::Block, shellMilliseconds);
    if (answer.type() != QDBusMessage::ReplyMessage)
        return std::nullopt;
    return answer.arguments();
}

void ShellLink::hearFocus(qulonglong window, const QString& application, uint process) {
    Q_EMIT focusChanged(window, application, process);
}

void ShellLink::hearClosed(qulonglong window) {
    Q_EMIT windowClosed(window);
}

void ShellLink::hearKey(uint id) {
    Q_EMIT keyPressed(id);
}

} // namespace vellumry
