// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace vellumry {

/// The user's wording of an English text. The text is its own key; without an installed catalogue it is the answer.
/// Placeholders %1, %2, … are left for `QString::arg`. Any thread.
[[nodiscard]] QString localised(const char* key);

/// The same for a text that counts: %n becomes `count`, in the plural form that the language has for it. Without a
/// catalogue there is one form, the key itself.
[[nodiscard]] QString localised(const char* key, int count);

/// The languages the user wants to read, the best first, as "de_AT"; from the environment as gettext has it: LANGUAGE,
/// then the first that is set of LC_ALL, LC_MESSAGES and LANG, and none where that is "C".
[[nodiscard]] QStringList wantedLanguages();

/// Loads the catalogue that fits the user's languages, the Linux wording of English as the last resort. Main thread,
/// once.
void installCatalogue();

} // namespace vellumry
