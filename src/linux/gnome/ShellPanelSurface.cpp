// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/gnome/ShellPanelSurface.h"

#include "linux/wayland/windows/WaylandScreens.h"

#include <QDBusArgument>
#include <QGuiApplication>
#include <QScreen>
#include <QSurfaceFormat>

namespace vellumry {

namespace {

QRect rectOf(const QVariant& value) {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    const auto argument = value.value<QDBusArgument>();
    argument.beginStructure();
    argument >> x >> y >> width >> height;
    argument.endStructure();
    return {x, y, width, height};
}

} // namespace

ShellPanelSurface::ShellPanelSurface(std::shared_ptr<ShellLink> link, std::shared_ptr<WaylandFocus> focus)
    : m_link(std::move(link))
    , m_focus(std::move(focus)) {
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &ShellPanelSurface::watchKeyboard);
}

void ShellPanelSurface::adopt(QWindow* window) {
    window->setFlags(Qt::Window | Qt::FramelessWindowHint);
    QSurfaceFormat format = window->requestedFormat();
    format.setAlphaBufferSize(8);
    window->setFormat(format);
    m_earlyKeys.follow(window);
    connect(window, &QWindow::xChanged, this, [this, window] { follow(window); });
    connect(window, &QWindow::yChanged, this, [this, window] { follow(window); });
}

void ShellPanelSurface::present(QWindow* window, std::optional<QRect> frame) {
    if (m_presented != nullptr && m_presented != window)
        dismiss(m_presented);
    m_focus->remember();
    m_presented = window;
    m_hadKeyboard = false;
    place(window, frame.value_or(window->geometry()));
    window->show();
    window->requestActivate();
}

void ShellPanelSurface::dismiss(QWindow* window) {
    if (window == m_presented) {
        m_presented = nullptr;
        m_earlyKeys.forget();
        m_focus->giveBack();
    }
    window->hide();
}

void ShellPanelSurface::presentPassive(QWindow* window, QRect frame, bool clickThrough) {
    window->setFlag(Qt::WindowDoesNotAcceptFocus);
    window->setFlag(Qt::WindowTransparentForInput, clickThrough);
    place(window, frame);
    // Without the extension it would take the keyboard from the window that is typed into.
    if (m_link->isThere())
        window->show();
}

void ShellPanelSurface::setInputArea(QWindow* window, const QRect& area) {
    // On Wayland the mask of a window is where it takes input, and nothing else.
    window->setMask(area);
}

/// The shell must know the place before the window comes.
void ShellPanelSurface::place(QWindow* window, const QRect& frame) {
    window->setGeometry(frame);
    const bool wantsKeyboard = (window->flags() & Qt::WindowDoesNotAcceptFocus) == 0;
    (void)m_link->ask(QStringLiteral("Place"), {window->title(), frame.x(), frame.y(), wantsKeyboard});
}

void ShellPanelSurface::follow(QWindow* window) {
    const bool wantsKeyboard = (window->flags() & Qt::WindowDoesNotAcceptFocus) == 0;
    if (window->isVisible())
        m_link->tell(QStringLiteral("Place"), {window->title(), window->x(), window->y(), wantsKeyboard});
}

/// Qt tells of a window that goes as well; that one has been dismissed.
void ShellPanelSurface::watchKeyboard() {
    if (m_presented == nullptr)
        return;
    const bool hasKeyboard = QGuiApplication::focusWindow() == m_presented;
    const bool isLost = m_hadKeyboard && !hasKeyboard;
    m_hadKeyboard = hasKeyboard;
    if (isLost && onFocusLost)
        onFocusLost(m_presented);
}

std::optional<ScreenPlace> ShellPanelSurface::screenUnderPointer() const {
    const auto answer = m_link->ask(QStringLiteral("PointerPlace"), {});
    if (!answer || answer->size() != 2)
        return waylandscreens::placeOf(QGuiApplication::primaryScreen());
    const QRect frame = rectOf(answer->front());
    auto place = waylandscreens::placeOf(waylandscreens::withMostOf(frame));
    // Qt knows of no bars on Wayland.
    if (place && place->frame == frame)
        place->visible = rectOf(answer->back());
    return place;
}

std::optional<ScreenPlace> ShellPanelSurface::screenOf(const QRect& frame) const {
    return waylandscreens::placeOf(waylandscreens::withMostOf(frame));
}

} // namespace vellumry
