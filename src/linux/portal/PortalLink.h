// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/OneShot.h"
#include "linux/portal/PortalIntroduction.h"
#include "linux/portal/PortalSurvey.h"

#include <QCoroTask>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QHash>
#include <QObject>
#include <QVariantMap>
#include <chrono>
#include <memory>

namespace vellumry {

/// The conversation with the desktop's portals about requests and sessions (org.freedesktop.portal.Request, Session).
/// The portal is started by its first request, and may end and come back at any time. Main thread.
class PortalLink final : public QObject {
    Q_OBJECT
public:
    enum class Outcome : quint8 {
        given,      ///< the portal's response 0
        refused,    ///< 1: the user said no
        failed,     ///< 2 and above: the portal's own reasons, at times none (see `Answer`)
        unanswered, ///< the time was up
        missing     ///< no portal, no such method, or it ended meanwhile
    };
    /// GNOME 48 answers a request that it granted with `failed`: what counts are the results.
    struct Answer {
        Outcome outcome = Outcome::missing;
        QVariantMap results{};
    };
    struct Call {
        QString interface;
        QString method;
        QVariantList arguments{}; ///< those before the options
        QVariantMap options{};
    };
    struct Options {
        /// For what needs no word of the user.
        std::chrono::milliseconds patience{20'000};
    };

    /// Each portal is told our name before anything else.
    PortalLink(std::shared_ptr<PortalIntroduction> introduction, Options options);
    ~PortalLink() override;

    [[nodiscard]] QDBusConnection& bus() { return m_bus; }
    /// The portal finds no desktop file of ours, and may refuse everything for that.
    [[nodiscard]] bool isUnknown() const { return m_introduction->isUnknown(); }
    /// Which portals of use to us there are. Starts the portal, as every request does.
    [[nodiscard]] QCoro::Task<PortalSurvey> survey();
    /// Makes a request and waits for the portal's response, `limit` at most, then takes the request back.
    [[nodiscard]] QCoro::Task<Answer> request(Call call, std::chrono::milliseconds limit);
    /// Makes a request that asks the user nothing.
    [[nodiscard]] QCoro::Task<Answer> request(Call call) { return request(std::move(call), m_options.patience); }
    /// The path of a new session of `interface`; empty when there is none.
    [[nodiscard]] QCoro::Task<QString> openSession(QString interface);
    void closeSession(const QString& session);
    /// Ends what is left of a session whose portal has ended.
    void abandonSession(const QString& session);
    /// Calls a method that answers at once. An error message when it does not.
    [[nodiscard]] OneShot<QDBusMessage> call(QDBusMessage message);
    /// A call to the portal that knows us, which a later one does not get.
    [[nodiscard]] QDBusMessage messageFor(const QString& interface, const QString& method,
                                          const QVariantList& arguments) const;

Q_SIGNALS:
    /// The portal has ended a session of ours.
    void sessionClosed(const QString& session);
    /// The portal has ended, and all sessions with it.
    void ended();
    /// A portal is there (again).
    void began();

private Q_SLOTS:
    void hearResponse(const QDBusMessage& message);
    void hearClosed(const QDBusMessage& message);
    void hearOwner(const QString& name, const QString& before, const QString& now);

private:
    void forget(const QString& path, Outcome outcome);
    /// Ends the request or session at `path`.
    void close(const QString& path, const QString& interface);

    const std::shared_ptr<PortalIntroduction> m_introduction;
    QDBusConnection m_bus;
    const Options m_options;
    QHash<QString, OneShot<Answer>> m_pending; ///< by the request's path
};

} // namespace vellumry
