// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/KeyCode.h"

#include <QString>
#include <optional>

namespace vellumry {

/// The letters on the keys of the layout the user types with. Main thread; asked anew at each use, so a change of
/// layout counts at once.
class KeyboardLayout {
public:
    virtual ~KeyboardLayout() = default;
    /// The key that types `character` without modifiers; nothing when none of the 128 does.
    [[nodiscard]] virtual std::optional<KeyCode> keyCodeFor(QChar character) const = 0;
    /// What the key types without modifiers; nothing when the layout does not say.
    [[nodiscard]] virtual std::optional<QString> charactersFor(KeyCode keyCode) const = 0;
    /// The key that Qt reports with this native scan code; nothing for a key without a key code.
    [[nodiscard]] virtual std::optional<KeyCode> keyCodeOfScanCode(quint32 nativeScanCode) const = 0;
};

} // namespace vellumry
