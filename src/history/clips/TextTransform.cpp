// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/TextTransform.h"

#include "foundation/Localisation.h"
#include "foundation/Text.h"

#include <QStringList>
#include <functional>
#include <unicode/casemap.h>
#include <unicode/uchar.h>

namespace vellumry {

namespace {

/// One of ICU's case mappings with everything but the text bound: source, its length, target, its room, status.
using CaseMapping = std::function<int32_t(const char16_t*, int32_t, char16_t*, int32_t, UErrorCode&)>;

/// The text as it stood where ICU has no mapping for it.
QString mapped(const QString& text, const CaseMapping& mapping) {
    const auto length = static_cast<int32_t>(text.size());
    const auto* const source = reinterpret_cast<const char16_t*>(text.utf16());
    QString result(text.size(), Qt::Uninitialized);
    UErrorCode status = U_ZERO_ERROR;
    int32_t needed = mapping(source, length, reinterpret_cast<char16_t*>(result.data()), length, status);
    if (status == U_BUFFER_OVERFLOW_ERROR) {
        result.resize(needed);
        status = U_ZERO_ERROR;
        needed = mapping(source, length, reinterpret_cast<char16_t*>(result.data()), needed, status);
    }
    if (U_FAILURE(status) != 0)
        return text;
    result.resize(needed);
    return result;
}

QString lowercased(const QString& text, const QLocale& locale) {
    const QByteArray name = locale.name().toLatin1();
    return mapped(text,
                  [&](const char16_t* source, int32_t length, char16_t* target, int32_t room, UErrorCode& status) {
                      return icu::CaseMap::toLower(name.constData(), 0, source, length, target, room, nullptr, status);
                  });
}

QString uppercased(const QString& text, const QLocale& locale) {
    const QByteArray name = locale.name().toLatin1();
    return mapped(text,
                  [&](const char16_t* source, int32_t length, char16_t* target, int32_t room, UErrorCode& status) {
                      return icu::CaseMap::toUpper(name.constData(), 0, source, length, target, room, nullptr, status);
                  });
}

QString capitalized(const QString& text, const QLocale& locale) {
    const QByteArray name = locale.name().toLatin1();
    return mapped(
        text, [&](const char16_t* source, int32_t length, char16_t* target, int32_t room, UErrorCode& status) {
            return icu::CaseMap::toTitle(name.constData(), 0, nullptr, source, length, target, room, nullptr, status);
        });
}

UChar32 firstScalar(QStringView character) {
    const bool isPair = character.size() > 1 && character[0].isHighSurrogate() && character[1].isLowSurrogate();
    return isPair ? static_cast<UChar32>(QChar::surrogateToUcs4(character[0], character[1]))
                  : static_cast<UChar32>(character[0].unicode());
}

/// Walks a text that has been lower-cased and finds the letters that open its sentences.
class SentenceWalk {
public:
    /// True when `character` is to be a capital; characters are shown to it in order.
    bool opensSentence(QStringView character) {
        const UChar32 scalar = firstScalar(character);
        const bool isOpen = text::isNewline(static_cast<char32_t>(scalar)) || m_isPending ||
                            (m_isAfterEnd && u_hasBinaryProperty(scalar, UCHAR_WHITE_SPACE) != 0);
        const bool isLetter = u_hasBinaryProperty(scalar, UCHAR_ALPHABETIC) != 0;
        const bool isNumber = u_getIntPropertyValue(scalar, UCHAR_NUMERIC_TYPE) != U_NT_NONE;
        m_isPending = isOpen && !isLetter && !isNumber;
        m_isAfterEnd = character == u"." || character == u"!" || character == u"?";
        return isOpen && isLetter;
    }

private:
    bool m_isPending = true;   ///< the next letter opens a sentence
    bool m_isAfterEnd = false; ///< the character before was a full stop or its like
};

QString sentenceCased(const QString& text, const QLocale& locale) {
    QString result;
    result.reserve(text.size());
    SentenceWalk walk;
    const QString lower = lowercased(text, locale);
    text::forEachCharacter(lower, [&](QStringView character) {
        if (walk.opensSentence(character))
            result += uppercased(character.toString(), locale);
        else
            result += character;
        return true;
    });
    return result;
}

QString withTrimmedLines(const QString& text) {
    QStringList lines = text::lines(text);
    for (QString& line : lines)
        line = text::trimmedOfWhitespace(line);
    return text::trimmed(lines.join(u'\n'));
}

QString withoutLineBreaks(const QString& text) {
    QStringList kept;
    for (const QString& line : text::lines(text))
        if (const QString trimmed = text::trimmedOfWhitespace(line); !trimmed.isEmpty())
            kept << trimmed;
    return kept.join(u' ');
}

} // namespace

QString apply(TextTransform transform, const QString& text, const QLocale& locale) {
    switch (transform) {
    case TextTransform::lowercase:
        return lowercased(text, locale);
    case TextTransform::uppercase:
        return uppercased(text, locale);
    case TextTransform::titleCase:
        return capitalized(text, locale);
    case TextTransform::sentenceCase:
        return sentenceCased(text, locale);
    case TextTransform::trimWhitespace:
        return withTrimmedLines(text);
    case TextTransform::removeLineBreaks:
        return withoutLineBreaks(text);
    }
    Q_UNREACHABLE();
}

QString transformTitle(TextTransform transform) {
    switch (transform) {
    case TextTransform::lowercase:
        return localised("lowercase");
    case TextTransform::uppercase:
        return localised("UPPERCASE");
    case TextTransform::titleCase:
        return localised("Title Case");
    case TextTransform::sentenceCase:
        return localised("Sentence case");
    case TextTransform::trimWhitespace:
        return localised("Trim Spaces");
    case TextTransform::removeLineBreaks:
        return localised("Remove Line Breaks");
    }
    Q_UNREACHABLE();
}

QString rawValue(TextTransform transform) {
    switch (transform) {
    case TextTransform::lowercase:
        return QStringLiteral("lowercase");
    case TextTransform::uppercase:
        return QStringLiteral("uppercase");
    case TextTransform::titleCase:
        return QStringLiteral("titleCase");
    case TextTransform::sentenceCase:
        return QStringLiteral("sentenceCase");
    case TextTransform::trimWhitespace:
        return QStringLiteral("trimWhitespace");
    case TextTransform::removeLineBreaks:
        return QStringLiteral("removeLineBreaks");
    }
    Q_UNREACHABLE();
}

} // namespace vellumry
