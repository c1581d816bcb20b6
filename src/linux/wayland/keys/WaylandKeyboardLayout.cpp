// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/keys/WaylandKeyboardLayout.h"

namespace vellumry {

std::optional<quint32> WaylandKeyboardLayout::keyCodeFor(QChar character) const {
    const QString wanted(character.toLower());
    for (quint32 key = 0; key < KeyCodes::virtualKeyCount; ++key) {
        if (charactersFor(key) == wanted)
            return key;
    }
    return std::nullopt;
}

std::optional<QString> WaylandKeyboardLayout::charactersFor(quint32 keyCode) const {
    const auto evdevCode = m_keymap->positions().evdevCode(keyCode);
    return evdevCode ? m_keymap->charactersFor(*evdevCode) : std::nullopt;
}

std::optional<quint32> WaylandKeyboardLayout::keyCodeOfScanCode(quint32 nativeScanCode) const {
    if (nativeScanCode < KeyCodes::xOffset)
        return std::nullopt;
    return m_keymap->positions().virtualKey(nativeScanCode - KeyCodes::xOffset);
}

} // namespace vellumry
