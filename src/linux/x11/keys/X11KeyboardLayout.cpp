// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/keys/X11KeyboardLayout.h"

#include "linux/x11/keys/X11Keymap.h"

namespace vellumry {

X11KeyboardLayout::X11KeyboardLayout(std::shared_ptr<XlibConnection> connection)
    : m_connection(std::move(connection)) {}

std::optional<KeyCode> X11KeyboardLayout::keyCodeFor(QChar character) const {
    const X11Keymap keymap = X11Keymap::read(*m_connection);
    const QString wanted = QString(character.toLower());
    for (quint32 keycode = 0; keycode < X11Keymap::keyCount; ++keycode) {
        if (keymap.charactersFor(keycode) != wanted)
            continue;
        if (const auto key = keymap.keyOf(keycode))
            return key;
    }
    return std::nullopt;
}

std::optional<QString> X11KeyboardLayout::charactersFor(KeyCode keyCode) const {
    const X11Keymap keymap = X11Keymap::read(*m_connection);
    const auto keycode = keymap.keycodeFor(keyCode);
    return keycode.has_value() ? keymap.charactersFor(*keycode) : std::nullopt;
}

std::optional<KeyCode> X11KeyboardLayout::keyCodeOfScanCode(quint32 nativeScanCode) const {
    return X11Keymap::read(*m_connection).keyOf(nativeScanCode);
}

} // namespace vellumry
