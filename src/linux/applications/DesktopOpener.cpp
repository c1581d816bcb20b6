// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/applications/DesktopOpener.h"

#include "foundation/Logging.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>
#include <utility>

namespace vellumry {

namespace {

const QString opener = QStringLiteral("xdg-open");

void openFolders(const DesktopOpener::Start& start, const QStringList& paths) {
    QStringList folders;
    for (const QString& path : paths)
        folders.append(QFileInfo(path).absolutePath());
    folders.removeDuplicates();
    for (const QString& folder : std::as_const(folders))
        start(opener, {QUrl::fromLocalFile(folder).toString(QUrl::FullyEncoded)});
}

} // namespace

DesktopOpener::DesktopOpener(QDBusConnection bus, Start start)
    : m_bus(std::move(bus))
    , m_start(std::move(start)) {}

bool DesktopOpener::startDetached(const QString& program, const QStringList& arguments) {
    return QProcess::startDetached(program, arguments);
}

bool DesktopOpener::openAddress(const QString& address) {
    const QUrl url(address, QUrl::TolerantMode);
    // Without a scheme it would be taken for a file, or for an option.
    if (!url.isValid() || url.scheme().isEmpty())
        return false;
    const bool isStarted = m_start(opener, {url.toString(QUrl::FullyEncoded)});
    if (!isStarted)
        qCWarning(logging::applications) << "xdg-open cannot be started";
    return isStarted;
}

void DesktopOpener::showFiles(const QStringList& paths) {
    QStringList addresses;
    for (const QString& path : paths)
        addresses.append(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded));
    if (addresses.isEmpty())
        return;
    const QString name = QStringLiteral("org.freedesktop.FileManager1");
    QDBusMessage call = QDBusMessage::createMethodCall(name, QStringLiteral("/org/freedesktop/FileManager1"), name,
                                                       QStringLiteral("ShowItems"));
    call << addresses << QString();
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call));
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                     [watcher, start = m_start, paths](QDBusPendingCallWatcher* finished) {
                         if (finished->isError())
                             openFolders(start, paths);
                         watcher->deleteLater();
                     });
}

} // namespace vellumry
