// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/portal/PortalLink.h"
#include "platform/desktop/Capability.h"
#include "platform/display/HotKeyRegistrar.h"

#include <QMap>
#include <QSet>
#include <QStringList>
#include <QTimer>
#include <functional>
#include <memory>

namespace vellumry {

/// Global keys by org.freedesktop.portal.GlobalShortcuts: the desktop asks the user once, and may give another key than
/// the one that was wished for. All keys are asked for together, after the turn of the event loop in which they were
/// grabbed. Main thread.
class PortalHotKeys final : public QObject, public HotKeyRegistrar {
    Q_OBJECT
public:
    struct Options {
        /// What the key types without modifiers in the layout in use.
        std::function<std::optional<QString>(KeyCode)> charactersFor;
        /// The keys that the user refused to give, as `refuse` was told: they are not asked for again.
        std::function<QStringList()> refused;
        std::function<void(const QStringList& names)> refuse;
        /// As long as the user may think about the question.
        std::chrono::milliseconds consent = std::chrono::minutes(10);
        /// How long after the end of a portal that gave keys the next one is started.
        std::chrono::milliseconds revival{1000};
        /// How long after a question that the portal could not put it is asked again; twice as long each further time.
        std::chrono::milliseconds retry{2000};
    };
    enum class Standing : quint8 {
        none,    ///< no keys are wanted
        asking,  ///< the desktop, or the user, has not answered yet
        given,   ///< all of them
        partly,  ///< some of them
        refused, ///< by the user
        failed   ///< the portal gave no keys
    };

    PortalHotKeys(std::shared_ptr<PortalLink> link, Options options);
    ~PortalHotKeys() override;

    void announce(quint32 id, const HotKeyPurpose& purpose) override;
    /// True for every key that has a name: whether it is given is known later (`capability`).
    [[nodiscard]] bool grab(quint32 id, KeyCode keyCode, Modifiers modifiers) override;
    void release(quint32 id) override;

    [[nodiscard]] Standing standing() const { return m_standing; }
    /// What became of the keys, for the report.
    [[nodiscard]] Capability capability() const;

private Q_SLOTS:
    void hearActivated(const QDBusMessage& message);

private:
    struct Key {
        QString name; ///< for the desktop; the same in every run as long as purpose and trigger are
        QString description;
        QString trigger;
        bool operator==(const Key&) const = default;
    };
    using Wish = QMap<QString, Key>; ///< by name

    [[nodiscard]] Wish wish() const;
    void askAgain();
    QCoro::Task<void> ask();
    QCoro::Task<void> bind(Wish wanted);
    QCoro::Task<QSet<QString>> withoutTaken(QSet<QString> given);
    void take(PortalLink::Outcome outcome, const QSet<QString>& given, const Wish& wanted);
    void retry();
    void settle(Standing standing, const QString& warning);
    void drop();

    std::shared_ptr<PortalLink> m_link;
    const Options m_options;
    QMap<quint32, HotKeyPurpose> m_purposes;
    QMap<quint32, Key> m_keys; ///< what is wanted, by id
    Wish m_asked;              ///< of the portal that runs now
    QString m_session;
    QTimer m_ask;
    bool m_isAsking = false;
    int m_portal = 0; ///< counts the portals that have ended: what one of them was asked is no other's
    int m_losses = 0; ///< how often the portal has ended before it gave keys
    int m_revivals = 0;
    int m_retries = 0;
    bool m_isRetrying = false; ///< the same wish is asked for once more
    Standing m_standing = Standing::none;
    /// Goes first: what waits for the link is resumed when the link ends, with this half gone.
    std::shared_ptr<bool> m_life = std::make_shared<bool>(true);
};

} // namespace vellumry
