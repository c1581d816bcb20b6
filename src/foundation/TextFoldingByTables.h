// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace vellumry::text {

/// How the capital letter I folds.
enum class LetterI {
    Dotted, ///< to i, as nearly everywhere
    Turkic, ///< to the dotless ı, in Turkish and Azerbaijani; the dotted İ then folds to i
};

/// A text without case, accents and full-width forms, by the tables of Unicode (ICU): canonical decomposition, case
/// folding (Unicode Standard 3.13) and composition. `foldedBytes` has shorter ways for most characters. What ICU
/// refuses stays as it is. From any thread.
[[nodiscard]] QString foldedByTables(const QString& text, LetterI letterI);

} // namespace vellumry::text
