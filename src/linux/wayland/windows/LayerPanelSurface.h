// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/wayland/windows/EarlyKeys.h"
#include "linux/wayland/windows/WaylandFocus.h"
#include "platform/display/PanelSurface.h"

#include <QObject>
#include <QPointer>
#include <QWindow>

class QScreen;

namespace vellumry {

/// Panels as surfaces of the layer shell (wlr-layer-shell-unstable-v1), above all windows. The panel takes the whole
/// keyboard while it is open: some compositors give a layer that asks for less none at all. Needs Qt's Wayland
/// platform. Main thread.
///
/// A compositor does not tell where the pointer is, so the display under it is that of the pointer's last visit to one
/// of our windows, else the primary one.
class LayerPanelSurface final : public QObject, public PanelSurface {
    Q_OBJECT
public:
    /// `focus` is shared with the paste target, which waits for the keyboard's return.
    explicit LayerPanelSurface(std::shared_ptr<WaylandFocus> focus);

    void adopt(QWindow* window) override;
    void present(QWindow* window, std::optional<QRect> frame) override;
    void dismiss(QWindow* window) override;
    void presentPassive(QWindow* window, QRect frame, bool clickThrough) override;
    void setInputArea(QWindow* window, const QRect& area) override;
    [[nodiscard]] bool canBlend() const override { return true; }
    /// Windows of Wayland have no opacity of their own, and moving one frame by frame costs a round trip each.
    [[nodiscard]] bool reducesMotion() const override { return true; }
    [[nodiscard]] std::optional<ScreenPlace> screenUnderPointer() const override;
    [[nodiscard]] std::optional<ScreenPlace> screenOf(const QRect& frame) const override;

private:
    void place(QWindow* window, const QRect& frame);
    void follow(QWindow* window);
    void watchKeyboard();

    std::shared_ptr<WaylandFocus> m_focus;
    QPointer<QWindow> m_presented; ///< the panel that has or wants the keyboard
    bool m_hadKeyboard = false;
    EarlyKeys m_earlyKeys;
};

} // namespace vellumry
