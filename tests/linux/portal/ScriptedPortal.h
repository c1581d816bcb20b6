// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QMap>
#include <QStringList>
#include <QVariantMap>
#include <functional>
#include <optional>
#include <vector>

namespace vellumry {

/// A shortcut as portals carry it.
struct CarriedShortcut {
    QString name;
    QVariantMap values;
};
QDBusArgument& operator<<(QDBusArgument& argument, const CarriedShortcut& shortcut);
const QDBusArgument& operator>>(const QDBusArgument& argument, CarriedShortcut& shortcut);

/// The desktop's portals on a connection of their own: grants everything, but for what a test tells it to do otherwise.
/// As the true one it takes a name only from those that have asked for nothing yet, and grants the nameless nothing.
class ScriptedPortal : public QDBusVirtualObject {
    Q_OBJECT
public:
    /// What a request is answered with.
    struct Response {
        bool isError = false;    ///< the method fails
        QString errorName{};     ///< with this error; else one of the bus's
        bool isSilent = false;   ///< the method is answered, the request is not
        bool comesFirst = false; ///< the response overtakes the method's answer
        bool isGarbled = false;  ///< of another signature than documented
        bool endsPortal = false; ///< the portal dies of it
        uint code = 0;
        std::optional<QVariantMap> results{}; ///< else what a portal that grants all says
    };
    struct Call {
        QString member;
        QString path;
        QVariantList arguments;
        [[nodiscard]] QVariantMap options() const { return qdbus_cast<QVariantMap>(arguments.last()); }
    };
    struct Key {
        int code = 0;
        bool isDown = false;
        bool operator==(const Key&) const = default;
    };

    explicit ScriptedPortal(QString address);
    ~ScriptedPortal() override;

    void begin();
    /// As a portal that crashes: its name and its connection go.
    void end();
    [[nodiscard]] bool isThere() const { return !m_name.isEmpty(); }
    [[nodiscard]] QDBusConnection bus() const { return QDBusConnection(m_name); }

    /// How often a method was called.
    [[nodiscard]] int count(const char* member) const;
    /// The last call of a method.
    [[nodiscard]] Call last(const char* member) const;
    /// Those of the last BindShortcuts.
    [[nodiscard]] QList<CarriedShortcut> shortcuts() const;
    /// The session of the last call that named one.
    [[nodiscard]] QString session() const;
    /// Answers a request that was answered with silence.
    void respond(const char* member, uint code, const QVariantMap& results);
    /// Answers the keys that `holdsKeys` has kept waiting.
    void answerKeys();
    /// The user presses a shortcut.
    void activate(const QString& session, const QString& name);
    void closeSession(const QString& session);
    /// A list as the results of BindShortcuts have it; without a trigger where `triggers` has none for a name.
    [[nodiscard]] static QVariantMap listing(const QMap<QString, QString>& triggers);

    QMap<QString, Response> responses; ///< by method
    std::vector<Call> calls;
    std::vector<Key> keys;
    bool holdsKeys = false;          ///< they are answered by `answerKeys` only
    int visibilityAtRegister = -1;   ///< whether others may look at this process (PR_GET_DUMPABLE)
    QMap<QString, quint32> versions; ///< of interfaces; those that are not here are missing

    [[nodiscard]] QString introspect(const QString&) const override { return {}; }
    [[nodiscard]] bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    [[nodiscard]] bool isRefused(const QDBusMessage& message);
    void answerRequest(const QDBusMessage& message, const QDBusConnection& connection);
    [[nodiscard]] QVariantMap usualResults(const QDBusMessage& message);
    void sendResponse(const QString& path, const Response& response, const QVariantMap& results) const;

    const QString m_address;
    QString m_name;
    int m_generation = 0;
    int m_tokens = 0;
    std::vector<QDBusMessage> m_heldKeys;
    QMap<QString, QString> m_requests; ///< the path of the last request of a method
    QStringList m_known;               ///< connections that have tried to tell their name
    QStringList m_nameless;            ///< connections that asked for something before
};

/// GNOME's part of the portal, as far as it ends sessions.
class FakePortalBackend : public QDBusVirtualObject {
    Q_OBJECT
public:
    explicit FakePortalBackend(const QString& address);
    ~FakePortalBackend() override;

    QStringList closed; ///< paths of sessions

    [[nodiscard]] QString introspect(const QString&) const override { return {}; }
    [[nodiscard]] bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;
};

/// Plasma's service of global shortcuts, as far as it tells which keys an action has.
class FakeGlobalAccel : public QDBusVirtualObject {
    Q_OBJECT
public:
    explicit FakeGlobalAccel(const QString& address);
    ~FakeGlobalAccel() override;

    QStringList withoutKey; ///< actions that another component holds the key of
    QStringList components; ///< that were asked about

    [[nodiscard]] QString introspect(const QString&) const override { return {}; }
    [[nodiscard]] bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;
};

} // namespace vellumry
