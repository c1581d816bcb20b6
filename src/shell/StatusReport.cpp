// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/StatusReport.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLocale>
#include <QScreen>
#include <QSysInfo>

namespace vellumry {

namespace {

QString firstLine(const StatusReport& report) {
    const QString program = QStringLiteral("Vellumry %1, Qt %2, ")
                                .arg(QCoreApplication::applicationVersion(), QString::fromLatin1(qVersion()));
    if (report.process)
        return program + QStringLiteral("running as process %1").arg(*report.process);
    return program + (report.notAsked.isEmpty() ? QStringLiteral("not running") : report.notAsked);
}

QString historyLine(const StatusReport& report) {
    QStringList parts;
    if (report.history) {
        const StatusReport::History& history = *report.history;
        parts << QStringLiteral("clips %1").arg(history.clips) << QStringLiteral("pinned %1").arg(history.pinned)
              << QStringLiteral("sensitive %1").arg(history.sensitive)
              << (history.isMemoryOnly ? QStringLiteral("kept in memory until the program ends")
                                       : QStringLiteral("kept in the encrypted file"));
        if (history.reason)
            parts.last() += QStringLiteral(" (%1)").arg(QString::fromLatin1(history.reason));
        if (history.isBehind)
            parts << QStringLiteral("the file refuses changes");
    }
    parts << (report.bytesOnDisk ? QStringLiteral("bytes on disk %1").arg(*report.bytesOnDisk)
                                 : QStringLiteral("no file"));
    return QStringLiteral("history: ") + parts.join(QStringLiteral(", "));
}

QString captureLine(const StatusReport::Capture& capture) {
    QStringList parts{capture.isPaused ? QStringLiteral("paused") : QStringLiteral("on")};
    if (capture.ignoresNext)
        parts << QStringLiteral("the next copy is ignored");
    parts << (capture.savesScreenshots ? QStringLiteral("screenshots are saved")
                                       : QStringLiteral("screenshots are not saved"));
    if (capture.overtakenCopies > 0)
        parts << QStringLiteral("copies overtaken %1").arg(capture.overtakenCopies);
    return QStringLiteral("capture: ") + parts.join(QStringLiteral(", "));
}

} // namespace

QString lineOf(const Capability& capability) {
    QString line = (capability.isFound ? QStringLiteral("found: ") : QStringLiteral("missing: ")) + capability.name;
    if (!capability.detail.isEmpty())
        line += QStringLiteral(" (") + capability.detail + u')';
    return line;
}

QString StatusReport::thisSession() {
    QStringList parts{QSysInfo::prettyProductName(), QSysInfo::kernelType() + u' ' + QSysInfo::kernelVersion(),
                      QSysInfo::currentCpuArchitecture()};
    const auto add = [&parts](const char* name, const char* variable) {
        const QString value = qEnvironmentVariable(variable);
        if (!value.isEmpty())
            parts << QString::fromLatin1(name) + u' ' + value;
    };
    add("desktop", "XDG_CURRENT_DESKTOP");
    add("type", "XDG_SESSION_TYPE");
    parts << QStringLiteral("languages ") + QLocale().uiLanguages().join(u' ');
    return parts.join(QStringLiteral(", "));
}

QStringList StatusReport::theseDisplays() {
    QStringList displays;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QSize size = screen->geometry().size();
        displays << QStringLiteral("%1x%2 at %3 %")
                        .arg(size.width())
                        .arg(size.height())
                        .arg(qRound(screen->devicePixelRatio() * 100));
    }
    return displays;
}

QString StatusReport::text() const {
    QStringList lines{firstLine(*this)};
    if (!session.isEmpty())
        lines << QStringLiteral("session: ") + session;
    if (!displays.isEmpty())
        lines << QStringLiteral("displays: ") + displays.join(QStringLiteral(", "));
    for (const Capability& capability : capabilities)
        lines << lineOf(capability);
    if (takenShortcuts)
        lines << (takenShortcuts->isEmpty()
                      ? QStringLiteral("shortcuts: ours")
                      : QStringLiteral("shortcuts: held by another program: ") + takenShortcuts->join(u' '));
    lines << historyLine(*this);
    if (capture)
        lines << captureLine(*capture);
    if (!refusedSettings.isEmpty())
        lines << QStringLiteral("settings that cannot be used: ") + refusedSettings.join(u' ');
    return lines.join(u'\n') + u'\n';
}

} // namespace vellumry
