// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/windows/WindowManagerFence.h"
#include "linux/x11/windows/X11Focus.h"
#include "linux/x11/windows/X11Screens.h"
#include "platform/display/PanelSurface.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QWindow>

namespace vellumry {

/// Panels as windows that the window manager leaves alone. It neither sees them activated nor deactivates anybody for
/// them; the keyboard is taken and given back by ourselves. One panel at a time has the keyboard. Needs Qt's own
/// windows on the same display.
class X11PanelSurface : public QObject, public PanelSurface {
    Q_OBJECT
public:
    /// `focus` is shared with the paste target, which waits for the keyboard's return. With a `fence` a panel takes the
    /// keyboard behind it.
    X11PanelSurface(std::shared_ptr<XlibConnection> connection, std::shared_ptr<X11Focus> focus,
                    std::unique_ptr<WindowManagerFence> fence = nullptr);

    void adopt(QWindow* window) override;
    void present(QWindow* window, std::optional<QRect> frame) override;
    void dismiss(QWindow* window) override;
    void presentPassive(QWindow* window, QRect frame, bool clickThrough) override;
    void setInputArea(QWindow* window, const QRect& area) override;
    [[nodiscard]] bool canBlend() const override { return m_canBlend; }
    [[nodiscard]] bool reducesMotion() const override;
    [[nodiscard]] std::optional<ScreenPlace> screenUnderPointer() const override { return m_screens.underPointer(); }
    [[nodiscard]] std::optional<ScreenPlace> screenOf(const QRect& frame) const override { return m_screens.of(frame); }

private:
    void setHints(XWindow window);
    void shapeInput(const QWindow* window, const std::optional<QRect>& area);
    [[nodiscard]] bool isOver(const QWindow* window) const;
    [[nodiscard]] bool isOverPassiveWindow() const;
    void followCompositor();
    void listenForClicks(bool isListening);
    void takeKeyboard();
    void handleEvent(XEvent* event);
    void handleClick(int button, unsigned long time);
    void loseFocus();

    std::shared_ptr<XlibConnection> m_connection;
    std::shared_ptr<X11Focus> m_focus;
    std::unique_ptr<WindowManagerFence> m_fence;
    X11Screens m_screens;
    /// The panel that has or wants the keyboard.
    QPointer<QWindow> m_presented;
    XWindow m_presentedID = 0;
    bool m_isPointerIn = false;    ///< that window, as of the event that is handled
    unsigned long m_clickTime = 0; ///< of the server, while a click beside the panel ends it
    /// The parts of windows that take the pointer; all of a window that is not named.
    QHash<const QWindow*, QRect> m_inputAreas;
    XAtom m_compositor = 0;
    bool m_canBlend = false;
};

} // namespace vellumry
