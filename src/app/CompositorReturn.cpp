// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CompositorReturn.h"

#include "app/WaylandDisplay.h"
#include "linux/wayland/WaylandConnection.h"
#include "shell/Ending.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>
#include <chrono>

namespace vellumry::compositorreturn {

namespace {

using namespace std::chrono_literals;

constexpr auto betweenLooks = 200ms;
/// Plasma's next compositor is there within a few seconds, on a slow machine too.
constexpr auto longestWait = 60s;

void lookForNext() {
    auto* timer = new QTimer(QCoreApplication::instance());
    QObject::connect(timer, &QTimer::timeout, timer, [timer, end = QDeadlineTimer(longestWait)] {
        const bool isBack = waylanddisplay::isWanted();
        if (!isBack && !end.hasExpired())
            return;
        timer->stop();
        if (isBack)
            restartProgram();
        else
            endProgram();
    });
    timer->start(betweenLooks);
}

} // namespace

void follow(const WaylandConnection& connection) {
    QObject::connect(&connection, &WaylandConnection::broke, QCoreApplication::instance(), &lookForNext);
}

} // namespace vellumry::compositorreturn
