// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/keys/X11Keymap.h"

#include <QChar>
#include <xkbcommon/xkbcommon.h>

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/keysym.h>

namespace vellumry {

namespace {

constexpr unsigned int groupCount = XkbNumKbdGroups;
/// A layout is taken for a Latin one with this many of the 26 letters.
constexpr int latinLetters = 20;

} // namespace

X11Keymap X11Keymap::read(XlibConnection& connection) {
    X11Keymap result;
    if (!connection.keyboardEvents().has_value())
        return result;
    XkbDescPtr map = XkbGetMap(connection.display(), XkbAllClientInfoMask, XkbUseCoreKbd);
    if (map == nullptr)
        return result;
    for (quint32 key = map->min_key_code; key <= map->max_key_code && map->map != nullptr; ++key) {
        for (int group = 0; group < int(XkbKeyNumGroups(map, key)); ++group) {
            const bool isEmpty = XkbKeyGroupWidth(map, key, group) == 0;
            result.m_symbols[key].push_back(isEmpty ? NoSymbol : XkbKeySymEntry(map, key, 0, group));
        }
        if (map->map->modmap != nullptr)
            result.m_modifiers[key] = map->map->modmap[key];
    }
    XkbFreeKeyboard(map, XkbAllComponentsMask, True);
    XkbStateRec state;
    if (XkbGetState(connection.display(), XkbUseCoreKbd, &state) == Success)
        result.m_activeGroup = state.group;
    return result;
}

std::optional<char16_t> X11Keymap::typed(quint32 keycode, unsigned int group) const {
    if (keycode >= keyCount || m_symbols[keycode].empty())
        return std::nullopt;
    const auto& symbols = m_symbols[keycode];
    const char32_t character = xkb_keysym_to_utf32(xkb_keysym_t(symbols[group % symbols.size()]));
    if (character == 0 || character > 0xffff || QChar::category(character) == QChar::Other_Control)
        return std::nullopt;
    return char16_t(QChar::toLower(character));
}

unsigned int X11Keymap::latinGroup() const {
    for (unsigned int group = 0; group < groupCount; ++group) {
        int letters = 0;
        for (quint32 key = 0; key < keyCount; ++key) {
            const auto character = typed(key, group);
            letters += character.has_value() && *character >= u'a' && *character <= u'z';
        }
        if (letters >= latinLetters)
            return group;
    }
    return 0;
}

KeyPositions X11Keymap::positions() const {
    const unsigned int group = latinGroup();
    return KeyPositions([this, group](quint32 evdevCode) { return typed(evdevCode + keycodes::xOffset, group); });
}

std::optional<quint32> X11Keymap::keycodeFor(KeyCode key) const {
    const auto code = positions().evdevCode(key);
    return code.has_value() ? std::optional(*code + keycodes::xOffset) : std::nullopt;
}

std::optional<KeyCode> X11Keymap::keyOf(quint32 keycode) const {
    return keycode < keycodes::xOffset ? std::nullopt : positions().keyCode(keycode - keycodes::xOffset);
}

std::optional<QString> X11Keymap::charactersFor(quint32 keycode) const {
    return charactersFor(keycode, latinGroup());
}

std::optional<QString> X11Keymap::charactersFor(quint32 keycode, unsigned int group) const {
    const auto character = typed(keycode, group);
    return character.has_value() ? std::optional(QString(QChar(*character))) : std::nullopt;
}

quint32 X11Keymap::keycodeTyping(char16_t letter, quint32 place) const {
    std::vector<unsigned int> groups = {m_activeGroup};
    for (unsigned int group = 0; group < groupCount; ++group)
        groups.push_back(group);
    for (const unsigned int group : groups) {
        for (quint32 key = 0; key < keyCount; ++key) {
            if (typed(key, group) == letter)
                return key;
        }
    }
    return place;
}

std::vector<quint32> X11Keymap::keycodesTyping(char16_t letter) const {
    std::vector<quint32> keycodes;
    for (quint32 key = 0; key < keyCount; ++key) {
        for (unsigned int group = 0; group < groupCount; ++group) {
            if (typed(key, group) == letter) {
                keycodes.push_back(key);
                break;
            }
        }
    }
    return keycodes;
}

quint32 X11Keymap::keycodeOf(unsigned long symbol, quint32 place) const {
    for (quint32 key = 0; key < keyCount; ++key) {
        if (!m_symbols[key].empty() && m_symbols[key].front() == symbol)
            return key;
    }
    return place;
}

unsigned int X11Keymap::bitsOf(unsigned long leftSymbol, unsigned long rightSymbol) const {
    for (const unsigned long symbol : {leftSymbol, rightSymbol}) {
        for (quint32 key = 0; key < keyCount; ++key) {
            if (m_modifiers[key] != 0 && !m_symbols[key].empty() && m_symbols[key].front() == symbol)
                return m_modifiers[key];
        }
    }
    return 0;
}

std::optional<unsigned int> X11Keymap::maskFor(Modifiers modifiers) const {
    const std::array<std::pair<Modifier, unsigned int>, 4> bits{{{Modifier::command, ControlMask},
                                                                 {Modifier::shift, ShiftMask},
                                                                 {Modifier::option, bitsOf(XK_Alt_L, XK_Alt_R)},
                                                                 {Modifier::control, bitsOf(XK_Super_L, XK_Super_R)}}};
    unsigned int mask = 0;
    for (const auto& [modifier, bit] : bits) {
        if (!modifiers.testFlag(modifier))
            continue;
        // Without the bit the grab would take a simpler combination from every program: Ctrl+V for Super+Ctrl+V.
        if (bit == 0)
            return std::nullopt;
        mask |= bit;
    }
    return mask;
}

unsigned int X11Keymap::shortcutMask() const {
    return ControlMask | ShiftMask | bitsOf(XK_Alt_L, XK_Alt_R) | bitsOf(XK_Super_L, XK_Super_R);
}

std::vector<unsigned int> X11Keymap::lockCombinations() const {
    const unsigned int numLock = bitsOf(XK_Num_Lock, XK_Num_Lock);
    std::vector<unsigned int> combinations = {0, LockMask};
    if (numLock != 0) {
        combinations.push_back(numLock);
        combinations.push_back(numLock | LockMask);
    }
    return combinations;
}

} // namespace vellumry
