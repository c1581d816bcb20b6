// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/KeyCode.h"
#include "platform/display/Modifiers.h"

#include <QByteArray>
#include <QHashFunctions>
#include <QString>
#include <QVariant>
#include <optional>
#include <utility>

namespace vellumry {

class KeyboardLayout;

/// One key combination. A value; any thread.
struct Shortcut {
    KeyCode keyCode{};
    Modifiers modifiers;

    bool operator==(const Shortcut&) const = default;

    /// What was pressed while recording. Nothing without Command, Control or Option, and for a modifier key itself.
    [[nodiscard]] static std::optional<Shortcut> create(KeyCode keyCode, Modifiers modifiers);

    /// Open or close the panel, unless the user chose another.
    [[nodiscard]] static Shortcut openPanelDefault();
    /// Start or stop the Paste Stack, unless the user chose another.
    [[nodiscard]] static Shortcut pasteStackDefault();
    /// Pastes the pinned clip `number`, 1 to 9.
    [[nodiscard]] static Shortcut pinned(int number);

    /// JSON with the integers "keyCode" and "modifiers", the values of `KeyCode` and `Modifier`.
    [[nodiscard]] QByteArray toJson() const;
    /// Reads a stored preference. Nothing when it is missing, no bytes, no JSON, or holds numbers out of range.
    [[nodiscard]] static std::optional<Shortcut> fromStored(const QVariant& value);

    /// The words for the combination: modifiers in a fixed order, then the key. "#" and the code for a key that
    /// `layout` has no character for. Main thread.
    [[nodiscard]] QString display(const KeyboardLayout& layout) const;
};

[[nodiscard]] inline size_t qHash(const Shortcut& shortcut, size_t seed = 0) {
    return qHashMulti(seed, std::to_underlying(shortcut.keyCode), shortcut.modifiers);
}

/// The key of the digit `number`, 1 to 9, in the row above the letters.
[[nodiscard]] KeyCode keyCodeOfDigit(int number);
/// The digit, 1 to 9, that sits on a key of that row; nothing for any other key.
[[nodiscard]] std::optional<int> digitOfKeyCode(KeyCode keyCode);

} // namespace vellumry
