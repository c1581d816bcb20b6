// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Localisation.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>
#include <memory>

namespace vellumry {

QString localised(const char* key) {
    return QCoreApplication::translate("Vellumry", key);
}

QString localised(const char* key, int count) {
    return QCoreApplication::translate("Vellumry", key, nullptr, count);
}

void installCatalogue() {
    QCoreApplication* application = QCoreApplication::instance();
    if (!application)
        return;
    auto translator = std::make_unique<QTranslator>(application);
    const QString folder = QStringLiteral(":/i18n");
    const bool isLoaded = translator->load(QLocale(), QStringLiteral("vellumry"), QStringLiteral("_"), folder) ||
                          translator->load(QStringLiteral("vellumry_en"), folder);
    if (isLoaded)
        QCoreApplication::installTranslator(translator.release()); // its parent is the application
}

} // namespace vellumry
