// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/keys/KeyInjector.h"
#include "linux/portal/PortalLink.h"
#include "platform/desktop/Capability.h"

#include <QObject>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>

namespace vellumry {

/// Presses keys by org.freedesktop.portal.RemoteDesktop. The user is asked once, on `requestPermission`; from then on a
/// token opens sessions without a question. A session is there from a paste on until shortly after it: desktops show
/// that one is there. Main thread.
class PortalKeyboard final : public QObject, public KeyInjector {
    Q_OBJECT
public:
    struct Options {
        /// What the portal gave to come back with. Each session takes a token and gives the next.
        std::function<QString()> token;
        /// Empty for none.
        std::function<void(const QString& token)> keepToken;
        /// False once it is known that the portal lets no program press keys.
        std::function<bool()> isThere = [] { return true; };
        /// How long a session stays after it was used.
        std::chrono::milliseconds rest{3000};
        /// How long a paste waits for a session.
        std::chrono::milliseconds patience{1500};
        /// As long as the user may think about the question.
        std::chrono::milliseconds consent = std::chrono::minutes(5);
    };

    PortalKeyboard(std::shared_ptr<PortalLink> link, Options options);
    ~PortalKeyboard() override;

    [[nodiscard]] bool isThere() const override { return m_options.isThere(); }
    /// True once the user has allowed it.
    [[nodiscard]] bool isReady() const override;
    void requestPermission() override;
    /// Opens a session, `Options::patience` at most. Where the permission has gone, the desktop asks the user again,
    /// and this paste goes without.
    [[nodiscard]] QCoro::Task<bool> prepare() override;
    /// Within a session only. Each key follows when the portal has taken the one before.
    void press(const std::vector<Modifier>& modifiers, quint32 evdevCode) override;

    /// Whether keys can be pressed, for the report.
    [[nodiscard]] Capability capability() const;

private:
    QCoro::Task<void> open();
    QCoro::Task<void> start(QString session);
    void take(const PortalLink::Answer& answer);
    void lose(const char* why);
    void forgetSession();
    void finish();
    void close();
    QCoro::Task<void> pressAll();

    struct Key {
        quint32 evdevCode = 0;
        bool isDown = false;
    };

    std::shared_ptr<PortalLink> m_link;
    const Options m_options;
    QString m_session;
    bool m_isStarted = false;
    bool m_isOpening = false;
    bool m_wasRefused = false;
    std::deque<Key> m_keys; ///< still to be pressed in this session
    bool m_isPressing = false;
    QTimer m_rest;
    /// Goes first: what waits for the link is resumed when the link ends, with this half gone.
    std::shared_ptr<bool> m_life = std::make_shared<bool>(true);

Q_SIGNALS:
    /// A session was opened, or will not be.
    void settled();
};

} // namespace vellumry
