// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/keys/KeyInjector.h"
#include "linux/x11/windows/X11Focus.h"
#include "platform/display/PasteTarget.h"

#include <QObject>
#include <QStringList>

namespace vellumry {

/// Presses the paste chord of the window that has the keyboard, through the XTEST extension; in a session of Wayland by
/// what reaches its other windows too.
class X11PasteTarget : public QObject, public PasteTarget {
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
        /// Called before the paste chord is pressed.
        std::function<void()> willPress = [] {};
        /// Tells whether a password field of the process has the focus; unset where that cannot be known.
        std::function<QCoro::Task<bool>(qint64 process)> isPasswordField = nullptr;
        /// In a session of Wayland: presses keys in its other windows too, once that is allowed. Null where the X
        /// server's own way reaches all windows, or nothing else does.
        std::shared_ptr<KeyInjector> everywhere = nullptr;
    };

    X11PasteTarget(std::shared_ptr<XlibConnection> connection, std::shared_ptr<X11Focus> focus, Options options);

    [[nodiscard]] bool isTrusted() const override;
    /// X11 itself has no such permission to ask for.
    void requestTrust() override;
    [[nodiscard]] QCoro::Task<bool> isSecureInput() override;
    [[nodiscard]] QCoro::Task<bool> regainFocus() override;
    [[nodiscard]] QCoro::Task<void> keyboardFree() override;
    void pressPaste() override;
    /// The program in front takes no notice of a paste key before it has looked at what is new on the clipboard.
    [[nodiscard]] bool looksFirst() const;

private:
    [[nodiscard]] bool isKeyboardTaken() const;
    [[nodiscard]] XWindow windowInFront() const;
    [[nodiscard]] bool isTerminalInFront() const;
    [[nodiscard]] QStringList namesInFront() const;
    void releaseHeldKeys();
    void pressChord(const std::vector<quint32>& keycodes);
    /// What keys are pressed by in place of XTEST; null where that is the way.
    [[nodiscard]] KeyInjector* injector() const;

    std::shared_ptr<XlibConnection> m_connection;
    std::shared_ptr<X11Focus> m_focus;
    Options m_options;
};

} // namespace vellumry
