// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/KeyCode.h"

#include <QtGlobal>
#include <optional>
#include <ranges>

/// The two numberings of a keyboard's physical keys: the program's own `KeyCode` and the evdev codes of
/// linux/input-event-codes.h. An X key code is the evdev code and 8. Pure functions; any thread.
namespace vellumry::keycodes {

inline constexpr quint32 count = 128;
/// X numbers its keys from 8 on.
inline constexpr quint32 xOffset = 8;

/// The evdev code of the key in that place; nothing where a PC keyboard has none.
[[nodiscard]] std::optional<quint32> evdevCode(KeyCode key);
[[nodiscard]] std::optional<KeyCode> keyCode(quint32 evdevCode);
/// The lower-case letter that the key carries on a US keyboard; nothing for keys that carry no letter.
[[nodiscard]] std::optional<char16_t> letter(KeyCode key);

/// All key codes in their order, those without a key included.
[[nodiscard]] inline auto all() {
    return std::views::iota(0U, count) | std::views::transform([](quint32 number) { return KeyCode(number); });
}

} // namespace vellumry::keycodes
