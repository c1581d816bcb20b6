// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Localisation.h"

#include <QCoreApplication>
#include <QTranslator>
#include <algorithm>
#include <memory>

namespace vellumry {

QString localised(const char* key) {
    return QCoreApplication::translate("Vellumry", key);
}

QString localised(const char* key, int count) {
    return QCoreApplication::translate("Vellumry", key, nullptr, count);
}

QStringList wantedLanguages() {
    QString locale;
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (locale.isEmpty())
            locale = qEnvironmentVariable(variable);
    }
    QStringList wanted;
    for (QString name : (qEnvironmentVariable("LANGUAGE") + u':' + locale).split(u':')) {
        // "de_AT.UTF-8@euro": neither the coding nor the currency is part of the language.
        name = name.section(u'.', 0, 0).section(u'@', 0, 0);
        if (!name.isEmpty() && !wanted.contains(name))
            wanted.append(name);
    }
    const QString plain = locale.section(u'.', 0, 0);
    const bool isUntranslated = plain.isEmpty() || plain == QLatin1String("C") || plain == QLatin1String("POSIX");
    return isUntranslated ? QStringList() : wanted;
}

void installCatalogue() {
    QCoreApplication* application = QCoreApplication::instance();
    if (!application)
        return;
    auto translator = std::make_unique<QTranslator>(application);
    const QString folder = QStringLiteral(":/i18n");
    const auto load = [&](const QString& language) {
        return translator->load(QStringLiteral("vellumry_") + language, folder, QString(), QStringLiteral(".qm"));
    };
    const auto isRead = [&load](const QString& name) { return load(name) || load(name.section(u'_', 0, 0)); };
    if (std::ranges::any_of(wantedLanguages(), isRead) || load(QStringLiteral("en")))
        QCoreApplication::installTranslator(translator.release()); // its parent is the application
}

} // namespace vellumry
