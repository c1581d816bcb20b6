// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace vellumry {

/// A physical key by its place, named after a US keyboard: the virtual key codes that shortcuts are stored in, 0 to
/// 127. On this desktop the Command keys are Ctrl, the Option keys Alt and the Control keys Super. A stored shortcut
/// may hold any other number, which is no key then.
enum class KeyCode : quint32 {
    a = 0,
    s = 1,
    d = 2,
    f = 3,
    h = 4,
    g = 5,
    z = 6,
    x = 7,
    c = 8,
    v = 9,
    b = 11,
    q = 12,
    w = 13,
    e = 14,
    r = 15,
    y = 16,
    t = 17,
    o = 31,
    u = 32,
    i = 34,
    p = 35,
    l = 37,
    j = 38,
    k = 40,
    n = 45,
    m = 46,

    // The row above the letters.
    digit1 = 18,
    digit2 = 19,
    digit3 = 20,
    digit4 = 21,
    digit5 = 23,
    digit6 = 22,
    digit7 = 26,
    digit8 = 28,
    digit9 = 25,
    digit0 = 29,

    enter = 36,
    tab = 48,
    space = 49,
    backspace = 51,
    escape = 53,
    insert = 114,
    forwardDelete = 117,
    home = 115,
    end = 119,
    pageUp = 116,
    pageDown = 121,
    left = 123,
    right = 124,
    down = 125,
    up = 126,

    command = 55,
    rightCommand = 54,
    shift = 56,
    rightShift = 60,
    option = 58,
    rightOption = 61,
    control = 59,
    rightControl = 62,
    capsLock = 57,
    function = 63,

    f1 = 122,
    f2 = 120,
    f3 = 99,
    f4 = 118,
    f5 = 96,
    f6 = 97,
    f7 = 98,
    f8 = 100,
    f9 = 101,
    f10 = 109,
    f11 = 103,
    f12 = 111,
};

} // namespace vellumry
