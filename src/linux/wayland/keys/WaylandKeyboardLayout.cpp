// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/keys/WaylandKeyboardLayout.h"

namespace vellumry {

std::optional<KeyCode> WaylandKeyboardLayout::keyCodeFor(QChar character) const {
    const QString wanted(character.toLower());
    for (const KeyCode key : keycodes::all()) {
        if (charactersFor(key) == wanted)
            return key;
    }
    return std::nullopt;
}

std::optional<QString> WaylandKeyboardLayout::charactersFor(KeyCode keyCode) const {
    const auto evdevCode = m_keymap->positions().evdevCode(keyCode);
    return evdevCode ? m_keymap->charactersFor(*evdevCode) : std::nullopt;
}

std::optional<KeyCode> WaylandKeyboardLayout::keyCodeOfScanCode(quint32 nativeScanCode) const {
    if (nativeScanCode < keycodes::xOffset)
        return std::nullopt;
    return m_keymap->positions().keyCode(nativeScanCode - keycodes::xOffset);
}

} // namespace vellumry
