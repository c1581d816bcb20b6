// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/portal/PortalHotKeys.h"
#include "linux/portal/PortalWorld.h"

namespace vellumry {

inline constexpr Modifiers controlSuper = Modifiers(Modifier::command) | Modifier::control;
inline const QString panelName = QStringLiteral("open-panel-CTRL+LOGO+v");
inline const QString stackName = QStringLiteral("toggle-stack-CTRL+LOGO+s");

/// Two shortcuts that a portal is asked for.
class PortalHotKeysTest : public PortalWorld {
protected:
    using Standing = PortalHotKeys::Standing;

    void start() {
        hotKeys.reset();
        PortalHotKeys::Options options;
        options.charactersFor = [](KeyCode key) -> std::optional<QString> {
            if (key == KeyCode::v)
                return QStringLiteral("v");
            if (key == KeyCode::s)
                return QStringLiteral("s");
            return std::nullopt;
        };
        options.refused = [this] { return refused; };
        options.refuse = [this](const QStringList& names) { refused = names; };
        options.retry = retry;
        hotKeys = std::make_unique<PortalHotKeys>(link, std::move(options));
        hotKeys->onPressed = [this](quint32 id) { pressed.push_back(id); };
    }
    bool grab(quint32 id, KeyCode key, const char* name) {
        hotKeys->announce(id, {QString::fromLatin1(name), QStringLiteral("What it does")});
        return hotKeys->grab(id, key, controlSuper);
    }
    void grabBoth() {
        start();
        EXPECT_TRUE(grab(1, KeyCode::v, "open-panel"));
        EXPECT_TRUE(grab(2, KeyCode::s, "toggle-stack"));
    }
    void untilStanding(Standing standing) {
        runUntil([this, standing] { return hotKeys->standing() == standing; });
    }
    /// Lets what is under way come to its end: the portal answers in order.
    void settle() { (void)awaited(link->openSession(QStringLiteral("org.freedesktop.portal.RemoteDesktop"))); }

    std::unique_ptr<PortalHotKeys> hotKeys;
    std::vector<quint32> pressed;
    QStringList refused;
    std::chrono::milliseconds retry{5};
};

} // namespace vellumry
