// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/keys/KeyPositions.h"
#include "linux/x11/windows/XlibConnection.h"
#include "platform/display/Modifiers.h"

#include <QString>
#include <array>
#include <vector>

namespace vellumry {

/// One look at the server's keyboard map: what keys type without modifiers in each of the user's layouts (groups), and
/// which modifier bits they set. Cheap enough to take anew whenever it is needed. A value.
class X11Keymap {
public:
    static constexpr quint32 keyCount = 256;

    /// Asks the server. An empty map when it has no keyboard extension.
    [[nodiscard]] static X11Keymap read(XlibConnection& connection);

    /// The X key code of a key; nothing where the keyboard has no such key.
    [[nodiscard]] std::optional<quint32> keycodeFor(KeyCode key) const;
    [[nodiscard]] std::optional<KeyCode> keyOf(quint32 keycode) const;
    /// What the key types without modifiers in the layout that shortcuts go by: the first with Latin letters, else the
    /// first.
    [[nodiscard]] std::optional<QString> charactersFor(quint32 keycode) const;
    /// What the key types without modifiers in the layout of that group.
    [[nodiscard]] std::optional<QString> charactersFor(quint32 keycode, unsigned int group) const;
    /// The key that types the letter in the layout in use, else in another one, else the one in its place on a US
    /// keyboard.
    [[nodiscard]] quint32 keycodeTyping(char16_t letter, quint32 place) const;
    /// All keys that type the letter in any of the layouts.
    [[nodiscard]] std::vector<quint32> keycodesTyping(char16_t letter) const;
    /// The user switched to another of the layouts since the look was taken.
    void setActiveGroup(unsigned int group) { m_activeGroup = group; }
    /// A key that carries the symbol, `place` when none does.
    [[nodiscard]] quint32 keycodeOf(unsigned long symbol, quint32 place) const;

    /// The X modifier mask; nothing when the keyboard lacks one of the modifiers.
    [[nodiscard]] std::optional<unsigned int> maskFor(Modifiers modifiers) const;
    /// All bits that a shortcut may ask for.
    [[nodiscard]] unsigned int shortcutMask() const;
    /// The bits of Caps Lock and Num Lock in all combinations, none included: a shortcut works whatever is locked.
    [[nodiscard]] std::vector<unsigned int> lockCombinations() const;

private:
    [[nodiscard]] std::optional<char16_t> typed(quint32 keycode, unsigned int group) const;
    [[nodiscard]] unsigned int latinGroup() const;
    [[nodiscard]] KeyPositions positions() const;
    [[nodiscard]] unsigned int bitsOf(unsigned long leftSymbol, unsigned long rightSymbol) const;

    std::array<std::vector<unsigned long>, keyCount> m_symbols;
    std::array<quint8, keyCount> m_modifiers{};
    unsigned int m_activeGroup = 0;
};

} // namespace vellumry
