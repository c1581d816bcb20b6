// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/LanguageData.h"

#include <QCoreApplication>
#include <QDir>

namespace vellumry::languagedata {

namespace {

/// Where an AppImage has it: by the prefix that the program, or the reader in its own folder, stands in.
QString ownFolder() {
    const QString here = QCoreApplication::applicationDirPath();
    const bool isReader = here.endsWith(QLatin1String("/libexec/vellumry"));
    return QDir::cleanPath(here + QLatin1String(isReader ? "/../../share/tessdata" : "/../share/tessdata"));
}

} // namespace

QStringList folders() {
    QStringList result;
    if (const QString chosen = qEnvironmentVariable("TESSDATA_PREFIX"); !chosen.isEmpty())
        result << chosen;
    return result << QStringLiteral("/usr/share/tesseract-ocr/5/tessdata")
                  << QStringLiteral("/usr/share/tesseract/tessdata") << QStringLiteral("/usr/share/tessdata")
                  << QStringLiteral("/usr/local/share/tessdata") << ownFolder();
}

QStringList languagesIn(const QString& folder) {
    QStringList names;
    for (const QFileInfo& file : QDir(folder).entryInfoList({QStringLiteral("*.traineddata")}, QDir::Files))
        names << file.completeBaseName();
    return names;
}

} // namespace vellumry::languagedata
