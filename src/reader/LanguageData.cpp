// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/LanguageData.h"

#include <QDir>

namespace vellumry::languagedata {

QStringList folders() {
    QStringList result;
    if (const QString chosen = qEnvironmentVariable("TESSDATA_PREFIX"); !chosen.isEmpty())
        result << chosen;
    return result << QStringLiteral("/usr/share/tesseract-ocr/5/tessdata")
                  << QStringLiteral("/usr/share/tesseract/tessdata") << QStringLiteral("/usr/share/tessdata")
                  << QStringLiteral("/usr/local/share/tessdata");
}

QStringList languagesIn(const QString& folder) {
    QStringList names;
    for (const QFileInfo& file : QDir(folder).entryInfoList({QStringLiteral("*.traineddata")}, QDir::Files))
        names << file.completeBaseName();
    return names;
}

} // namespace vellumry::languagedata
