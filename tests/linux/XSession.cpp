// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/XSession.h"

#include "linux/x11/XWindowProperties.h"
#include "linux/x11/XlibConnection.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <csignal>
#include <sys/prctl.h>

namespace vellumry {

namespace {

constexpr int startMilliseconds = 10000;
constexpr int waitMilliseconds = 3000;

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

} // namespace

bool XSession::start() {
    startChild(m_server, QStringLiteral("Xvfb"),
               {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                QStringLiteral("1280x800x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-ac")});
    QByteArray number;
    while (!number.contains('\n') && m_server.waitForReadyRead(startMilliseconds))
        number += m_server.readAllStandardOutput();
    if (number.trimmed().isEmpty())
        return false;
    qputenv("DISPLAY", ":" + number.trimmed());
    startChild(m_manager, QStringLiteral("openbox"), {});
    const auto connection = XlibConnection::create();
    QElapsedTimer timer;
    timer.start();
    while (connection != nullptr && timer.elapsed() < startMilliseconds) {
        if (!XWindowProperties::numbers(*connection, connection->root(), "_NET_SUPPORTING_WM_CHECK").empty())
            return true;
        m_manager.waitForReadyRead(10);
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

bool waitUntil(const std::function<bool()>& condition) {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < waitMilliseconds) {
        if (condition())
            return true;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
    return condition();
}

} // namespace vellumry
