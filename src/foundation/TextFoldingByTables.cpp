// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/TextFoldingByTables.h"

#include <array>
#include <unicode/uchar.h>
#include <unicode/unorm2.h>
#include <unicode/uscript.h>
#include <unicode/ustring.h>
#include <utility>

namespace vellumry::text {

namespace {

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

/// What `convert` makes of a text, in a buffer that is `room` units long at first: it writes at most so many units, and
/// answers how many it wanted. What it refuses stays as it is.
template <typename Convert>
QString converted(const QString& text, qsizetype room, Convert convert) {
    QString result(room, Qt::Uninitialized);
    for (;;) {
        UErrorCode status = U_ZERO_ERROR;
        const int32_t length =
            convert(reinterpret_cast<UChar*>(result.data()), static_cast<int32_t>(result.size()), &status);
        if (U_SUCCESS(status)) {
            result.truncate(length);
            return result;
        }
        if (status != U_BUFFER_OVERFLOW_ERROR)
            return text;
        result.resize(length + 1);
    }
}

QString normalized(const UNormalizer2* form, const QString& text) {
    // Canonical decomposition makes at most four units of one; what fits the first try is nearly everything.
    return converted(text, text.size() + text.size() / 2 + 16, [&](UChar* out, int32_t capacity, UErrorCode* status) {
        return unorm2_normalize(form, QStringView(text).utf16(), static_cast<int32_t>(text.size()), out, capacity,
                                status);
    });
}

QString caseFolded(const QString& text, LetterI letterI) {
    const uint32_t options = letterI == LetterI::Turkic ? U_FOLD_CASE_EXCLUDE_SPECIAL_I : U_FOLD_CASE_DEFAULT;
    return converted(text, text.size() + text.size() / 4 + 16, [&](UChar* out, int32_t capacity, UErrorCode* status) {
        return u_strFoldCase(out, capacity, QStringView(text).utf16(), static_cast<int32_t>(text.size()), options,
                             status);
    });
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

} // namespace

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

} // namespace vellumry::text
