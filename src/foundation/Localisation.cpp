// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Localisation.h"

#include "foundation/InterfaceLocale.h"
#include "foundation/Logging.h"

#include <QCoreApplication>
#include <QTranslator>
#include <algorithm>
#include <clocale>
#include <locale.h>
#include <memory>

namespace vellumry {

namespace {

constexpr const char* context = "Vellumry";

/// The catalogues of one language as users may name it: the country's own, then the language's.
QStringList cataloguesFor(const QString& language) {
    const QString plain = language.section(u'_', 0, 0);
    QStringList names{language, plain};
    // Where one country's catalogue is all there is for locales that name no country, or share its script.
    static const QStringList simplified{QStringLiteral("zh"), QStringLiteral("zh_SG"), QStringLiteral("zh_MY"),
                                        QStringLiteral("zh_Hans")};
    if (simplified.contains(language))
        names.append(QStringLiteral("zh_CN"));
    if (language == QLatin1String("pt"))
        names.append(QStringLiteral("pt_BR"));
    names.removeDuplicates();
    return names;
}

bool doesLocaleExist() {
    const locale_t found = newlocale(LC_ALL_MASK, "", nullptr);
    if (found)
        freelocale(found);
    return found != nullptr;
}

} // namespace

QString localised(const char* key) {
    return QCoreApplication::translate(context, key);
}

QString localised(const char* key, int count) {
    return QCoreApplication::translate(context, key, nullptr, count);
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

bool Catalogue::open(const QString& name) {
    // An empty set of delimiters is Qt's own, which would open "vellumry" for "vellumry_xx".
    if (!load(QStringLiteral("vellumry_") + name, QStringLiteral(":/i18n"), QStringLiteral("."), QStringLiteral(".qm")))
        return false;
    m_locale = usersLocaleIn(QTranslator::translate(context, "en", nullptr, -1));
    return true;
}

QString Catalogue::translate(const char* group, const char* key, const char* disambiguation, int count) const {
    QString text = QTranslator::translate(group, key, disambiguation, count);
    if (count >= 0) {
        const QString number = m_locale.toString(count);
        text.replace(QLatin1String("%Ln"), number).replace(QLatin1String("%n"), number);
    }
    return text;
}

void installCatalogue() {
    QCoreApplication* application = QCoreApplication::instance();
    if (!application)
        return;
    // English beneath, so that a text without a wording in the user's language is at least one of this desktop.
    const auto install = [application](const QString& name) {
        auto catalogue = std::make_unique<Catalogue>(application);
        // It belongs to the application.
        return catalogue->open(name) && QCoreApplication::installTranslator(catalogue.release());
    };
    install(QStringLiteral("en"));
    const QStringList wanted = wantedLanguages();
    QString taken;
    for (const QString& language : wanted) {
        const QStringList names = cataloguesFor(language);
        const auto found = std::ranges::find_if(names, install);
        if (found != names.end()) {
            taken = *found;
            break;
        }
    }
    if (!doesLocaleExist())
        qCWarning(logging::foundation).noquote()
            << "the locale of the environment does not exist on this system: texts are in"
            << (taken.isEmpty() ? QStringLiteral("en") : taken);
    else if (taken.isEmpty() && !wanted.isEmpty())
        qCInfo(logging::foundation).noquote() << "no catalogue for" << wanted.join(u':') << "- texts are in en";
}

} // namespace vellumry
