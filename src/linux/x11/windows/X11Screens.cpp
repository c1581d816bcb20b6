// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/X11Screens.h"

#include "linux/x11/windows/XWindowProperties.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

namespace vellumry {

X11Screens::X11Screens(std::shared_ptr<XlibConnection> connection)
    : m_connection(std::move(connection)) {}

std::optional<ScreenPlace> X11Screens::underPointer() const {
    const QScreen* screen = QGuiApplication::screenAt(QCursor::pos());
    if (screen == nullptr)
        screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? std::nullopt : std::optional(placeOf(*screen));
}

std::optional<ScreenPlace> X11Screens::of(const QRect& frame) const {
    const QScreen* best = nullptr;
    qint64 bestArea = 0;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect shared = screen->geometry() & frame;
        const qint64 area = shared.isEmpty() ? 0 : qint64(shared.width()) * shared.height();
        if (area > bestArea) {
            best = screen;
            bestArea = area;
        }
    }
    return best == nullptr ? std::nullopt : std::optional(placeOf(*best));
}

ScreenPlace X11Screens::placeOf(const QScreen& screen) const {
    const QRect frame = screen.geometry();
    return {keyOf(screen.manufacturer(), screen.model(), screen.serialNumber(), screen.name(), frame.size()), frame,
            visiblePart(frame, screen.devicePixelRatio(), workArea())};
}

QString X11Screens::keyOf(const QString& maker, const QString& model, const QString& serial, const QString& name,
                          QSize size) {
    if (model.isEmpty() && serial.isEmpty())
        return QStringLiteral("%1 %2×%3").arg(name).arg(size.width()).arg(size.height());
    return QStringLiteral("%1 %2 %3 %4").arg(maker, model, serial, name).simplified();
}

QRect X11Screens::visiblePart(const QRect& frame, qreal scale, const QRect& workArea) {
    const QRect native(frame.topLeft(), (QSizeF(frame.size()) * scale).toSize());
    const QRect shared = native & workArea;
    if (shared.isEmpty())
        return frame;
    const QPointF offset = QPointF(shared.topLeft() - native.topLeft()) / scale;
    return QRect(frame.topLeft() + offset.toPoint(), (QSizeF(shared.size()) / scale).toSize());
}

QRect X11Screens::workArea() const {
    const auto areas = XWindowProperties::numbers(*m_connection, m_connection->root(), "_NET_WORKAREA");
    const auto desktops = XWindowProperties::numbers(*m_connection, m_connection->root(), "_NET_CURRENT_DESKTOP");
    // Four values a desktop; some window managers give one desktop's for all.
    size_t at = desktops.empty() ? 0 : desktops.front() * 4;
    if (at + 4 > areas.size())
        at = 0;
    if (areas.size() < 4)
        return {};
    return {int(areas[at]), int(areas[at + 1]), int(areas[at + 2]), int(areas[at + 3])};
}

} // namespace vellumry
