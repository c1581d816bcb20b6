// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>

namespace vellumry {

/// The letters on the keys of the layout the user types with. Virtual key codes are physical positions, the same
/// numbers as in stored shortcuts. Main thread; asked anew at each use, so a change of layout counts at once.
class KeyboardLayout {
public:
    virtual ~KeyboardLayout() = default;
    /// The key that types `character` without modifiers; nothing when none of the 128 does.
    [[nodiscard]] virtual std::optional<quint32> keyCodeFor(QChar character) const = 0;
    /// What the key types without modifiers; nothing when the layout does not say.
    [[nodiscard]] virtual std::optional<QString> charactersFor(quint32 keyCode) const = 0;
    /// The virtual key code of the key that Qt reports with this native scan code; nothing for a key without one.
    [[nodiscard]] virtual std::optional<quint32> keyCodeOfScanCode(quint32 nativeScanCode) const = 0;
};

} // namespace vellumry
