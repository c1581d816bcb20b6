// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/HistoryFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <stdexcept>
#include <sys/stat.h>

namespace vellumry {

QString historyFolder(const QString& dataHome) {
    const QString folder = dataHome + QStringLiteral("/Vellumry");
    if (dataHome.isEmpty() || !QDir().mkpath(folder) || !QFileInfo(folder).isDir())
        throw std::runtime_error("the application folder cannot be made");
    (void)chmod(QFile::encodeName(folder).constData(), 0700);
    return folder;
}

bool isRoomForImages(qint64 available) {
    return available < 0 || available >= qint64{1} << 30;
}

bool hasRoomForImages(const QString& folder) {
    const QStorageInfo volume(folder);
    return isRoomForImages(volume.isValid() ? volume.bytesAvailable() : -1);
}

qint64 historyBytes(const QString& folder) {
    qint64 sum = 0;
    for (const char* name : {"/History.sqlite", "/History.sqlite-wal"})
        sum += QFileInfo(folder + QLatin1String(name)).size();
    return sum;
}

} // namespace vellumry
