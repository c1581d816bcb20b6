// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/keys/KeyCodes.h"

#include <algorithm>
#include <array>
#include <linux/input-event-codes.h>
#include <string_view>
#include <utility>

namespace vellumry::keycodes {

namespace {

/// One row for eight key codes; 0 where there is no such key. Command, Option and Control stand where the
/// program has them on a PC keyboard: Ctrl, Alt and Super.
// clang-format off
constexpr std::array<quint16, count> evdevCodes = {
    KEY_A, KEY_S, KEY_D, KEY_F, KEY_H, KEY_G, KEY_Z, KEY_X, // 0
    KEY_C, KEY_V, KEY_102ND, KEY_B, KEY_Q, KEY_W, KEY_E, KEY_R, // 8
    KEY_Y, KEY_T, KEY_1, KEY_2, KEY_3, KEY_4, KEY_6, KEY_5, // 16
    KEY_EQUAL, KEY_9, KEY_7, KEY_MINUS, KEY_8, KEY_0, KEY_RIGHTBRACE, KEY_O, // 24
    KEY_U, KEY_LEFTBRACE, KEY_I, KEY_P, KEY_ENTER, KEY_L, KEY_J, KEY_APOSTROPHE, // 32
    KEY_K, KEY_SEMICOLON, KEY_BACKSLASH, KEY_COMMA, KEY_SLASH, KEY_N, KEY_M, KEY_DOT, // 40
    KEY_TAB, KEY_SPACE, KEY_GRAVE, KEY_BACKSPACE, 0, KEY_ESC, KEY_RIGHTCTRL, KEY_LEFTCTRL, // 48
    KEY_LEFTSHIFT, KEY_CAPSLOCK, KEY_LEFTALT, KEY_LEFTMETA, KEY_RIGHTSHIFT, KEY_RIGHTALT, KEY_RIGHTMETA, 0, // 56
    KEY_F17, KEY_KPDOT, 0, KEY_KPASTERISK, 0, KEY_KPPLUS, 0, KEY_NUMLOCK, // 64
    KEY_VOLUMEUP, KEY_VOLUMEDOWN, KEY_MUTE, KEY_KPSLASH, KEY_KPENTER, 0, KEY_KPMINUS, KEY_F18, // 72
    KEY_F19, KEY_KPEQUAL, KEY_KP0, KEY_KP1, KEY_KP2, KEY_KP3, KEY_KP4, KEY_KP5, // 80
    KEY_KP6, KEY_KP7, KEY_F20, KEY_KP8, KEY_KP9, KEY_YEN, KEY_RO, KEY_KPJPCOMMA, // 88
    KEY_F5, KEY_F6, KEY_F7, KEY_F3, KEY_F8, KEY_F9, KEY_MUHENKAN, KEY_F11, // 96
    KEY_KATAKANAHIRAGANA, KEY_F13, KEY_F16, KEY_F14, 0, KEY_F10, KEY_COMPOSE, KEY_F12, // 104
    0, KEY_F15, KEY_INSERT, KEY_HOME, KEY_PAGEUP, KEY_DELETE, KEY_F4, KEY_END, // 112
    KEY_F2, KEY_PAGEDOWN, KEY_F1, KEY_LEFT, KEY_RIGHT, KEY_DOWN, KEY_UP, 0, // 120
};
// clang-format on

/// The letters of the key codes 0 to 46 on a US keyboard; a blank where the key carries none.
constexpr std::u16string_view letters = u"asdfhgzxcv bqweryt             ou ip lj k    nm";

} // namespace

std::optional<quint32> evdevCode(KeyCode key) {
    const auto number = std::to_underlying(key);
    if (number >= count || evdevCodes[number] == 0)
        return std::nullopt;
    return evdevCodes[number];
}

std::optional<KeyCode> keyCode(quint32 evdevCode) {
    const auto* const found = std::ranges::find(evdevCodes, evdevCode);
    if (evdevCode == 0 || found == evdevCodes.end())
        return std::nullopt;
    return KeyCode(found - evdevCodes.begin());
}

std::optional<char16_t> letter(KeyCode key) {
    const auto number = std::to_underlying(key);
    if (number >= letters.size() || letters[number] == u' ')
        return std::nullopt;
    return letters[number];
}

} // namespace vellumry::keycodes
