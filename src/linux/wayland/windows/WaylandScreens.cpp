// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/windows/WaylandScreens.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

namespace vellumry::waylandscreens {

std::optional<ScreenPlace> placeOf(const QScreen* screen) {
    if (screen == nullptr)
        return std::nullopt;
    const QString key =
        QStringList{screen->manufacturer(), screen->model(), screen->serialNumber(), screen->name()}.join(u' ');
    return ScreenPlace{key.simplified(), screen->geometry(), screen->availableGeometry()};
}

QScreen* withMostOf(const QRect& frame) {
    const auto sharedArea = [&frame](const QScreen* screen) {
        const QRect shared = screen->geometry().intersected(frame);
        return qint64(shared.width()) * shared.height();
    };
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto best = std::ranges::max_element(screens, {}, sharedArea);
    return best == screens.end() ? nullptr : *best;
}

} // namespace vellumry::waylandscreens
