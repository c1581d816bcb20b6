// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/windows/LayerPanelSurface.h"

#include "linux/wayland/windows/WaylandScreens.h"

#include <LayerShellQt/window.h>
#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QSurfaceFormat>

namespace vellumry {

namespace {

using Layer = LayerShellQt::Window;

} // namespace

LayerPanelSurface::LayerPanelSurface(std::shared_ptr<WaylandFocus> focus)
    : m_focus(std::move(focus)) {
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &LayerPanelSurface::watchKeyboard);
}

void LayerPanelSurface::adopt(QWindow* window) {
    window->setFlags(Qt::Window | Qt::FramelessWindowHint);
    QSurfaceFormat format = window->requestedFormat();
    format.setAlphaBufferSize(8);
    window->setFormat(format);
    Layer* layer = Layer::get(window);
    layer->setLayer(Layer::LayerOverlay);
    layer->setScope(QStringLiteral("vellumry"));
    layer->setAnchors({Layer::AnchorTop, Layer::AnchorLeft});
    // Docks and bars do not push it aside: its place was chosen with them in mind.
    layer->setExclusiveZone(-1);
    layer->setCloseOnDismissed(false);
    m_earlyKeys.follow(window);
    connect(window, &QWindow::xChanged, this, [this, window] { follow(window); });
    connect(window, &QWindow::yChanged, this, [this, window] { follow(window); });
}

void LayerPanelSurface::present(QWindow* window, std::optional<QRect> frame) {
    if (m_presented != nullptr && m_presented != window)
        dismiss(m_presented);
    m_focus->remember();
    m_presented = window;
    m_hadKeyboard = false;
    Layer::get(window)->setKeyboardInteractivity(Layer::KeyboardInteractivityExclusive);
    place(window, frame.value_or(window->geometry()));
    window->show();
}

void LayerPanelSurface::dismiss(QWindow* window) {
    if (window == m_presented) {
        m_presented = nullptr;
        m_earlyKeys.forget();
        m_focus->giveBack();
    }
    window->hide();
}

void LayerPanelSurface::presentPassive(QWindow* window, QRect frame, bool clickThrough) {
    window->setFlag(Qt::WindowDoesNotAcceptFocus);
    window->setFlag(Qt::WindowTransparentForInput, clickThrough);
    Layer::get(window)->setKeyboardInteractivity(Layer::KeyboardInteractivityNone);
    place(window, frame);
    window->show();
}

void LayerPanelSurface::setInputArea(QWindow* window, const QRect& area) {
    // On Wayland the mask of a window is where it takes input, and nothing else.
    window->setMask(area);
}

/// A surface stands on one display, away from its corner by its margins.
void LayerPanelSurface::place(QWindow* window, const QRect& frame) {
    if (QScreen* screen = waylandscreens::withMostOf(frame); screen != nullptr && screen != window->screen())
        window->setScreen(screen);
    window->setGeometry(frame);
    follow(window);
}

void LayerPanelSurface::follow(QWindow* window) {
    const QPoint corner = window->position() - (window->screen() ? window->screen()->geometry().topLeft() : QPoint());
    Layer::get(window)->setMargins({corner.x(), corner.y(), 0, 0});
}

/// Qt tells of a window that goes as well; that one has been dismissed.
void LayerPanelSurface::watchKeyboard() {
    if (m_presented == nullptr)
        return;
    const bool hasKeyboard = QGuiApplication::focusWindow() == m_presented;
    const bool isLost = m_hadKeyboard && !hasKeyboard;
    m_hadKeyboard = hasKeyboard;
    if (isLost && onFocusLost)
        onFocusLost(m_presented);
}

std::optional<ScreenPlace> LayerPanelSurface::screenUnderPointer() const {
    const QScreen* screen = QGuiApplication::screenAt(QCursor::pos());
    return waylandscreens::placeOf(screen != nullptr ? screen : QGuiApplication::primaryScreen());
}

std::optional<ScreenPlace> LayerPanelSurface::screenOf(const QRect& frame) const {
    return waylandscreens::placeOf(waylandscreens::withMostOf(frame));
}

} // namespace vellumry
