// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/EventFlags.h"

#include <QByteArray>
#include <QHashFunctions>
#include <QString>
#include <QVariant>
#include <optional>

namespace vellumry {

class KeyboardLayout;

/// The bits of `Shortcut::modifiers`. On this desktop Command is Ctrl, Option is Alt and Control is the Super key.
namespace shortcutmodifier {
inline constexpr quint32 command = 0x100;
inline constexpr quint32 shift = 0x200;
inline constexpr quint32 option = 0x800;
inline constexpr quint32 control = 0x1000;
} // namespace shortcutmodifier

/// One key combination. A value; any thread.
struct Shortcut {
    quint32 keyCode = 0;   ///< virtual key code: a physical position
    quint32 modifiers = 0; ///< bits of `shortcutmodifier`

    bool operator==(const Shortcut&) const = default;

    /// What was pressed while recording. Nothing without Command, Control or Option, and for a modifier key itself.
    [[nodiscard]] static std::optional<Shortcut> create(quint16 keyCode, quint32 flags);

    /// Open or close the panel, unless the user chose another.
    [[nodiscard]] static Shortcut openPanelDefault();
    /// Start or stop the Paste Stack, unless the user chose another.
    [[nodiscard]] static Shortcut pasteStackDefault();
    /// Pastes the pinned clip `number`, 1 to 9.
    [[nodiscard]] static Shortcut pinned(int number);

    /// JSON with the integers "keyCode" and "modifiers".
    [[nodiscard]] QByteArray toJson() const;
    /// Reads a stored preference. Nothing when it is missing, no bytes, no JSON, or holds numbers out of range.
    [[nodiscard]] static std::optional<Shortcut> fromStored(const QVariant& value);

    /// The words for the combination: modifiers in a fixed order, then the key. "#" and the code for a key that
    /// `layout` has no character for. Main thread.
    [[nodiscard]] QString display(const KeyboardLayout& layout) const;
};

[[nodiscard]] inline size_t qHash(const Shortcut& shortcut, size_t seed = 0) {
    return qHashMulti(seed, shortcut.keyCode, shortcut.modifiers);
}

/// The key code of the digit `number`, 1 to 9, in the row above the letters.
[[nodiscard]] quint16 keyCodeOfDigit(int number);
/// The digit, 1 to 9, that sits on a key of that row; nothing for any other key.
[[nodiscard]] std::optional<int> digitOfKeyCode(quint16 keyCode);

} // namespace vellumry
