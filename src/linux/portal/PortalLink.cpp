// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/portal/PortalLink.h"

#include "foundation/Logging.h"
#include "linux/portal/PortalBus.h"
#include "linux/portal/PortalNames.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QPointer>
#include <QUuid>
#include <utility>

namespace vellumry {

namespace {

/// Starting the portal and its backends is part of it.
constexpr int callMilliseconds = 20'000;

/// Not to be guessed by another program, which could answer in the portal's name.
QString freshToken() {
    return QStringLiteral("vellumry") + QUuid::createUuid().toString(QUuid::Id128);
}

bool isError(const QDBusMessage& message) {
    return message.type() != QDBusMessage::ReplyMessage;
}

PortalLink::Outcome outcomeOf(uint response) {
    if (response == 0)
        return PortalLink::Outcome::given;
    return response == 1 ? PortalLink::Outcome::refused : PortalLink::Outcome::failed;
}

} // namespace

PortalLink::PortalLink(std::shared_ptr<PortalIntroduction> introduction, Options options)
    : m_introduction(std::move(introduction))
    , m_bus(m_introduction->bus())
    , m_options(std::move(options)) {
    // No sender is named: the bus would be asked for its owner, and would have to answer first.
    m_bus.connect(QString(), QString(), portal::request, QStringLiteral("Response"), this,
                  SLOT(hearResponse(QDBusMessage)));
    m_bus.connect(QString(), QString(), portal::session, QStringLiteral("Closed"), this,
                  SLOT(hearClosed(QDBusMessage)));
    m_bus.connect(QString(), QString(), QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameOwnerChanged"),
                  QStringList{portal::service}, QString(), this, SLOT(hearOwner(QString, QString, QString)));
}

PortalLink::~PortalLink() {
    for (const QString& path : m_pending.keys())
        forget(path, Outcome::missing);
}

QDBusMessage PortalLink::messageFor(const QString& interface, const QString& method,
                                    const QVariantList& arguments) const {
    QDBusMessage message = QDBusMessage::createMethodCall(m_introduction->portal(), portal::path, interface, method);
    message.setArguments(arguments);
    return message;
}

OneShot<QDBusMessage> PortalLink::call(QDBusMessage message) {
    return portalbus::answerTo(m_bus.asyncCall(message, callMilliseconds));
}

QCoro::Task<PortalSurvey> PortalLink::survey() {
    const QPointer<PortalLink> self(this);
    const auto introducing = m_introduction->made();
    const QDBusMessage introduction = co_await introducing;
    PortalSurvey survey;
    for (const auto& [interface, version] : survey.interfaces()) {
        if (self == nullptr)
            co_return PortalSurvey();
        if (m_introduction->portal().isEmpty())
            break;
        const auto asking = call(PortalSurvey::question(m_introduction->portal(), interface));
        const QDBusMessage answer = co_await asking;
        *version = PortalSurvey::versionIn(answer);
    }
    co_return survey;
}

QCoro::Task<PortalLink::Answer> PortalLink::request(Call call, std::chrono::milliseconds limit) {
    const QPointer<PortalLink> self(this);
    const auto introducing = m_introduction->made();
    const QDBusMessage introduction = co_await introducing;
    if (self == nullptr || m_introduction->portal().isEmpty())
        co_return Answer{};

    const QString token = freshToken();
    call.options[QStringLiteral("handle_token")] = token;
    call.arguments.append(call.options);
    const QString path =
        portal::path + QStringLiteral("/request/") + m_bus.baseService().mid(1).replace(u'.', u'_') + u'/' + token;
    // The response may overtake the reply.
    const OneShot<Answer> answer;
    m_pending.insert(path, answer);
    const auto calling = this->call(messageFor(call.interface, call.method, call.arguments));
    const QDBusMessage reply = co_await calling;
    if (self == nullptr)
        co_return Answer{};
    if (isError(reply)) {
        qCInfo(logging::wayland).noquote() << call.method << "failed:" << reply.errorName() << reply.errorMessage();
        forget(path, Outcome::missing);
    } else {
        answer.deliverAfter(limit, Answer{Outcome::unanswered});
    }
    Answer given = co_await answer;
    if (self == nullptr)
        co_return Answer{};
    m_pending.remove(path);
    if (given.outcome == Outcome::unanswered)
        close(path, portal::request);
    co_return given;
}

QCoro::Task<QString> PortalLink::openSession(QString interface) {
    Call call{interface, QStringLiteral("CreateSession")};
    call.options[QStringLiteral("session_handle_token")] = freshToken();
    auto asking = request(std::move(call));
    const Answer answer = co_await asking;
    if (answer.outcome != Outcome::given)
        co_return QString();
    const QVariant session = answer.results.value(QStringLiteral("session_handle"));
    // A string by the documents, a path by its meaning.
    const bool isPath = session.metaType() == QMetaType::fromType<QDBusObjectPath>();
    co_return isPath ? session.value<QDBusObjectPath>().path() : session.toString();
}

void PortalLink::closeSession(const QString& session) {
    if (!session.isEmpty())
        close(session, portal::session);
}

void PortalLink::close(const QString& path, const QString& interface) {
    const QString portal = m_introduction->portal();
    if (!portal.isEmpty())
        m_bus.send(QDBusMessage::createMethodCall(portal, path, interface, QStringLiteral("Close")));
}

/// GNOME's part of the portal is a process of its own, which outlives the portal and goes on holding the shortcuts of a
/// session that the portal has forgotten: another session is given the same ones, and hears nothing of them.
void PortalLink::abandonSession(const QString& session) {
    if (session.isEmpty())
        return;
    QDBusMessage close =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.impl.portal.desktop.gnome"), session,
                                       QStringLiteral("org.freedesktop.impl.portal.Session"), QStringLiteral("Close"));
    close.setAutoStartService(false);
    m_bus.send(close);
}

void PortalLink::forget(const QString& path, Outcome outcome) {
    // It may go on at once, and ask for more.
    const OneShot<Answer> answer = m_pending.take(path);
    answer.deliver(Answer{outcome});
}

void PortalLink::hearResponse(const QDBusMessage& message) {
    if (!m_pending.contains(message.path()))
        return;
    const OneShot<Answer> answer = m_pending.take(message.path());
    if (message.signature() != QLatin1String("ua{sv}")) {
        answer.deliver(Answer{Outcome::failed});
        return;
    }
    const QVariantList arguments = message.arguments();
    answer.deliver(Answer{outcomeOf(arguments[0].toUInt()), qdbus_cast<QVariantMap>(arguments[1])});
}

void PortalLink::hearClosed(const QDBusMessage& message) {
    Q_EMIT sessionClosed(message.path());
}

void PortalLink::hearOwner(const QString& name, const QString& before, const QString& now) {
    if (name != portal::service)
        return;
    if (!before.isEmpty()) {
        for (const QString& path : m_pending.keys())
            forget(path, Outcome::missing);
        Q_EMIT ended();
    }
    if (!now.isEmpty())
        Q_EMIT began();
}

} // namespace vellumry
