// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/OneShot.h"

#include <QCoroTask>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <chrono>
#include <memory>
#include <optional>
#include <vector>

namespace vellumry {

/// Tells the desktop's portals who we are (org.freedesktop.host.portal.Registry), once for each portal that begins, and
/// waits for nothing. A portal looks us up in /proc, where we are hidden but for as long as it takes to answer
/// (ProcessHardening.h), and remembers what it saw as long as both of us run; without it every request is refused. What
/// it is asked before it has heard our name, be it a setting, makes us nameless to it for good.
///
/// A portal that restarts sees us for another moment, now with secrets in memory: a process of the same user that could
/// use that moment gets the history's key from the keyring as well. Main thread.
class PortalIntroduction final : public QObject {
    Q_OBJECT
public:
    /// `bus` is `portalbus::connection()`, but in tests: nothing has asked a portal by it yet. A portal that does not
    /// answer within `limit` sees us no longer than that.
    PortalIntroduction(QDBusConnection bus, std::chrono::milliseconds limit);
    ~PortalIntroduction() override;

    /// For calls to `portal()` and for signals.
    [[nodiscard]] QDBusConnection& bus() { return m_bus; }
    /// The portal that has heard our name or takes none, by its connection's name: the portal after it gets nothing
    /// that was meant for it, and so hears our name first. Empty as long as there is none.
    [[nodiscard]] QString portal() const;
    /// To the portal that runs, if there is one; and from then on to each that follows it.
    void begin();
    /// Resumes when the portal has heard our name or will not; one is started for it. With the portal's answer: an
    /// error of older portals, which know no such method and name us by our cgroup if at all.
    [[nodiscard]] OneShot<QDBusMessage> made();

    /// The portal that runs knows programs by their desktop files, and has found none of ours. It is so for as long as
    /// both run.
    [[nodiscard]] bool isUnknown() const;

Q_SIGNALS:
    /// A portal may be asked from now on: `portal` names it.
    void introduced();

private Q_SLOTS:
    void hearOwner(const QString& name, const QString& before, const QString& now);

private:
    enum class Start : quint8 { wanted, unwanted };
    QCoro::Task<void> introduce(Start start);
    void settle(const QDBusMessage& answer, const QString& owner = {});

    QDBusConnection m_bus;
    const std::chrono::milliseconds m_limit;
    std::optional<QDBusMessage> m_answer; ///< of the portal that runs
    QString m_owner;                      ///< the name of its connection; Qt 6.8 does not tell it with the answer
    std::vector<OneShot<QDBusMessage>> m_waiting;
    bool m_isMaking = false;
    bool m_follows = false;
    bool m_isThere = false; ///< a portal has begun since we listen, and has not ended
    int m_tries = 0;        ///< how often the portal that runs has not found our desktop file
    int m_portal = 0;       ///< counts the portals that have ended
    std::shared_ptr<bool> m_life = std::make_shared<bool>(true);
};

} // namespace vellumry
