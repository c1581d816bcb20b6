// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Utf16Bytes.h"

#include <QtEndian>

namespace vellumry::utf16bytes {

namespace {

// Words of one script come in runs, so four units at a time are tried before each single one. In the numbers below the
// first unit is the lowest sixteen bits.
constexpr quint64 everyUnit(quint64 unit) {
    return unit | unit << 16 | unit << 32 | unit << 48;
}

quint64 fourUnits(const char* bigEndian) {
    const auto units = qFromBigEndian<quint64>(bigEndian);
    return units >> 48 | (units >> 16 & 0xFFFF0000u) | (units << 16 & 0xFFFF00000000u) | units << 48;
}

bool areAscii(quint64 units) {
    return (units & everyUnit(0xFF80)) == 0;
}

/// All from U+0080 to U+07FF: most alphabets but the Latin.
bool takeTwoBytesEach(quint64 units) {
    const bool isBelow = (units & everyUnit(0xF800)) == 0;
    return isBelow && ((units + everyUnit(0x7F80)) & everyUnit(0x8000)) == everyUnit(0x8000);
}

char* writeAscii(char* out, quint64 units) {
    for (int i = 0; i < 4; ++i)
        *out++ = static_cast<char>(units >> 16 * i);
    return out;
}

char* writeTwoBytesEach(char* out, quint64 units) {
    const quint64 bytes = (units >> 6 & everyUnit(0x1F)) | everyUnit(0x80C0) | (units & everyUnit(0x3F)) << 8;
    qToLittleEndian(bytes, out);
    return out + sizeof bytes;
}

char* writeScalar(char* out, char32_t scalar) {
    const auto byte = [&out](char32_t value) { *out++ = static_cast<char>(value); };
    if (scalar < 0x80) {
        byte(scalar);
        return out;
    }
    if (scalar < 0x800) {
        byte(0xC0 | scalar >> 6);
    } else {
        if (scalar < 0x10000) {
            byte(0xE0 | scalar >> 12);
        } else {
            byte(0xF0 | scalar >> 18);
            byte(0x80 | (scalar >> 12 & 0x3F));
        }
        byte(0x80 | (scalar >> 6 & 0x3F));
    }
    byte(0x80 | (scalar & 0x3F));
    return out;
}

/// Writes all of it and returns the end; null when a surrogate stands alone.
char* convert(QByteArrayView bigEndian, char* out) {
    const char* in = bigEndian.data();
    const char* const end = in + bigEndian.size();
    while (in < end) {
        if (end - in >= 8) {
            const quint64 units = fourUnits(in);
            const bool isAscii = areAscii(units);
            if (isAscii || takeTwoBytesEach(units)) {
                out = isAscii ? writeAscii(out, units) : writeTwoBytesEach(out, units);
                in += 8;
                continue;
            }
        }
        char32_t scalar = qFromBigEndian<quint16>(in);
        in += 2;
        if (QChar::isSurrogate(scalar)) {
            const quint16 low = in < end ? qFromBigEndian<quint16>(in) : 0;
            if (!QChar::isHighSurrogate(scalar) || !QChar::isLowSurrogate(low))
                return nullptr;
            scalar = QChar::surrogateToUcs4(static_cast<char16_t>(scalar), low);
            in += 2;
        }
        out = writeScalar(out, scalar);
    }
    return out;
}

} // namespace

QString toString(QByteArrayView bigEndian) {
    QString string(bigEndian.size() / 2, Qt::Uninitialized);
    qFromBigEndian<char16_t>(bigEndian.data(), string.size(), string.data());
    return string;
}

std::optional<QByteArray> toUtf8(QByteArrayView bigEndian) {
    // No unit takes more than three bytes, and the two of a pair four together.
    QByteArray room(bigEndian.size() / 2 * 3, Qt::Uninitialized);
    const char* const end = convert(bigEndian, room.data());
    if (!end)
        return std::nullopt;
    return QByteArray(room.constData(), end - room.constData());
}

} // namespace vellumry::utf16bytes
