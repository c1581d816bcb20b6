// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/InterfaceLocale.h"

#include "foundation/Localisation.h"

namespace vellumry {

QLocale usersLocaleIn(const QString& language) {
    const QLocale wanted(language);
    const QLocale users;
    return users.language() == wanted.language() ? users : wanted;
}

QLocale interfaceLocale() {
    // Each catalogue gives the code of its language as the translation of "en".
    return usersLocaleIn(localised("en"));
}

} // namespace vellumry
