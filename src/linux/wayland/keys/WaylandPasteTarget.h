// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/keys/KeyInjector.h"
#include "linux/wayland/keys/WaylandKeymap.h"
#include "linux/wayland/windows/WaylandFocus.h"
#include "platform/display/PasteTarget.h"

#include <QObject>
#include <QStringList>
#include <functional>

namespace vellumry {

/// Presses the paste chord of the window that has the keyboard, by what the compositor lets us press keys with.
class WaylandPasteTarget final : public QObject, public PasteTarget {
    Q_OBJECT
public:
    struct Options {
        /// Offers what is on the pasteboard as the primary selection too, which terminals paste. False when that
        /// failed.
        std::function<bool()> offerAsPrimary;
        /// The user's own list of terminals, read at each paste (see `TerminalApps`).
        std::function<QStringList()> terminalApps;
        /// How long the keyboard's return is waited for.
        std::chrono::milliseconds focusDeadline{400};
        /// Tells whether a password field of the process has the focus; unset where that cannot be told.
        std::function<QCoro::Task<bool>(qint64 process)> isPasswordField = nullptr;
    };

    /// `injector` may be null: then we may press no keys.
    WaylandPasteTarget(std::shared_ptr<WaylandFocus> focus, std::shared_ptr<WaylandKeymap> keymap,
                       std::unique_ptr<KeyInjector> injector, Options options);

    [[nodiscard]] bool isTrusted() const override { return m_injector != nullptr && m_injector->isReady(); }
    void requestTrust() override;
    [[nodiscard]] QCoro::Task<bool> isSecureInput() override;
    [[nodiscard]] QCoro::Task<bool> regainFocus() override;
    void pressPaste() override;

private:
    [[nodiscard]] bool isTerminalInFront() const;

    std::shared_ptr<WaylandFocus> m_focus;
    std::shared_ptr<WaylandKeymap> m_keymap;
    std::unique_ptr<KeyInjector> m_injector;
    Options m_options;
};

} // namespace vellumry
