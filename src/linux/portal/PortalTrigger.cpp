// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/portal/PortalTrigger.h"

#include <array>
#include <utility>
#include <xkbcommon/xkbcommon.h>

namespace vellumry {

QString portalTrigger(QChar character, Modifiers modifiers) {
    std::array<char, 64> name{};
    const xkb_keysym_t symbol = xkb_utf32_to_keysym(character.toLower().unicode());
    if (symbol == XKB_KEY_NoSymbol || xkb_keysym_get_name(symbol, name.data(), name.size()) <= 0)
        return {};
    QString trigger;
    for (const auto& [modifier, written] :
         {std::pair(Modifier::command, "CTRL+"), std::pair(Modifier::option, "ALT+"),
          std::pair(Modifier::shift, "SHIFT+"), std::pair(Modifier::control, "LOGO+")}) {
        if (modifiers.testFlag(modifier))
            trigger += QLatin1String(written);
    }
    return trigger + QLatin1String(name.data());
}

} // namespace vellumry
