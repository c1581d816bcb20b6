// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/X11Screens.h"

#include "linux/x11/windows/XWindowProperties.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

#include <X11/Xlib.h>

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
    const qreal scale = screen.devicePixelRatio();
    const QSize desktop = desktopSize();
    const bool isAlone = QGuiApplication::screens().size() == 1;
    return {keyOf(screen.manufacturer(), screen.model(), screen.serialNumber(), screen.name(), frame.size()), frame,
            isAlone ? visiblePart(frame, scale, workArea()) : withoutStruts(frame, scale, desktop, struts(desktop))};
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

std::vector<X11Screens::Strut> X11Screens::strutsOf(const std::vector<unsigned long>& numbers, QSize desktop) {
    constexpr size_t edges = 4;
    constexpr size_t partial = 12;
    constexpr unsigned long most = 100'000;
    std::vector<Strut> struts;
    for (size_t index = 0; index < edges && numbers.size() >= edges; ++index) {
        if (numbers[index] == 0 || numbers[index] > most)
            continue;
        const auto edge = static_cast<Strut::Edge>(index);
        const bool isUpright = edge == Strut::Edge::left || edge == Strut::Edge::right;
        Strut strut{edge, int(numbers[index]), 0, (isUpright ? desktop.height() : desktop.width()) - 1};
        if (numbers.size() >= partial) {
            strut.begin = int(std::min(numbers[edges + 2 * index], most));
            strut.end = int(std::min(numbers[edges + 2 * index + 1], most));
        }
        struts.push_back(strut);
    }
    return struts;
}

QRect X11Screens::withoutStruts(const QRect& frame, qreal scale, QSize desktop, const std::vector<Strut>& struts) {
    const QRect native(frame.topLeft(), (QSizeF(frame.size()) * scale).toSize());
    QRect left = native;
    for (const Strut& strut : struts) {
        const int length = strut.end - strut.begin + 1;
        QRect rest = left;
        QRect taken;
        switch (strut.edge) {
        case Strut::Edge::left:
            taken = QRect(0, strut.begin, strut.depth, length);
            rest.setLeft(std::max(rest.left(), taken.right() + 1));
            break;
        case Strut::Edge::right:
            taken = QRect(desktop.width() - strut.depth, strut.begin, strut.depth, length);
            rest.setRight(std::min(rest.right(), taken.left() - 1));
            break;
        case Strut::Edge::top:
            taken = QRect(strut.begin, 0, length, strut.depth);
            rest.setTop(std::max(rest.top(), taken.bottom() + 1));
            break;
        case Strut::Edge::bottom:
            taken = QRect(strut.begin, desktop.height() - strut.depth, length, strut.depth);
            rest.setBottom(std::min(rest.bottom(), taken.top() - 1));
            break;
        }
        const bool isOfThisDisplay = 2 * rest.width() > native.width() && 2 * rest.height() > native.height();
        if (taken.intersects(native) && isOfThisDisplay)
            left = rest;
    }
    const QPointF offset = QPointF(left.topLeft() - native.topLeft()) / scale;
    return QRect(frame.topLeft() + offset.toPoint(), (QSizeF(left.size()) / scale).toSize());
}

/// As it is now: what Xlib keeps is what it was at the start.
QSize X11Screens::desktopSize() const {
    XWindowAttributes attributes{};
    XGetWindowAttributes(m_connection->display(), m_connection->root(), &attributes);
    return {attributes.width, attributes.height};
}

std::vector<X11Screens::Strut> X11Screens::struts(QSize desktop) const {
    std::vector<Strut> all;
    for (const XWindow window : windowproperties::numbers(*m_connection, m_connection->root(), "_NET_CLIENT_LIST")) {
        auto numbers = windowproperties::numbers(*m_connection, window, "_NET_WM_STRUT_PARTIAL");
        if (numbers.empty())
            numbers = windowproperties::numbers(*m_connection, window, "_NET_WM_STRUT");
        const std::vector<Strut> found = strutsOf(numbers, desktop);
        all.insert(all.end(), found.begin(), found.end());
    }
    return all;
}

QRect X11Screens::workArea() const {
    const auto areas = windowproperties::numbers(*m_connection, m_connection->root(), "_NET_WORKAREA");
    const auto desktops = windowproperties::numbers(*m_connection, m_connection->root(), "_NET_CURRENT_DESKTOP");
    // Four values a desktop; some window managers give one desktop's for all.
    size_t at = desktops.empty() ? 0 : desktops.front() * 4;
    if (at + 4 > areas.size())
        at = 0;
    if (areas.size() < 4)
        return {};
    return {int(areas[at]), int(areas[at + 1]), int(areas[at + 2]), int(areas[at + 3])};
}

} // namespace vellumry
