// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// Where the language data of Tesseract lies. Looks at the disk; any thread.
namespace vellumry::languagedata {

/// Where the packages of the distributions put it, the user's choice ($TESSDATA_PREFIX) first; last what is installed
/// with the program, as in an AppImage: the system may have more languages. Needs a QCoreApplication.
[[nodiscard]] QStringList folders();

/// The languages whose data is in `folder`, as the library names them: "eng", "deu", …
[[nodiscard]] QStringList languagesIn(const QString& folder);

} // namespace vellumry::languagedata
