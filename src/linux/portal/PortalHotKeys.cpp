// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/portal/PortalHotKeys.h"

#include "foundation/Logging.h"
#include "linux/portal/PortalBus.h"
#include "linux/portal/PortalNames.h"
#include "linux/portal/PortalShortcut.h"
#include "linux/portal/PortalTrigger.h"

#include <QDBusArgument>
#include <QDBusObjectPath>

namespace vellumry {

namespace {

constexpr int mostLosses = 3;
constexpr int mostRevivals = 10;
constexpr int mostRetries = 4;

} // namespace

PortalHotKeys::PortalHotKeys(std::shared_ptr<PortalLink> link, Options options)
    : m_link(std::move(link))
    , m_options(std::move(options)) {
    registerPortalShortcut();
    m_link->bus().connect(QString(), portal::path, portal::globalShortcuts, QStringLiteral("Activated"), this,
                          SLOT(hearActivated(QDBusMessage)));
    m_ask.setSingleShot(true);
    connect(&m_ask, &QTimer::timeout, this, &PortalHotKeys::askAgain);
    connect(m_link.get(), &PortalLink::ended, this, &PortalHotKeys::drop);
    connect(m_link.get(), &PortalLink::began, this, [this] {
        // One that dies of our question is left in peace.
        if (m_losses < mostLosses)
            m_ask.start(0);
    });
    connect(m_link.get(), &PortalLink::sessionClosed, this, [this](const QString& session) {
        if (session != m_session)
            return;
        // It is not asked for again at once: the desktop had its reason.
        m_session.clear();
        settle(Standing::failed, QStringLiteral("the desktop has taken the shortcuts back"));
    });
}

PortalHotKeys::~PortalHotKeys() {
    m_link->closeSession(m_session);
}

void PortalHotKeys::announce(quint32 id, const HotKeyPurpose& purpose) {
    m_purposes.insert(id, purpose);
}

bool PortalHotKeys::grab(quint32 id, KeyCode keyCode, Modifiers modifiers) {
    const std::optional<QString> characters = m_options.charactersFor(keyCode);
    const QString trigger =
        characters && characters->size() == 1 ? portalTrigger(characters->front(), modifiers) : QString();
    const HotKeyPurpose purpose = m_purposes.take(id);
    if (trigger.isEmpty())
        return false;
    // Another trigger is another shortcut: the desktop keeps what it once gave under a name, whatever is wished for.
    const QString name = purpose.name.isEmpty() ? trigger : purpose.name + u'-' + trigger;
    m_keys.insert(id, Key{name, purpose.description.isEmpty() ? trigger : purpose.description, trigger});
    m_ask.start(0);
    return true;
}

void PortalHotKeys::release(quint32 id) {
    m_purposes.remove(id);
    if (m_keys.remove(id) > 0)
        m_ask.start(0);
}

PortalHotKeys::Wish PortalHotKeys::wish() const {
    Wish wish;
    for (const Key& key : m_keys)
        wish.insert(key.name, key);
    return wish;
}

void PortalHotKeys::drop() {
    ++m_portal;
    m_isAsking = false;
    m_link->abandonSession(std::exchange(m_session, QString()));
    m_asked.clear();
    if (m_keys.isEmpty())
        return;
    // Nothing else may start it again, and until then the keys are dead. One that dies over and over is let go.
    if (m_standing != Standing::given)
        ++m_losses;
    else if (m_revivals++ < mostRevivals)
        m_ask.start(m_options.revival);
    m_standing = Standing::failed;
}

void PortalHotKeys::askAgain() {
    if (m_isAsking)
        return;
    if (m_isRetrying)
        m_asked.clear();
    ask();
}

QCoro::Task<void> PortalHotKeys::ask() {
    const std::weak_ptr<bool> life = m_life;
    const int asked = m_portal;
    m_isAsking = true;
    // What is wanted may change meanwhile.
    while (!life.expired() && asked == m_portal && wish() != m_asked) {
        m_asked = wish();
        m_isRetrying = false;
        // A session is bound once.
        m_link->closeSession(std::exchange(m_session, QString()));
        auto binding = bind(m_asked);
        co_await binding;
    }
    if (!life.expired() && asked == m_portal)
        m_isAsking = false;
}

QCoro::Task<void> PortalHotKeys::bind(Wish wanted) {
    if (wanted.isEmpty()) {
        m_standing = Standing::none;
        co_return;
    }
    if (m_options.refused() == wanted.keys()) {
        m_standing = Standing::refused;
        co_return;
    }
    m_standing = Standing::asking;
    const std::weak_ptr<bool> life = m_life;
    const int asked = m_portal;
    auto opening = m_link->openSession(portal::globalShortcuts);
    const QString session = co_await opening;
    if (life.expired() || asked != m_portal)
        co_return;
    if (session.isEmpty()) {
        take(PortalLink::Outcome::missing, {}, wanted);
        co_return;
    }
    m_session = session;
    QList<PortalShortcut> shortcuts;
    for (const Key& key : wanted)
        shortcuts.append(PortalShortcut{
            key.name,
            {{QStringLiteral("description"), key.description}, {QStringLiteral("preferred_trigger"), key.trigger}}});
    PortalLink::Call call{portal::globalShortcuts, QStringLiteral("BindShortcuts")};
    call.arguments = {QVariant::fromValue(QDBusObjectPath(session)), QVariant::fromValue(shortcuts), QString()};
    auto asking = m_link->request(std::move(call), m_options.consent);
    const PortalLink::Answer answer = co_await asking;
    if (life.expired() || asked != m_portal)
        co_return;
    auto looking = withoutTaken(givenShortcuts(answer.results));
    const QSet<QString> given = co_await looking;
    if (!life.expired() && asked == m_portal)
        take(answer.outcome, m_session.isEmpty() ? QSet<QString>() : given, wanted);
}

/// Plasma 6.3 reports as given what another program holds; only the service behind its portal tells the truth. It is
/// not asked where it is not there, or not to be seen by a confined program.
QCoro::Task<QSet<QString>> PortalHotKeys::withoutTaken(QSet<QString> given) {
    const std::weak_ptr<bool> life = m_life;
    QSet<QString> ours = given;
    for (const QString& name : given) {
        QDBusMessage asking =
            QDBusMessage::createMethodCall(QStringLiteral("org.kde.kglobalaccel"), QStringLiteral("/kglobalaccel"),
                                           QStringLiteral("org.kde.KGlobalAccel"), QStringLiteral("shortcutKeys"));
        asking.setAutoStartService(false);
        asking.setArguments({QStringList{portalbus::applicationID, name, QString(), QString()}});
        const auto calling = m_link->call(asking);
        const QDBusMessage reply = co_await calling;
        if (life.expired() || reply.type() != QDBusMessage::ReplyMessage)
            break;
        if (reply.signature() != QLatin1String("a(ai)"))
            continue;
        bool hasKey = false;
        const auto list = reply.arguments().constFirst().value<QDBusArgument>();
        list.beginArray();
        while (!list.atEnd()) {
            QList<int> keys;
            list.beginStructure();
            list >> keys;
            list.endStructure();
            hasKey |= keys.value(0) != 0;
        }
        list.endArray();
        if (!hasKey)
            ours.remove(name);
    }
    co_return ours;
}

/// What the portal lists counts, not its response: GNOME 48 grants with a failure.
void PortalHotKeys::take(PortalLink::Outcome outcome, const QSet<QString>& given, const Wish& wanted) {
    qsizetype count = 0;
    for (const QString& name : wanted.keys())
        count += given.contains(name) ? 1 : 0;
    if (count == wanted.size()) {
        m_losses = 0;
        m_retries = 0;
        settle(Standing::given, QString());
    } else if (count > 0) {
        settle(Standing::partly, QStringLiteral("the desktop gave %1 of %2 shortcuts").arg(count).arg(wanted.size()));
    } else if (outcome != PortalLink::Outcome::unanswered && outcome != PortalLink::Outcome::missing) {
        // GNOME 48 answers its Cancel with a failure. Asking at every start would be worse than asking once too few.
        m_options.refuse(wanted.keys());
        settle(Standing::refused, QStringLiteral("the shortcuts were refused"));
    } else if (outcome == PortalLink::Outcome::unanswered) {
        settle(Standing::failed, QStringLiteral("the desktop did not answer about shortcuts"));
    } else {
        // Told once: each retry would say the same.
        const QString warning = m_link->isUnknown() ? QStringLiteral("the desktop finds no desktop file of ours")
                                                    : QStringLiteral("the desktop gave no shortcuts");
        settle(Standing::failed, m_retries == 0 ? warning : QString());
        retry();
    }
}

/// A portal may not be ready for a program that starts right behind the desktop, as at a login.
void PortalHotKeys::retry() {
    if (m_retries >= mostRetries)
        return;
    m_isRetrying = true;
    m_ask.start(m_options.retry * (1 << m_retries++));
}

void PortalHotKeys::settle(Standing standing, const QString& warning) {
    m_standing = standing;
    if (!warning.isEmpty())
        qCWarning(logging::wayland).noquote() << warning << "(global shortcuts portal)";
}

Capability PortalHotKeys::capability() const {
    const QString name = QStringLiteral("hot keys");
    const QString settings = QStringLiteral(
        ": give them in the desktop's settings, under the program's name, or bind a key there to vellumry --action "
        "open-panel");
    const auto lacking = [&](const char* what) {
        return Capability::missing(name, QLatin1String(what) + settings).serving({Feature::shortcuts});
    };
    switch (m_standing) {
    case Standing::none:
    case Standing::given:
        return Capability::found(name, QStringLiteral("global shortcuts portal")).serving({Feature::shortcuts});
    case Standing::asking:
        return lacking("the desktop has not given them yet, and may have a question open");
    case Standing::partly:
        return lacking("the desktop gave only some of them");
    case Standing::refused:
        return lacking("refused; another shortcut in Settings is asked for again");
    case Standing::failed:
        break;
    }
    if (m_link->isUnknown())
        return Capability::missing(
                   name,
                   QStringLiteral("the desktop's portal gives keys to programs with a desktop file: put %1.desktop "
                                  "into ~/.local/share/applications and start Vellumry again, or bind a key to "
                                  "vellumry --action open-panel")
                       .arg(portalbus::applicationID))
            .serving({Feature::shortcuts});
    return lacking("the desktop's portal gave none");
}

void PortalHotKeys::hearActivated(const QDBusMessage& message) {
    const QVariantList arguments = message.arguments();
    if (m_session.isEmpty() || !message.signature().startsWith(QLatin1String("os")) ||
        arguments[0].value<QDBusObjectPath>().path() != m_session)
        return;
    const QString name = arguments[1].toString();
    for (auto key = m_keys.cbegin(); key != m_keys.cend(); ++key) {
        if (key->name != name)
            continue;
        if (const auto told = onPressed)
            told(key.key());
        return;
    }
}

} // namespace vellumry
