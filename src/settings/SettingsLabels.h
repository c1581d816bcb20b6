// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The words of the values that pickers offer. Pure functions of the number and the language; any value has a label.
namespace vellumry::settingslabels {

/// An age limit in days; 0 means none.
[[nodiscard]] QString days(qint64 count);
/// How many clips are kept.
[[nodiscard]] QString clips(qint64 count);
/// Space in mebibytes.
[[nodiscard]] QString megabytes(qint64 count);
/// A lifetime in seconds, in whole minutes or hours where it has some.
[[nodiscard]] QString lifetime(qint64 seconds);
/// How many clips the menu lists; 0 hides them.
[[nodiscard]] QString recent(qint64 count);
/// When it was looked for updates, that many seconds ago.
[[nodiscard]] QString lastChecked(double secondsAgo);
/// 0 to 2: as the desktop, light, dark.
[[nodiscard]] QString appearance(qint64 value);

} // namespace vellumry::settingslabels
