// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Text.h"

#include <QLocale>
#include <algorithm>
#include <array>
#include <unicode/uchar.h>
#include <unicode/unorm2.h>
#include <unicode/uscript.h>
#include <unicode/ustring.h>

namespace vellumry::text {

namespace {

enum class LetterI { Dotted, Turkic };

LetterI letterIOfCurrentLocale() {
    const QLocale::Language language = QLocale().language();
    return language == QLocale::Turkish || language == QLocale::Azerbaijani ? LetterI::Turkic : LetterI::Dotted;
}

/// Marks that a reader leaves out when he types the word: the accents of alphabets and vowel points of abjads. Vowel
/// signs of Indic and Thai writing and the voicing marks of kana make another letter and stay.
bool isDroppedMark(UChar32 scalar) {
    if (scalar < 0x0300 || u_charType(scalar) != U_NON_SPACING_MARK)
        return false;
    if (scalar == 0x3099 || scalar == 0x309A)
        return false;
    UErrorCode status = U_ZERO_ERROR;
    switch (uscript_getScript(scalar, &status)) {
    case USCRIPT_INHERITED:
    case USCRIPT_COMMON:
    case USCRIPT_LATIN:
    case USCRIPT_GREEK:
    case USCRIPT_COPTIC:
    case USCRIPT_CYRILLIC:
    case USCRIPT_GLAGOLITIC:
    case USCRIPT_ARMENIAN:
    case USCRIPT_HEBREW:
    case USCRIPT_ARABIC:
    case USCRIPT_SYRIAC:
        return true;
    default:
        return false;
    }
}

QString withoutDroppedMarks(const QString& text) {
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size();) {
        const qsizetype begin = i;
        UChar32 scalar = 0;
        U16_NEXT(QStringView(text).utf16(), i, text.size(), scalar);
        if (!isDroppedMark(scalar))
            result.append(QStringView(text).sliced(begin, i - begin));
    }
    return result;
}

/// Full-width and half-width forms as the ordinary characters they stand for.
QString withOrdinaryWidth(const QString& text) {
    QString result;
    result.reserve(text.size());
    UErrorCode status = U_ZERO_ERROR;
    const UNormalizer2* compatibility = unorm2_getNFKDInstance(&status);
    for (const QChar unit : text) {
        const bool candidate = unit == u'\u3000' || (unit >= u'\uFF01' && unit <= u'\uFFEE');
        const int kind = candidate ? u_getIntPropertyValue(unit.unicode(), UCHAR_DECOMPOSITION_TYPE) : U_DT_NONE;
        std::array<UChar, 8> ordinary{};
        int32_t length = -1;
        if (kind == U_DT_WIDE || kind == U_DT_NARROW)
            length =
                unorm2_getRawDecomposition(compatibility, unit.unicode(), ordinary.data(), ordinary.size(), &status);
        if (length > 0 && U_SUCCESS(status))
            result.append(QStringView(ordinary.data(), length));
        else
            result.append(unit);
    }
    return result;
}

QString normalized(const UNormalizer2* form, const QString& text) {
    // Canonical decomposition makes at most four units of one; what fits the first try is nearly everything.
    QString result(text.size() + text.size() / 2 + 16, Qt::Uninitialized);
    for (;;) {
        UErrorCode status = U_ZERO_ERROR;
        const int32_t length =
            unorm2_normalize(form, QStringView(text).utf16(), static_cast<int32_t>(text.size()),
                             reinterpret_cast<UChar*>(result.data()), static_cast<int32_t>(result.size()), &status);
        if (U_SUCCESS(status)) {
            result.truncate(length);
            return result;
        }
        if (status != U_BUFFER_OVERFLOW_ERROR)
            return text;
        result.resize(length + 1);
    }
}

QString caseFolded(const QString& text, LetterI letterI) {
    QString result(text.size() + text.size() / 4 + 16, Qt::Uninitialized);
    const uint32_t options = letterI == LetterI::Turkic ? U_FOLD_CASE_EXCLUDE_SPECIAL_I : U_FOLD_CASE_DEFAULT;
    for (;;) {
        UErrorCode status = U_ZERO_ERROR;
        const int32_t length =
            u_strFoldCase(reinterpret_cast<UChar*>(result.data()), static_cast<int32_t>(result.size()),
                          QStringView(text).utf16(), static_cast<int32_t>(text.size()), options, &status);
        if (U_SUCCESS(status)) {
            result.truncate(length);
            return result;
        }
        if (status != U_BUFFER_OVERFLOW_ERROR)
            return text;
        result.resize(length + 1);
    }
}

/// In Turkic writing the dot of the capital is the letter, not an accent: the decomposed İ becomes i before marks go.
QString withDottedCapitalsLowered(QString decomposed) {
    for (qsizetype i = 0; i < decomposed.size(); ++i) {
        if (decomposed[i] != u'I')
            continue;
        for (qsizetype j = i + 1; j < decomposed.size() && u_getCombiningClass(decomposed[j].unicode()) != 0; ++j) {
            if (decomposed[j] != u'\u0307')
                continue;
            decomposed[i] = u'i';
            break;
        }
    }
    return decomposed;
}

QString foldedByTables(const QString& text, LetterI letterI) {
    UErrorCode status = U_ZERO_ERROR;
    const UNormalizer2* decompose = unorm2_getNFDInstance(&status);
    const UNormalizer2* compose = unorm2_getNFCInstance(&status);
    QString result = normalized(decompose, withOrdinaryWidth(text));
    if (letterI == LetterI::Turkic)
        result = withDottedCapitalsLowered(std::move(result));
    result = caseFolded(withoutDroppedMarks(result), letterI);
    // Case folding itself may bring marks (ǰ) and composed letters.
    result = withoutDroppedMarks(normalized(decompose, result));
    return normalized(compose, result);
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
