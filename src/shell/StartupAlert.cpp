// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/StartupAlert.h"

#include "foundation/Localisation.h"

namespace vellumry {

std::optional<StartupAlert> startupAlert(bool isMemoryOnly, bool recoveredFromDamage) {
    if (isMemoryOnly)
        return StartupAlert{
            localised("Vellumry can't reach your Keychain"),
            localised("Your clipboard history will only be kept until you quit Vellumry. Restarting your Mac "
                      "usually fixes this.")};
    if (recoveredFromDamage)
        return StartupAlert{
            localised("Vellumry started a fresh history"),
            localised("Your previous history couldn't be read on this Mac, so it was kept as a backup in "
                      "Vellumry's folder and a new one was started.")};
    return std::nullopt;
}

} // namespace vellumry
