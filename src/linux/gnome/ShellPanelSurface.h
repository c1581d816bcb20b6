// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/gnome/ShellLink.h"
#include "linux/wayland/windows/EarlyKeys.h"
#include "linux/wayland/windows/WaylandFocus.h"
#include "platform/display/PanelSurface.h"

#include <QPointer>
#include <QWindow>

namespace vellumry {

/// Panels as plain windows that our shell extension puts into their place above the others. Without it they are plain
/// windows, wherever the shell puts them. Needs Qt's Wayland platform. Main thread.
class ShellPanelSurface final : public QObject, public PanelSurface {
    Q_OBJECT
public:
    /// `focus` is shared with the paste target, which waits for the keyboard's return.
    ShellPanelSurface(std::shared_ptr<ShellLink> link, std::shared_ptr<WaylandFocus> focus);

    void adopt(QWindow* window) override;
    void present(QWindow* window, std::optional<QRect> frame) override;
    void dismiss(QWindow* window) override;
    void presentPassive(QWindow* window, QRect frame, bool clickThrough) override;
    void setInputArea(QWindow* window, const QRect& area) override;
    [[nodiscard]] bool canBlend() const override { return true; }
    /// Windows of Wayland have no opacity of their own, and moving one frame by frame costs a round trip each.
    [[nodiscard]] bool reducesMotion() const override { return true; }
    /// Waits for the shell.
    [[nodiscard]] std::optional<ScreenPlace> screenUnderPointer() const override;
    [[nodiscard]] std::optional<ScreenPlace> screenOf(const QRect& frame) const override;

private:
    void place(QWindow* window, const QRect& frame);
    void follow(QWindow* window);
    void watchKeyboard();

    std::shared_ptr<ShellLink> m_link;
    std::shared_ptr<WaylandFocus> m_focus;
    QPointer<QWindow> m_presented; ///< the panel that has or wants the keyboard
    bool m_hadKeyboard = false;
    EarlyKeys m_earlyKeys;
};

} // namespace vellumry
