// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/look/LinuxDesktopLook.h"

#include <utility>

namespace vellumry {

LinuxDesktopLook::LinuxDesktopLook(const Places& places)
    : m_scalesText(places.scalesText)
    , m_portal(places.introduction, [this] { combine(); }) {
    if (places.isPlasma && places.folders)
        m_plasma = std::make_unique<KdeGlobals>(places.configFolder, *places.folders, [this] { combine(); });
}

void LinuxDesktopLook::setXSettings(const SaidLook& said) {
    m_xSettings = said;
    combine();
}

void LinuxDesktopLook::combine() {
    SaidLook portal = m_portal.said();
    if (!m_scalesText)
        portal.textScale.reset();
    const DesktopLook look = lookOf({portal, m_plasma ? m_plasma->said() : SaidLook(), m_xSettings});
    if (std::exchange(m_look, look) != look)
        onChanged();
}

} // namespace vellumry
