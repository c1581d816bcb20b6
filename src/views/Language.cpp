// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/Language.h"

#include "foundation/Localisation.h"

namespace vellumry {

QLocale interfaceLocale() {
    // Each catalogue gives the code of its language as the translation of "en".
    const QLocale language(localised("en"));
    const QLocale users;
    return users.language() == language.language() ? users : language;
}

} // namespace vellumry
