// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/tray/StatusNotifierTray.h"

#include "foundation/Logging.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace vellumry {

namespace {

const QString itemPath = QStringLiteral("/StatusNotifierItem");
const QString menuPath = QStringLiteral("/StatusNotifierItem/Menu");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

/// A watcher that does not answer by then is taken as none; it is not waited for.
constexpr int answerMilliseconds = 10'000;

QString watcherService() {
    return QString::fromLatin1(StatusNotifierTray::watcherName);
}

QDBusMessage watcherCall(const QString& interface, const QString& method, const QVariantList& arguments) {
    QDBusMessage call = QDBusMessage::createMethodCall(watcherService(), watcherPath, interface, method);
    call.setAutoStartService(false);
    call.setArguments(arguments);
    return call;
}

/// The icon's name, where an installed theme or the program's own folder has it.
StatusNotifierInterface::Look lookFor(const TrayPictures& pictures) {
    const QString name = QStringLiteral("com.vellumry.Vellumry-symbolic");
    const QString file = QStringLiteral("/hicolor/symbolic/apps/") + name + QStringLiteral(".svg");
    StatusNotifierInterface::Look look{.pixmaps = pictures.mark()};
    if (!QStandardPaths::locate(QStandardPaths::GenericDataLocation, QStringLiteral("icons") + file).isEmpty()) {
        look.iconName = name;
        return look;
    }
    const QString own = QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/icons"));
    if (QFile::exists(own + file)) {
        look.iconName = name;
        look.iconThemePath = own;
    }
    return look;
}

} // namespace

StatusNotifierTray::StatusNotifierTray(TrayPictures::DrawSymbol drawSymbol, QDBusConnection bus)
    : m_bus(std::move(bus))
    , m_pictures(std::move(drawSymbol)) {
    m_menu = new MenuInterface(&m_menuObject, m_bus,
                               [this](const ActionMenuItem& item) { return m_pictures.pictureOf(item); });
    m_menu->onMenu = [this] { return menu ? menu() : std::vector<ActionMenuItem>(); };
    new StatusNotifierInterface(&m_itemObject, lookFor(m_pictures), menuPath);
}

StatusNotifierTray::~StatusNotifierTray() {
    m_bus.unregisterObject(itemPath);
    m_bus.unregisterObject(menuPath);
}

void StatusNotifierTray::install() {
    if (!m_bus.isConnected())
        return;
    m_bus.registerObject(itemPath, &m_itemObject, QDBusConnection::ExportAdaptors);
    m_bus.registerObject(menuPath, &m_menuObject, QDBusConnection::ExportAdaptors);
    m_serviceWatcher.setConnection(m_bus);
    m_serviceWatcher.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    m_serviceWatcher.addWatchedService(watcherService());
    connect(&m_serviceWatcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) { watcherIs(owner); });
    for (const char* change : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
        m_bus.connect(watcherService(), watcherPath, watcherService(), QString::fromLatin1(change), this,
                      SLOT(hostsChanged()));
    const QDBusMessage asking =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                                       QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetNameOwner"));
    QDBusMessage call = asking;
    call << watcherService();
    auto* pending = new QDBusPendingCallWatcher(m_bus.asyncCall(call, answerMilliseconds), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this, [this, pending] {
        pending->deleteLater();
        const QDBusPendingReply<QString> owner = *pending;
        // The bus may have told of a newer one meanwhile.
        if (!owner.isError() && m_watcher.isEmpty())
            watcherIs(owner.value());
    });
}

void StatusNotifierTray::menuChanged() {
    m_menu->menuChanged();
}

void StatusNotifierTray::watcherIs(const QString& owner) {
    if (owner == m_watcher)
        return;
    m_watcher = owner;
    setShown(false, false);
    if (!owner.isEmpty())
        registerWith(owner);
}

void StatusNotifierTray::registerWith(const QString& owner) {
    // By the name of the connection: it is there in a sandbox too, and goes with the process.
    const QDBusMessage call =
        watcherCall(watcherService(), QStringLiteral("RegisterStatusNotifierItem"), {m_bus.baseService()});
    auto* pending = new QDBusPendingCallWatcher(m_bus.asyncCall(call, answerMilliseconds), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this, [this, pending, owner] {
        pending->deleteLater();
        if (owner != m_watcher)
            return;
        if (pending->isError()) {
            qCWarning(logging::process).noquote() << "the desktop's panel refuses the icon:" << pending->error().name();
            return;
        }
        setShown(true, m_hasHost);
        hostsChanged();
    });
}

/// A watcher without a host keeps icons that are not shown.
void StatusNotifierTray::hostsChanged() {
    const QDBusMessage call = watcherCall(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
                                          {watcherService(), QStringLiteral("IsStatusNotifierHostRegistered")});
    auto* pending = new QDBusPendingCallWatcher(m_bus.asyncCall(call, answerMilliseconds), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this, [this, pending, owner = m_watcher] {
        pending->deleteLater();
        const QDBusPendingReply<QDBusVariant> answer = *pending;
        if (owner == m_watcher && !answer.isError())
            setShown(m_isRegistered, answer.value().variant().toBool());
    });
}

void StatusNotifierTray::setShown(bool isRegistered, bool hasHost) {
    const bool before = isShown();
    m_isRegistered = isRegistered;
    m_hasHost = hasHost;
    if (isShown() == before)
        return;
    qCInfo(logging::process) << (isShown() ? "the icon is in the desktop's panel" : "the desktop's panel has gone");
    onShownChanged();
}

} // namespace vellumry
