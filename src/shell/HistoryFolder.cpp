// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/HistoryFolder.h"

#include "foundation/InterfaceLocale.h"
#include "foundation/Localisation.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStorageInfo>
#include <array>
#include <cmath>
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

QString fileSizeText(qint64 bytes) {
    if (bytes <= 0)
        return localised("Zero KB");
    if (bytes == 1)
        return localised("1 byte");
    if (bytes < 1000)
        return localised("%1 bytes").arg(interfaceLocale().toString(bytes));
    const std::array units{localised("%1 KB"), localised("%1 MB"), localised("%1 GB"), localised("%1 TB")};
    constexpr std::array<double, units.size()> steps{1, 10, 100, 100}; // in which each unit is rounded
    double amount = static_cast<double>(bytes) / 1000;
    std::size_t unit = 0;
    // Rounding decides about the unit too: there are no 1000 KB.
    while (unit + 1 < units.size() && std::round(amount * steps[unit]) >= 1000 * steps[unit]) {
        amount /= 1000;
        ++unit;
    }
    const double rounded = std::round(amount * steps[unit]) / steps[unit];
    return units[unit].arg(interfaceLocale().toString(rounded, 'f', QLocale::FloatingPointShortest));
}

qint64 historyBytes(const QString& folder) {
    qint64 sum = 0;
    for (const char* name : {"/History.sqlite", "/History.sqlite-wal"})
        sum += QFileInfo(folder + QLatin1String(name)).size();
    return sum;
}

} // namespace vellumry
