// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/input/XSession.h"

#include "linux/x11/windows/XWindowProperties.h"
#include "linux/x11/windows/XlibConnection.h"

#include <QElapsedTimer>
#include <csignal>
#include <sys/prctl.h>

#include <X11/Xlib.h>

namespace vellumry {

namespace {

constexpr int startMilliseconds = 60'000;
constexpr int probeMilliseconds = 100;

void startChild(QProcess& process, const QString& program, const QStringList& arguments) {
    // A test that dies takes them along.
    process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    process.setProcessChannelMode(QProcess::SeparateChannels);
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments);
}

void endChild(QProcess& process) {
    process.terminate();
    if (!process.waitForFinished(startMilliseconds))
        process.kill();
    process.waitForFinished();
}

/// True when the window manager takes a new window in its care. Openbox announces itself before it does so, and loses
/// the windows that are shown in between.
bool isManaged(XlibConnection& connection) {
    Display* display = connection.display();
    const Window probe = XCreateSimpleWindow(display, connection.root(), 0, 0, 1, 1, 0, 0, 0);
    XMapWindow(display, probe);
    XSync(display, False);
    QElapsedTimer timer;
    timer.start();
    bool result = false;
    while (!result && timer.elapsed() < probeMilliseconds)
        result = !windowproperties::numbers(connection, probe, "WM_STATE").empty();
    XDestroyWindow(display, probe);
    XSync(display, False);
    return result;
}

} // namespace

bool XSession::start() {
    startChild(m_server, QStringLiteral("Xvfb"),
               {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                QStringLiteral("1280x800x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                QStringLiteral("-ac")});
    QByteArray number;
    while (!number.contains('\n') && m_server.waitForReadyRead(startMilliseconds))
        number += m_server.readAllStandardOutput();
    if (number.trimmed().isEmpty())
        return false;
    qputenv("DISPLAY", ":" + number.trimmed());
    startChild(m_manager, QStringLiteral("openbox"), {});
    const auto connection = XlibConnection::create().value_or(nullptr);
    QElapsedTimer timer;
    timer.start();
    while (connection != nullptr && timer.elapsed() < startMilliseconds) {
        if (isManaged(*connection))
            return true;
    }
    return false;
}

XSession::~XSession() {
    endChild(m_manager);
    endChild(m_server);
}

bool XSession::setLayout(const QString& layout) {
    return QProcess::execute(QStringLiteral("setxkbmap"), layout.split(u' ')) == 0;
}

} // namespace vellumry
