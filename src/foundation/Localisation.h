// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>
#include <QTranslator>

namespace vellumry {

/// The user's wording of an English text. The text is its own key; without an installed catalogue it is the answer.
/// Placeholders %1, %2, … are left for `QString::arg`. Any thread.
[[nodiscard]] QString localised(const char* key);

/// The same for a text that counts: %n becomes `count`, written as the language writes numbers, in the plural form that
/// it has for it. Without a catalogue there is one form, the key itself.
[[nodiscard]] QString localised(const char* key, int count);

/// The languages the user wants to read, the best first, as "de_AT"; from the environment as gettext has it: LANGUAGE,
/// then the first that is set of LC_ALL, LC_MESSAGES and LANG, and none where that is "C".
[[nodiscard]] QStringList wantedLanguages();

/// The wordings of one language. Numbers in sentences are written as the language writes them: Qt itself writes plain
/// digits. Main thread; reading from any thread once it is open.
class Catalogue : public QTranslator {
public:
    using QTranslator::QTranslator;

    /// Opens the catalogue that is built in for a language, as "pt_BR". Answers false where there is none.
    [[nodiscard]] bool open(const QString& name);

    [[nodiscard]] QString translate(const char* group, const char* key, const char* disambiguation,
                                    int count) const override;

private:
    QLocale m_locale;
};

/// Loads the catalogue that fits the user's languages, above the Linux wording of English. One line of the log tells of
/// a locale that does not exist. Main thread, once.
void installCatalogue();

} // namespace vellumry
