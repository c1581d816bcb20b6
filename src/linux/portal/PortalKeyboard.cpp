// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/portal/PortalKeyboard.h"

#include "foundation/Logging.h"
#include "linux/portal/PortalNames.h"

#include <QDBusObjectPath>
#include <utility>

namespace vellumry {

namespace {

constexpr uint keyboard = 1;
constexpr uint untilRevoked = 2;

} // namespace

PortalKeyboard::PortalKeyboard(std::shared_ptr<PortalLink> link, Options options)
    : m_link(std::move(link))
    , m_options(std::move(options)) {
    m_rest.setSingleShot(true);
    m_rest.setInterval(m_options.rest);
    connect(&m_rest, &QTimer::timeout, this, &PortalKeyboard::close);
    connect(m_link.get(), &PortalLink::ended, this, [this] {
        m_link->abandonSession(m_session);
        forgetSession();
    });
    // By the lock screen, by the user from the desktop's panel, or because the permission was taken back.
    connect(m_link.get(), &PortalLink::sessionClosed, this, [this](const QString& session) {
        if (session == m_session)
            forgetSession();
    });
}

PortalKeyboard::~PortalKeyboard() {
    m_link->closeSession(m_session);
}

bool PortalKeyboard::isReady() const {
    return isThere() && (m_isStarted || !m_options.token().isEmpty());
}

void PortalKeyboard::requestPermission() {
    m_wasRefused = false;
    if (!m_isStarted && !m_isOpening)
        open();
}

QCoro::Task<bool> PortalKeyboard::prepare() {
    const std::weak_ptr<bool> life = m_life;
    if (!m_isStarted && !m_isOpening)
        open();
    if (m_isOpening) {
        const OneShot<void> done;
        done.deliverAfter(m_options.patience);
        const auto watching = connect(this, &PortalKeyboard::settled, this, [done] { done.deliver(); });
        co_await done;
        if (life.expired())
            co_return false;
        disconnect(watching);
    }
    m_rest.start();
    co_return m_isStarted;
}

QCoro::Task<void> PortalKeyboard::open() {
    const std::weak_ptr<bool> life = m_life;
    m_isOpening = true;
    auto opening = m_link->openSession(portal::remoteDesktop);
    const QString session = co_await opening;
    if (life.expired())
        co_return;
    if (session.isEmpty()) {
        lose("the desktop's portal opens no session");
    } else {
        m_session = session;
        auto starting = start(session);
        co_await starting;
    }
    if (!life.expired())
        finish();
}

QCoro::Task<void> PortalKeyboard::start(QString session) {
    const std::weak_ptr<bool> life = m_life;
    const QVariant path = QVariant::fromValue(QDBusObjectPath(session));
    PortalLink::Call devices{portal::remoteDesktop, QStringLiteral("SelectDevices"), {path}};
    devices.options = {{QStringLiteral("types"), keyboard}, {QStringLiteral("persist_mode"), untilRevoked}};
    if (const QString token = m_options.token(); !token.isEmpty())
        devices.options[QStringLiteral("restore_token")] = token;
    auto selecting = m_link->request(std::move(devices));
    const PortalLink::Answer selected = co_await selecting;
    if (life.expired())
        co_return;
    if (selected.outcome != PortalLink::Outcome::given) {
        lose("the desktop lets no keys be pressed");
        co_return;
    }
    PortalLink::Call begin{portal::remoteDesktop, QStringLiteral("Start"), {path, QString()}};
    auto asking = m_link->request(std::move(begin), m_options.consent);
    const PortalLink::Answer answer = co_await asking;
    if (!life.expired())
        take(answer);
}

void PortalKeyboard::take(const PortalLink::Answer& answer) {
    using enum PortalLink::Outcome;
    const bool hasKeyboard = (answer.results.value(QStringLiteral("devices")).toUInt() & keyboard) != 0;
    if (answer.outcome == given && hasKeyboard && !m_session.isEmpty()) {
        // The one that was used is spent.
        m_options.keepToken(answer.results.value(QStringLiteral("restore_token")).toString());
        m_wasRefused = false;
        m_isStarted = true;
        return;
    }
    if (answer.outcome == refused || answer.outcome == given) {
        m_wasRefused = true;
        m_options.keepToken(QString());
        lose("it was not allowed");
        return;
    }
    // The token may still be good: a locked screen lets no session begin.
    lose(answer.outcome == unanswered ? "the question was not answered" : "the desktop began no session");
}

void PortalKeyboard::lose(const char* why) {
    qCWarning(logging::wayland) << "no key can be pressed (remote desktop portal):" << why;
    close();
}

void PortalKeyboard::finish() {
    m_isOpening = false;
    if (m_isStarted)
        m_rest.start();
    Q_EMIT settled();
}

void PortalKeyboard::close() {
    m_link->closeSession(m_session);
    forgetSession();
}

void PortalKeyboard::forgetSession() {
    m_session.clear();
    m_isStarted = false;
    m_keys.clear();
}

void PortalKeyboard::press(const std::vector<Modifier>& modifiers, quint32 evdevCode) {
    if (!m_isStarted)
        return;
    for (const Modifier& modifier : modifiers)
        m_keys.push_back({modifier.evdevCode, true});
    m_keys.push_back({evdevCode, true});
    m_keys.push_back({evdevCode, false});
    for (auto modifier = modifiers.rbegin(); modifier != modifiers.rend(); ++modifier)
        m_keys.push_back({modifier->evdevCode, false});
    m_rest.start();
    if (!m_isPressing)
        pressAll();
}

/// xdg-desktop-portal handles each call on a thread of a pool, so that calls overtake each other on a busy machine: "v"
/// would be typed without its Ctrl. It answers when it has handed the key on, and from there on keys stay in order.
QCoro::Task<void> PortalKeyboard::pressAll() {
    const std::weak_ptr<bool> life = m_life;
    m_isPressing = true;
    while (!m_keys.empty()) {
        const Key key = m_keys.front();
        m_keys.pop_front();
        const QString session = m_session;
        const QVariant path = QVariant::fromValue(QDBusObjectPath(session));
        const auto pressing =
            m_link->call(m_link->messageFor(portal::remoteDesktop, QStringLiteral("NotifyKeyboardKeycode"),
                                            {path, QVariantMap(), int(key.evdevCode), key.isDown ? 1U : 0U}));
        const QDBusMessage reply = co_await pressing;
        if (life.expired())
            co_return;
        // With the session goes its keyboard, and what was held down on it.
        if (reply.type() == QDBusMessage::ErrorMessage && m_isStarted && session == m_session)
            lose("the permission was taken back");
    }
    m_isPressing = false;
}

Capability PortalKeyboard::capability() const {
    const QString name = QStringLiteral("paste key");
    if (isReady())
        return Capability::found(name, QStringLiteral("remote desktop portal, allowed")).serving({Feature::paste});
    return Capability::missing(
               name, m_wasRefused
                         ? QStringLiteral("the desktop was told not to allow it: clips are copied, the "
                                          "paste key is yours to press; the panel has a button that asks again")
                         : QStringLiteral("the desktop asks once for your permission: choose Allow "
                                          "Vellumry to paste for you at the foot of the panel"))
        .serving({Feature::paste});
}

} // namespace vellumry
