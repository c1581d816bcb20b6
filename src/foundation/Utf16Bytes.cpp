// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Utf16Bytes.h"

#include <QtEndian>
#include <cstring>

namespace vellumry::utf16bytes {

namespace {

/// Eight units at a time, in registers of the processor: a start converts all that was ever copied.
constexpr qsizetype blockUnits = 8;
constexpr qsizetype blockBytes = blockUnits * 2;
using Units = quint16 __attribute__((vector_size(blockBytes)));
using Halves = quint64 __attribute__((vector_size(blockBytes)));
using Bytes = quint8 __attribute__((vector_size(blockUnits)));

Units unitsAt(const char* bigEndian) {
    Units units;
    std::memcpy(&units, bigEndian, sizeof units);
    return Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? units << 8 | units >> 8 : units;
}

bool isZero(Units units) {
    Halves halves;
    std::memcpy(&halves, &units, sizeof units);
    return (halves[0] | halves[1]) == 0;
}

/// One in each unit for which the comparison holds.
template <typename Mask>
Units counted(Mask mask) {
    Units ones;
    std::memcpy(&ones, &mask, sizeof ones);
    return ones & 1;
}

/// Bytes that a unit takes beyond the first, half of a pair two in all.
int extraBytes(char16_t unit) {
    return int{unit >= 0x80} + int{unit >= 0x800} - int{QChar::isSurrogate(unit)};
}

/// The bytes of the text in UTF-8, if no surrogate in it stands alone.
qsizetype utf8Size(QByteArrayView bigEndian) {
    constexpr int mostBlocks = 10'000; // of two extra bytes at most: more would leave sixteen bits
    const char* in = bigEndian.data();
    const char* const end = in + bigEndian.size();
    qsizetype size = bigEndian.size() / 2;
    while (end - in >= blockBytes) {
        Units extra{};
        for (int i = 0; i < mostBlocks && end - in >= blockBytes; ++i, in += blockBytes) {
            const Units units = unitsAt(in);
            extra += counted(units >= 0x80) + counted(units >= 0x800) - counted((units & 0xF800) == 0xD800);
        }
        for (qsizetype i = 0; i < blockUnits; ++i)
            size += extra[i];
    }
    for (; in < end; in += 2)
        size += extraBytes(qFromBigEndian<char16_t>(in));
    return size;
}

char* writeAscii(char* out, Units units) {
    const Bytes bytes = __builtin_convertvector(units, Bytes);
    std::memcpy(out, &bytes, sizeof bytes);
    return out + sizeof bytes;
}

/// All below U+0800: words of most alphabets and what stands between them. Writes one byte beyond the end that it
/// returns. No branch depends on a unit: of mixed words it would be foreseen wrongly half of the time.
char* writeOneOrTwoBytesEach(char* out, Units units) {
    const Units more = counted(units >= 0x80);
    const Units isLong = -more;
    const Units first = (units & ~isLong) | ((0xC0 | units >> 6) & isLong);
    const Units pairs = first | (0x80 | (units & 0x3F)) << 8;
    for (qsizetype i = 0; i < blockUnits; ++i) {
        qToLittleEndian(quint16{pairs[i]}, out);
        out += 1 + more[i];
    }
    return out;
}

/// All from U+0800 on, without surrogates.
char* writeThreeBytesEach(char* out, Units units) {
    for (qsizetype i = 0; i < blockUnits; ++i) {
        *out++ = static_cast<char>(0xE0 | units[i] >> 12);
        *out++ = static_cast<char>(0x80 | (units[i] >> 6 & 0x3F));
        *out++ = static_cast<char>(0x80 | (units[i] & 0x3F));
    }
    return out;
}

/// Writes a block of one kind, behind which at least one more byte follows, and returns the end; null for a mixed one.
char* writeBlock(char* out, Units units) {
    if (isZero(units & 0xFF80))
        return writeAscii(out, units);
    if (isZero(units & 0xF800))
        return writeOneOrTwoBytesEach(out, units);
    const bool areLong = isZero(counted(units < 0x800)) && isZero(counted((units & 0xF800) == 0xD800));
    return areLong ? writeThreeBytesEach(out, units) : nullptr;
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

/// Writes the next unit, or pair, and moves `in` behind it; null when a surrogate stands alone.
char* writeNext(const char*& in, const char* end, char* out) {
    char32_t scalar = qFromBigEndian<quint16>(in);
    in += 2;
    if (QChar::isSurrogate(scalar)) {
        const quint16 low = in < end ? qFromBigEndian<quint16>(in) : 0;
        if (!QChar::isHighSurrogate(scalar) || !QChar::isLowSurrogate(low))
            return nullptr;
        scalar = QChar::surrogateToUcs4(static_cast<char16_t>(scalar), low);
        in += 2;
    }
    return writeScalar(out, scalar);
}

/// Writes all of it; false when a surrogate stands alone.
bool convert(QByteArrayView bigEndian, char* out) {
    const char* in = bigEndian.data();
    const char* const end = in + bigEndian.size();
    while (in < end) {
        const char* blockEnd = in + 2;
        if (end - in > blockBytes) {
            if (char* const written = writeBlock(out, unitsAt(in))) {
                out = written;
                in += blockBytes;
                continue;
            }
            blockEnd = in + blockBytes;
        }
        while (out && in < blockEnd)
            out = writeNext(in, end, out);
        if (!out)
            return false;
    }
    return true;
}

} // namespace

QString toString(QByteArrayView bigEndian) {
    QString string(bigEndian.size() / 2, Qt::Uninitialized);
    qFromBigEndian<char16_t>(bigEndian.data(), string.size(), string.data());
    return string;
}

std::optional<QByteArray> toUtf8(QByteArrayView bigEndian) {
    QByteArray utf8(utf8Size(bigEndian), Qt::Uninitialized);
    if (!convert(bigEndian, utf8.data()))
        return std::nullopt;
    return utf8;
}

} // namespace vellumry::utf16bytes
