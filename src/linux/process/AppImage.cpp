// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/process/AppImage.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace vellumry {

// What the runtime of an AppImage sets: the file, and the folder that it is mounted at.
QString runningAppImage() {
    const QString file = qEnvironmentVariable("APPIMAGE");
    const QString mounted = QFileInfo(qEnvironmentVariable("APPDIR")).canonicalFilePath();
    const QString program = QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath();
    if (mounted.isEmpty() || !program.startsWith(mounted + u'/') || !file.startsWith(u'/'))
        return QString();
    return QFileInfo(file).isFile() ? file : QString();
}

} // namespace vellumry
