// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtEndian>

/// Hexadecimal digits, eight at a time: a start reads a hundred for each clip.
namespace vellumry::hexdigits {

/// Writes the four bytes that eight lower-case digits stand for; false, and any bytes, for anything else. Pure; any
/// thread.
[[nodiscard]] inline bool readEight(const char* digits, char* bytes) {
    constexpr quint64 each = 0x0101010101010101; // one in each byte
    const auto text = qFromLittleEndian<quint64>(digits);
    const quint64 isLetter = text >> 6 & each;
    const quint64 values = (text & 0x0F * each) + 9 * isLetter;
    // Written again, they must be what was read.
    const quint64 isAboveNine = (values + 6 * each) >> 4 & each;
    const bool areDigits = (values & 0xF0 * each) == 0 && values + '0' * each + ('a' - '0' - 10) * isAboveNine == text;
    quint64 packed = (values << 4 | values >> 8) & 0x00FF00FF00FF00FF;
    packed = (packed | packed >> 8) & 0x0000FFFF0000FFFF;
    packed |= packed >> 16;
    qToLittleEndian(static_cast<quint32>(packed), bytes);
    return areDigits;
}

} // namespace vellumry::hexdigits
