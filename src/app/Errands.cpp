// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Errands.h"

#include "app/Capabilities.h"
#include "app/LinuxPlatform.h"
#include "app/PortalRoads.h"
#include "app/WaylandDisplay.h"
#include "foundation/Localisation.h"
#include "linux/process/DBusSingleInstance.h"
#include "linux/process/StatusInterface.h"
#include "linux/x11/windows/XlibConnection.h"
#include "shell/StatusReport.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QFileInfo>
#include <QStandardPaths>
#include <cstdio>

namespace vellumry::errands {

namespace {

constexpr int notificationMilliseconds = 2000;

void print(const QString& text, std::FILE* file) {
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), file);
    std::fflush(file);
}

QString whyNotAsked(NoStatus why) {
    switch (why) {
    case NoStatus::noBus:
        return QStringLiteral("not known whether it runs: no session bus");
    case NoStatus::noAnswer:
        return QStringLiteral("running, without an answer");
    case NoStatus::notRunning:
        break;
    }
    return QString();
}

/// The size alone: the file is not opened.
std::optional<qint64> bytesOnDisk() {
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Vellumry");
    if (!QFileInfo::exists(folder + QStringLiteral("/History.sqlite")))
        return std::nullopt;
    return historyBytes(folder);
}

QString statusFromOutside(NoStatus why) {
    StatusReport report;
    report.notAsked = whyNotAsked(why);
    report.session = StatusReport::thisSession();
    report.capabilities = waylanddisplay::capabilities();
    if (!waylanddisplay::isWanted()) {
        for (Capability& capability : capabilities::ofDisplay(XlibConnection::create()))
            report.capabilities.push_back(std::move(capability));
    }
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        PortalRoads::complete(report.capabilities);
    for (Capability& capability : capabilities::ofSession(readerPath()))
        report.capabilities.push_back(std::move(capability));
    report.bytesOnDisk = bytesOnDisk();
    return report.text();
}

/// The Desktop Notifications Specification 1.2. The server shows it after we are gone; sending waits for its answer.
void notify(const QString& title, const QString& text) {
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    call.setArguments({QStringLiteral("Vellumry"), 0U, QStringLiteral("com.vellumry.Vellumry"), title, text,
                       QStringList(), QVariantMap(), -1});
    QDBusConnection::sessionBus().call(call, QDBus::Block, notificationMilliseconds);
}

} // namespace

int printStatus(int& argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const auto answer = askForStatus(QDBusConnection::sessionBus());
    print(answer ? *answer : statusFromOutside(answer.error()), stdout);
    return 0;
}

int askForAction(int& argc, char** argv, const QString& action) {
    const QCoreApplication application(argc, argv);
    if (DBusSingleInstance::askForAction(QDBusConnection::sessionBus(), action))
        return 0;
    print(QStringLiteral("Vellumry does not run in this session, or does not answer.\n"), stderr);
    return 1;
}

int tellOfMissingDisplay(int& argc, char** argv) {
    const QCoreApplication application(argc, argv);
    installCatalogue();
    const QString title = localised("Vellumry can't start in this session");
    const QString text = localised("Vellumry needs an X11 display and found none. In a Wayland session, turn on "
                                   "Xwayland, or log in to an X11 session.");
    print(title + u'\n' + text + u'\n', stderr);
    notify(title, text);
    return 1;
}

} // namespace vellumry::errands
