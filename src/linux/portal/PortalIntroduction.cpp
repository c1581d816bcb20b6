// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/portal/PortalIntroduction.h"

#include "foundation/Logging.h"
#include "linux/portal/PortalBus.h"
#include "linux/portal/PortalNames.h"
#include "linux/process/ProcessHardening.h"

#include <QVariantMap>
#include <utility>

namespace vellumry {

namespace {

constexpr int startMilliseconds = 20'000;

QDBusMessage starting() {
    QDBusMessage call =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                                       QStringLiteral("org.freedesktop.DBus"), QStringLiteral("StartServiceByName"));
    call.setArguments({portal::service, 0U});
    return call;
}

QDBusMessage registering() {
    QDBusMessage call =
        QDBusMessage::createMethodCall(portal::service, portal::path, portal::registry, QStringLiteral("Register"));
    // One that is started by this would look for us when we are hidden again.
    call.setAutoStartService(false);
    call.setArguments({portalbus::applicationID, QVariantMap()});
    return call;
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
    const auto heard = portalbus::answerTo(m_bus.asyncCall(registering()));
    heard.deliverAfter(m_limit, QDBusMessage::createError(QDBusError::NoReply, QStringLiteral("in time")));
    const QDBusMessage answer = co_await heard;
    visible.reset();
    if (life.expired() || portal != m_portal)
        co_return;
    if (answer.type() == QDBusMessage::ErrorMessage && start == Start::wanted)
        qCInfo(logging::wayland).noquote() << "not registered:" << answer.errorName();
    const bool isWaitedFor = start == Start::unwanted && isNobodyThere(answer) && !m_waiting.empty();
    if (isWaitedFor)
        introduce(Start::wanted);
    else
        settle(answer);
}

/// An answer that says that no portal is there is not kept: the next one to ask has it started.
void PortalIntroduction::settle(const QDBusMessage& answer) {
    m_isMaking = false;
    if (!isNobodyThere(answer))
        m_answer = answer;
    for (const OneShot<QDBusMessage>& waiting : std::exchange(m_waiting, {}))
        waiting.deliver(answer);
}

void PortalIntroduction::hearOwner(const QString& name, const QString& before, const QString& now) {
    if (name != portal::service)
        return;
    if (!before.isEmpty()) {
        ++m_portal;
        m_answer.reset();
        settle(QDBusMessage::createError(QDBusError::ServiceUnknown, QString()));
    }
    if (!now.isEmpty() && m_follows && !m_isMaking)
        introduce(Start::unwanted);
}

} // namespace vellumry
