// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/portal/PortalIntroduction.h"

#include "foundation/Logging.h"
#include "linux/portal/PortalBus.h"
#include "linux/portal/PortalNames.h"
#include "linux/process/ProcessHardening.h"

#include <QTimer>
#include <QVariantMap>
#include <utility>

namespace vellumry {

namespace {

constexpr int startMilliseconds = 20'000;

QDBusMessage toBus(const QString& method, const QVariantList& arguments) {
    QDBusMessage call =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                                       QStringLiteral("org.freedesktop.DBus"), method);
    call.setArguments(arguments);
    return call;
}

QDBusMessage starting() {
    return toBus(QStringLiteral("StartServiceByName"), {portal::service, 0U});
}

/// The name of the portal's connection; nothing is started by that.
QDBusMessage askingForOwner() {
    return toBus(QStringLiteral("GetNameOwner"), {portal::service});
}

QDBusMessage registeringWith(const QString& owner) {
    QDBusMessage call =
        QDBusMessage::createMethodCall(owner, portal::path, portal::registry, QStringLiteral("Register"));
    call.setArguments({portalbus::applicationID, QVariantMap()});
    return call;
}

QDBusMessage tooLate() {
    return QDBusMessage::createError(QDBusError::NoReply, QStringLiteral("in time"));
}

/// A portal sees a desktop file some time after it was installed. It may be told the name again until it is asked for
/// something else.
constexpr int mostTries = 4;
constexpr std::chrono::milliseconds nextTry{500};

/// Portals without this method say so by an error of the bus's.
bool isUnknownName(const QDBusMessage& answer) {
    return answer.errorName().startsWith(u"org.freedesktop.portal.Error.");
}

bool isNobodyThere(const QDBusMessage& answer) {
    return answer.errorName() == u"org.freedesktop.DBus.Error.ServiceUnknown" ||
           answer.errorName() == u"org.freedesktop.DBus.Error.NameHasNoOwner";
}

} // namespace

PortalIntroduction::PortalIntroduction(QDBusConnection bus, std::chrono::milliseconds limit)
    : m_bus(std::move(bus))
    , m_limit(limit) {
    m_bus.connect(QString(), QString(), QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameOwnerChanged"),
                  QStringList{portal::service}, QString(), this, SLOT(hearOwner(QString, QString, QString)));
}

PortalIntroduction::~PortalIntroduction() {
    m_life.reset();
    settle(QDBusMessage());
}

void PortalIntroduction::begin() {
    m_follows = true;
    if (!m_answer && !m_isMaking)
        introduce(Start::unwanted);
}

OneShot<QDBusMessage> PortalIntroduction::made() {
    const OneShot<QDBusMessage> made;
    if (m_answer) {
        made.deliver(*m_answer);
        return made;
    }
    m_waiting.push_back(made);
    if (!m_isMaking)
        introduce(Start::wanted);
    return made;
}

QCoro::Task<void> PortalIntroduction::introduce(Start start) {
    const std::weak_ptr<bool> life = m_life;
    const int portal = m_portal;
    m_isMaking = true;
    if (start == Start::wanted) {
        const auto begun = portalbus::answerTo(m_bus.asyncCall(starting(), startMilliseconds));
        // Whether one is there then, its own answer tells.
        co_await begun;
        if (life.expired() || portal != m_portal)
            co_return;
    }
    auto visible = std::make_unique<VisibleProcess>();
    const auto found = portalbus::answerTo(m_bus.asyncCall(askingForOwner()));
    found.deliverAfter(m_limit, tooLate());
    QDBusMessage answer = co_await found;
    if (life.expired() || portal != m_portal)
        co_return;
    QString owner;
    if (answer.type() == QDBusMessage::ReplyMessage) {
        owner = answer.arguments().value(0).toString();
        const auto heard = portalbus::answerTo(m_bus.asyncCall(registeringWith(owner)));
        heard.deliverAfter(m_limit, tooLate());
        answer = co_await heard;
    }
    visible.reset();
    if (life.expired() || portal != m_portal)
        co_return;
    if (answer.type() == QDBusMessage::ErrorMessage && start == Start::wanted)
        qCInfo(logging::wayland).noquote() << "not registered:" << answer.errorName() << answer.errorMessage();
    if (isUnknownName(answer) && ++m_tries < mostTries) {
        QTimer::singleShot(nextTry, this, [this, portal] {
            if (portal == m_portal)
                introduce(Start::unwanted);
        });
        co_return;
    }
    const bool wasMissed = start == Start::unwanted && isNobodyThere(answer);
    if (wasMissed && !m_waiting.empty())
        introduce(Start::wanted);
    else if (wasMissed && m_isThere)
        introduce(Start::unwanted); // it began behind the question
    else
        settle(answer, owner);
}

/// An answer that says that no portal is there is not kept: the next one to ask has it started.
void PortalIntroduction::settle(const QDBusMessage& answer, const QString& owner) {
    const std::weak_ptr<bool> life = m_life;
    m_isMaking = false;
    m_owner = owner;
    if (!isNobodyThere(answer))
        m_answer = answer;
    for (const OneShot<QDBusMessage>& waiting : std::exchange(m_waiting, {}))
        waiting.deliver(answer);
    if (!life.expired() && m_answer)
        Q_EMIT introduced();
}

QString PortalIntroduction::portal() const {
    return m_answer ? m_owner : QString();
}

bool PortalIntroduction::isUnknown() const {
    return m_answer && isUnknownName(*m_answer);
}

void PortalIntroduction::hearOwner(const QString& name, const QString& before, const QString& now) {
    if (name != portal::service)
        return;
    m_isThere = !now.isEmpty();
    if (!before.isEmpty()) {
        ++m_portal;
        m_tries = 0;
        m_answer.reset();
        settle(QDBusMessage::createError(QDBusError::ServiceUnknown, QString()));
    }
    if (!now.isEmpty() && m_follows && !m_isMaking)
        introduce(Start::unwanted);
}

} // namespace vellumry
