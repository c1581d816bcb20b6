// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/portal/ScriptedPortal.h"

#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <gtest/gtest.h>
#include <ranges>
#include <sys/prctl.h>
#include <utility>

namespace vellumry {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString root = QStringLiteral("/org/freedesktop/portal/desktop");

/// One key sequence as KGlobalAccel carries it.
struct CarriedKeys {
    QList<int> keys;
};

QDBusArgument& operator<<(QDBusArgument& argument, const CarriedKeys& sequence) {
    argument.beginStructure();
    argument << sequence.keys;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, CarriedKeys& sequence) {
    argument.beginStructure();
    argument >> sequence.keys;
    argument.endStructure();
    return argument;
}

} // namespace

QDBusArgument& operator<<(QDBusArgument& argument, const CarriedShortcut& shortcut) {
    argument.beginStructure();
    argument << shortcut.name << shortcut.values;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, CarriedShortcut& shortcut) {
    argument.beginStructure();
    argument >> shortcut.name >> shortcut.values;
    argument.endStructure();
    return argument;
}

} // namespace vellumry

Q_DECLARE_METATYPE(vellumry::CarriedKeys)
Q_DECLARE_METATYPE(vellumry::CarriedShortcut)

namespace vellumry {

ScriptedPortal::ScriptedPortal(QString address)
    : m_address(std::move(address)) {
    qDBusRegisterMetaType<CarriedShortcut>();
    qDBusRegisterMetaType<QList<CarriedShortcut>>();
    qDBusRegisterMetaType<QMap<QString, QVariantMap>>();
}

ScriptedPortal::~ScriptedPortal() {
    end();
}

void ScriptedPortal::begin() {
    m_name = QStringLiteral("fake-portal-%1").arg(++m_generation);
    QDBusConnection connection = QDBusConnection::connectToBus(m_address, m_name);
    EXPECT_TRUE(connection.registerVirtualObject(root, this, QDBusConnection::SubPath));
    EXPECT_TRUE(connection.registerService(service));
}

void ScriptedPortal::end() {
    if (m_name.isEmpty())
        return;
    bus().unregisterService(service);
    bus().unregisterObject(root);
    m_known.clear();
    m_nameless.clear();
    QDBusConnection::disconnectFromBus(std::exchange(m_name, QString()));
}

int ScriptedPortal::count(const char* member) const {
    return int(std::ranges::count(calls, QLatin1String(member), &Call::member));
}

ScriptedPortal::Call ScriptedPortal::last(const char* member) const {
    for (const Call& call : calls | std::views::reverse) {
        if (call.member == QLatin1String(member))
            return call;
    }
    ADD_FAILURE() << "never called: " << member;
    return Call{{}, {}, {QVariantMap()}};
}

QList<CarriedShortcut> ScriptedPortal::shortcuts() const {
    return qdbus_cast<QList<CarriedShortcut>>(last("BindShortcuts").arguments.value(1));
}

QString ScriptedPortal::session() const {
    for (const Call& call : calls | std::views::reverse) {
        const auto path = call.arguments.value(0).value<QDBusObjectPath>().path();
        if (!path.isEmpty())
            return path;
    }
    return {};
}

void ScriptedPortal::respond(const char* member, uint code, const QVariantMap& results) {
    Response response;
    response.code = code;
    sendResponse(m_requests.value(QLatin1String(member)), response, results);
}

void ScriptedPortal::answerKeys() {
    for (const QDBusMessage& key : std::exchange(m_heldKeys, {}))
        EXPECT_TRUE(bus().send(key.createReply()));
}

void ScriptedPortal::activate(const QString& session, const QString& name) {
    QDBusMessage signal = QDBusMessage::createSignal(root, QStringLiteral("org.freedesktop.portal.GlobalShortcuts"),
                                                     QStringLiteral("Activated"));
    signal.setArguments({QVariant::fromValue(QDBusObjectPath(session)), name, qulonglong(1), QVariantMap()});
    EXPECT_TRUE(bus().send(signal));
}

void ScriptedPortal::closeSession(const QString& session) {
    QDBusMessage signal =
        QDBusMessage::createSignal(session, QStringLiteral("org.freedesktop.portal.Session"), QStringLiteral("Closed"));
    signal.setArguments({QVariantMap()});
    EXPECT_TRUE(bus().send(signal));
}

QVariantMap ScriptedPortal::listing(const QMap<QString, QString>& triggers) {
    QList<CarriedShortcut> list;
    for (auto trigger = triggers.cbegin(); trigger != triggers.cend(); ++trigger)
        list.append({trigger.key(), {{QStringLiteral("trigger_description"), trigger.value()}}});
    return {{QStringLiteral("shortcuts"), QVariant::fromValue(list)}};
}

bool ScriptedPortal::isRefused(const QDBusMessage& message) {
    const QString caller = message.service();
    if (message.member() == u"Register")
        m_known.append(caller);
    else if (!m_known.contains(caller) && !m_nameless.contains(caller))
        m_nameless.append(caller);
    const bool needsName = message.member() == u"Register" || message.member() == u"CreateSession";
    return needsName && m_nameless.contains(caller);
}

bool ScriptedPortal::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    calls.push_back(Call{message.member(), message.path(), message.arguments()});
    if (isRefused(message))
        return connection.send(
            message.createErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotAllowed"), QString()));
    if (message.member() == u"ReadAll")
        return connection.send(message.createReply(QVariant::fromValue(QMap<QString, QVariantMap>())));
    if (message.member() == u"Get") {
        const quint32 version = versions.value(message.arguments().value(0).toString());
        if (responses.value(QStringLiteral("Get")).isSilent)
            return true;
        connection.send(version != 0 ? message.createReply(QVariant::fromValue(QDBusVariant(version)))
                                     : message.createErrorReply(QDBusError::UnknownInterface, QString()));
        return true;
    }
    if (message.member() == u"Close")
        return connection.send(message.createReply());
    if (message.member() == u"Register" || message.member() == u"NotifyKeyboardKeycode") {
        if (message.member() == u"Register")
            visibilityAtRegister = prctl(PR_GET_DUMPABLE);
        if (responses.value(message.member()).isSilent)
            return true;
        if (const Response response = responses.value(message.member()); response.isError)
            return connection.send(response.errorName.isEmpty()
                                       ? message.createErrorReply(QDBusError::AccessDenied, QString())
                                       : message.createErrorReply(response.errorName, QString()));
        if (message.member() == u"NotifyKeyboardKeycode")
            keys.push_back({message.arguments().value(2).toInt(), message.arguments().value(3).toUInt() == 1});
        if (message.member() == u"NotifyKeyboardKeycode" && holdsKeys) {
            m_heldKeys.push_back(message);
            return true;
        }
        return connection.send(message.createReply());
    }
    answerRequest(message, connection);
    return true;
}

void ScriptedPortal::answerRequest(const QDBusMessage& message, const QDBusConnection& connection) {
    const Response response = responses.value(message.member());
    if (response.endsPortal) {
        QMetaObject::invokeMethod(this, &ScriptedPortal::end, Qt::QueuedConnection);
        return;
    }
    if (response.isError) {
        connection.send(message.createErrorReply(QDBusError::UnknownMethod, QString()));
        return;
    }
    const auto options = qdbus_cast<QVariantMap>(message.arguments().constLast());
    const QString path = root + QStringLiteral("/request/") + message.service().mid(1).replace(u'.', u'_') + u'/' +
                         options.value(QStringLiteral("handle_token")).toString();
    m_requests.insert(message.member(), path);
    const QVariantMap results = response.results.value_or(usualResults(message));
    if (response.comesFirst)
        sendResponse(path, response, results);
    connection.send(message.createReply(QVariant::fromValue(QDBusObjectPath(path))));
    if (!response.comesFirst && !response.isSilent)
        sendResponse(path, response, results);
}

QVariantMap ScriptedPortal::usualResults(const QDBusMessage& message) {
    const QString member = message.member();
    const auto options = qdbus_cast<QVariantMap>(message.arguments().constLast());
    if (member == u"CreateSession")
        return {{QStringLiteral("session_handle"),
                 QString(root + QStringLiteral("/session/x/") +
                         options.value(QStringLiteral("session_handle_token")).toString())}};
    if (member == u"Start")
        return {{QStringLiteral("devices"), 1U},
                {QStringLiteral("restore_token"), QStringLiteral("token-%1").arg(++m_tokens)}};
    if (member == u"BindShortcuts") {
        QMap<QString, QString> triggers;
        for (const CarriedShortcut& shortcut :
             qdbus_cast<QList<CarriedShortcut>>(QVariant(message.arguments().value(1))))
            triggers.insert(shortcut.name, QStringLiteral("a key"));
        return listing(triggers);
    }
    return {};
}

void ScriptedPortal::sendResponse(const QString& path, const Response& response, const QVariantMap& results) const {
    QDBusMessage signal =
        QDBusMessage::createSignal(path, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"));
    if (response.isGarbled)
        signal.setArguments({QStringLiteral("neither a number nor results")});
    else
        signal.setArguments({response.code, results});
    EXPECT_TRUE(bus().send(signal));
}

FakePortalBackend::FakePortalBackend(const QString& address) {
    QDBusConnection bus = QDBusConnection::connectToBus(address, QStringLiteral("fake-backend"));
    EXPECT_TRUE(bus.registerVirtualObject(root, this, QDBusConnection::SubPath));
    EXPECT_TRUE(bus.registerService(QStringLiteral("org.freedesktop.impl.portal.desktop.gnome")));
}

FakePortalBackend::~FakePortalBackend() {
    QDBusConnection::disconnectFromBus(QStringLiteral("fake-backend"));
}

bool FakePortalBackend::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    if (message.member() == u"Close" && message.interface() == u"org.freedesktop.impl.portal.Session")
        closed.append(message.path());
    return connection.send(message.createReply());
}

FakeGlobalAccel::FakeGlobalAccel(const QString& address) {
    qDBusRegisterMetaType<CarriedKeys>();
    qDBusRegisterMetaType<QList<CarriedKeys>>();
    QDBusConnection bus = QDBusConnection::connectToBus(address, QStringLiteral("fake-accel"));
    EXPECT_TRUE(bus.registerVirtualObject(QStringLiteral("/kglobalaccel"), this));
    EXPECT_TRUE(bus.registerService(QStringLiteral("org.kde.kglobalaccel")));
}

FakeGlobalAccel::~FakeGlobalAccel() {
    QDBusConnection::disconnectFromBus(QStringLiteral("fake-accel"));
}

bool FakeGlobalAccel::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    const QStringList action = message.arguments().value(0).toStringList();
    components.append(action.value(0));
    const int key = withoutKey.contains(action.value(1)) ? 0 : 'V';
    const QList<CarriedKeys> keys{CarriedKeys{{key, 0, 0, 0}}};
    return connection.send(message.createReply(QVariant::fromValue(keys)));
}

} // namespace vellumry
