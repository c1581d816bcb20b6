// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Text.h"
#include "foundation/TextFoldingByTables.h"

#include <QLocale>
#include <algorithm>
#include <array>

namespace vellumry::text {

namespace {

LetterI letterIOfCurrentLocale() {
    const QLocale::Language language = QLocale().language();
    return language == QLocale::Turkish || language == QLocale::Azerbaijani ? LetterI::Turkic : LetterI::Dotted;
}

/// The folding of one scalar of two UTF-8 bytes, which no neighbour can change.
struct ShortFolding {
    std::array<char, 7> bytes{};
    quint8 length = 0;
};
using ShortFoldings = std::array<ShortFolding, 0x800>;

const ShortFoldings& shortFoldings() {
    static const ShortFoldings table = [] {
        ShortFoldings result;
        for (char16_t scalar = 0x80; scalar < 0x800; ++scalar) {
            const QByteArray utf8 = foldedByTables(QString(QChar(scalar)), LetterI::Dotted).toUtf8();
            ShortFolding& entry = result[scalar];
            Q_ASSERT(utf8.size() <= static_cast<qsizetype>(entry.bytes.size()));
            entry.length = static_cast<quint8>(utf8.size());
            std::copy(utf8.begin(), utf8.end(), entry.bytes.begin());
        }
        return result;
    }();
    return table;
}

inline char asciiLower(char byte) {
    return static_cast<char>(byte | (static_cast<unsigned char>(byte - 'A') < 26 ? 0x20 : 0));
}

bool isAscii(char byte) {
    return static_cast<signed char>(byte) >= 0;
}

/// Lowers the ASCII bytes at the front of [from, end) into `to` and answers how many they were. Whole blocks first: a
/// loop of fixed length is what compilers turn into vector code.
qsizetype lowerAsciiRun(const char* from, const char* end, char* to) {
    constexpr qsizetype block = 64;
    const char* cursor = from;
    while (end - cursor >= block) {
        unsigned char seen = 0;
        for (qsizetype i = 0; i < block; ++i)
            seen |= static_cast<unsigned char>(cursor[i]);
        if (seen & 0x80)
            break;
        for (qsizetype i = 0; i < block; ++i)
            to[i] = asciiLower(cursor[i]);
        cursor += block;
        to += block;
    }
    while (cursor < end && isAscii(*cursor))
        *to++ = asciiLower(*cursor++);
    return cursor - from;
}

/// Scalars of three bytes that fold to themselves whatever stands beside them.
bool standsForItself(char32_t scalar) {
    return (scalar >= 0x2010 && scalar <= 0x205F) || (scalar >= 0x3001 && scalar <= 0x3029) ||
           (scalar >= 0x3400 && scalar <= 0x4DBF) || (scalar >= 0x4E00 && scalar <= 0x9FFF);
}

/// Kana and Hangul syllables, which fold to themselves unless a part of a character follows.
bool standsForItselfAmongWhole(char32_t scalar) {
    return (scalar >= 0x3041 && scalar <= 0x3096) || (scalar >= 0x30A1 && scalar <= 0x30FA) || scalar == 0x30FC ||
           (scalar >= 0xAC00 && scalar <= 0xD7A3);
}

/// No scalar's folding takes more than this for each byte of the scalar, and the last may be written with the rest of
/// its table entry.
constexpr qsizetype mostBytesPerByte = 4;
constexpr qsizetype entrySize = 8;

/// Folds a run of bytes that are not ASCII, scalar by scalar, and answers where the result ends; null when a scalar
/// needs the full tables or its neighbours.
char* foldByScalars(const char* from, const char* end, char* out) {
    const ShortFoldings& table = shortFoldings();
    const auto trail = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; };
    bool mustBeWhole = false;
    bool hasDropped = false;
    while (from < end) {
        const auto lead = static_cast<unsigned char>(*from);
        if (lead >= 0xC2 && lead <= 0xDF && end - from >= 2 && trail(from[1])) {
            const ShortFolding& entry = table[static_cast<std::size_t>((lead & 0x1F) << 6 | (from[1] & 0x3F))];
            // All of the entry, because a copy of fixed length needs no call.
            std::copy(entry.bytes.begin(), entry.bytes.end(), out);
            out += entry.length;
            hasDropped |= entry.length == 0;
            from += 2;
        } else if (lead >= 0xE2 && lead <= 0xEF && end - from >= 3 && trail(from[1]) && trail(from[2])) {
            const char32_t scalar = (lead & 0x0Fu) << 12 | (from[1] & 0x3Fu) << 6 | (from[2] & 0x3Fu);
            const bool isWhole = standsForItselfAmongWhole(scalar);
            if (scalar >= 0xFF01 && scalar <= 0xFF5E)
                *out++ = asciiLower(static_cast<char>(scalar - 0xFEE0));
            else if (isWhole || standsForItself(scalar))
                out = std::copy_n(from, 3, out);
            else
                return nullptr;
            mustBeWhole |= isWhole;
            from += 3;
        } else if (lead == 0xF0 && end - from >= 4 && static_cast<unsigned char>(from[1]) == 0x9F && trail(from[2]) &&
                   trail(from[3]) && static_cast<unsigned char>(from[2]) < 0xAC) {
            out = std::copy_n(from, 4, out); // U+1F000…U+1FAFF, the pictographs
            from += 4;
        } else
            return nullptr;
    }
    return mustBeWhole && hasDropped ? nullptr : out;
}

QByteArray foldedUtf8(const QByteArray& utf8, LetterI letterI) {
    if (letterI == LetterI::Turkic)
        return foldedByTables(QString::fromUtf8(utf8), letterI).toUtf8();
    QByteArray result(utf8.size() + entrySize, Qt::Uninitialized);
    const char* from = utf8.constData();
    const char* const end = from + utf8.size();
    qsizetype length = lowerAsciiRun(from, end, result.data());
    from += length;
    while (from < end) {
        const char* const runEnd = std::find_if(from, end, isAscii);
        result.resize(std::max(result.size(), length + mostBytesPerByte * (runEnd - from) + entrySize));
        if (const char* const folded = foldByScalars(from, runEnd, result.data() + length)) {
            length = folded - result.constData();
        } else {
            result.truncate(length);
            result += foldedByTables(QString::fromUtf8(from, runEnd - from), letterI).toUtf8();
            length = result.size();
        }
        result.resize(std::max(result.size(), length + (end - runEnd) + entrySize));
        const qsizetype ascii = lowerAsciiRun(runEnd, end, result.data() + length);
        length += ascii;
        from = runEnd + ascii;
    }
    result.truncate(length);
    return result;
}

} // namespace

QByteArray foldedBytes(const QByteArray& utf8) {
    return foldedUtf8(utf8, letterIOfCurrentLocale());
}

QByteArray foldedBytes(QStringView text) {
    return foldedBytes(text.toUtf8());
}

bool foldsToLowerCase(QByteArrayView utf8) {
    // Without an early way out, so that the compiler can look at many bytes at a time.
    quint8 any = 0;
    for (const char byte : utf8)
        any |= static_cast<quint8>(byte);
    return any < 0x80 && letterIOfCurrentLocale() == LetterI::Dotted;
}

QString folded(QStringView text) {
    return QString::fromUtf8(foldedBytes(text));
}

QString foldedWithoutLocale(QStringView text) {
    return QString::fromUtf8(foldedUtf8(text.toUtf8(), LetterI::Dotted));
}

} // namespace vellumry::text
