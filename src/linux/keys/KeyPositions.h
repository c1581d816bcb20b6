// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/keys/KeyCodes.h"

#include <array>
#include <functional>
#include <optional>

namespace vellumry {

/// Which physical key a key code means on the user's layout: a letter's code means the key that types this
/// letter, so that Ctrl+V stays on the key marked V; every other code means its place. The two directions are inverse
/// to each other: keys that lost their code to a letter take the codes that the letters left. Without Latin letters all
/// codes mean their places. A value.
class KeyPositions {
public:
    /// `typed` says what the key of an evdev code types without modifiers, in lower case.
    explicit KeyPositions(const std::function<std::optional<char16_t>(quint32 evdevCode)>& typed);

    [[nodiscard]] std::optional<quint32> evdevCode(KeyCode key) const;
    [[nodiscard]] std::optional<KeyCode> keyCode(quint32 evdevCode) const;

private:
    std::array<quint32, keycodes::count> m_evdevCodes{}; ///< by key code
};

} // namespace vellumry
