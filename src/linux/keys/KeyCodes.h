// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <optional>

/// The two numberings of a keyboard's physical keys: the virtual key codes that shortcuts are stored in (0 to 127) and
/// the evdev codes of linux/input-event-codes.h. An X key code is the evdev code and 8. Pure functions; any thread.
namespace vellumry::KeyCodes {

inline constexpr quint32 virtualKeyCount = 128;
/// X numbers its keys from 8 on.
inline constexpr quint32 xOffset = 8;

/// The evdev code of the key in that place; nothing where a PC keyboard has none.
[[nodiscard]] std::optional<quint32> evdevCode(quint32 virtualKey);
[[nodiscard]] std::optional<quint32> virtualKey(quint32 evdevCode);
/// The lower-case letter that the key carries on a US keyboard; nothing for keys that carry no letter.
[[nodiscard]] std::optional<char16_t> letter(quint32 virtualKey);

} // namespace vellumry::KeyCodes
