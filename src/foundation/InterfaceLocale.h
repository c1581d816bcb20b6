// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLocale>

namespace vellumry {

/// The locale of a language, as "pt_BR"; the user's own where that is of the same language. Any thread.
[[nodiscard]] QLocale usersLocaleIn(const QString& language);

/// The language that our words are in, with the user's own habits where the user speaks it. Digits, names of days and
/// the direction of writing follow it, so that no sentence is half in one language. The texts of clips follow the
/// user's locale. Any thread.
[[nodiscard]] QLocale interfaceLocale();

} // namespace vellumry
