// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Text.h"

#include <limits>
#include <memory>
#include <unicode/ubrk.h>
#include <utility>
#include <vector>

namespace vellumry::text {

namespace {

/// Below this scalar nothing joins with what stands before it, but a line feed with a carriage return.
constexpr char16_t firstJoiningUnit = 0x0300;

struct BreakIteratorCloser {
    void operator()(UBreakIterator* iterator) const { ubrk_close(iterator); }
};

using BreakIterator = std::unique_ptr<UBreakIterator, BreakIteratorCloser>;

/// Opening a break iterator costs more than most texts do, so each thread keeps those that it has opened: as many as
/// walks have been inside each other. Null when ICU has no tables.
class BreakIterators {
public:
    [[nodiscard]] static BreakIterator take() {
        std::vector<BreakIterator>& idle = ofThisThread();
        if (idle.empty()) {
            UErrorCode status = U_ZERO_ERROR;
            return BreakIterator(ubrk_open(UBRK_CHARACTER, "", nullptr, 0, &status));
        }
        BreakIterator iterator = std::move(idle.back());
        idle.pop_back();
        return iterator;
    }
    static void giveBack(BreakIterator iterator) {
        // It outlives the text that it looks into.
        UErrorCode status = U_ZERO_ERROR;
        ubrk_setText(iterator.get(), u"", 0, &status);
        ofThisThread().push_back(std::move(iterator));
    }

private:
    static std::vector<BreakIterator>& ofThisThread() {
        thread_local std::vector<BreakIterator> idle;
        return idle;
    }
};

/// Walks over the characters of a text. Units that cannot join stand for themselves; the tables are asked for the rest
/// only.
class CharacterWalker {
public:
    explicit CharacterWalker(QStringView text)
        : m_text(text) {}
    ~CharacterWalker() {
        if (m_iterator)
            BreakIterators::giveBack(std::move(m_iterator));
    }
    CharacterWalker(const CharacterWalker&) = delete;
    CharacterWalker& operator=(const CharacterWalker&) = delete;

    [[nodiscard]] bool atEnd() const { return m_position >= m_text.size(); }
    [[nodiscard]] qsizetype position() const { return m_position; }

    void advance() {
        const qsizetype next = m_position + 1;
        if (next >= m_text.size()) {
            m_position = m_text.size();
            return;
        }
        const char16_t unit = m_text[m_position].unicode();
        const char16_t following = m_text[next].unicode();
        const bool simple = unit < firstJoiningUnit && following < firstJoiningUnit;
        m_position = simple ? (unit == u'\r' && following == u'\n' ? next + 1 : next) : boundaryAfter(m_position);
    }

private:
    qsizetype boundaryAfter(qsizetype position) {
        if (!m_iterator && m_text.size() <= std::numeric_limits<int32_t>::max()) {
            m_iterator = BreakIterators::take();
            if (m_iterator)
                ubrk_setText(m_iterator.get(), m_text.utf16(), static_cast<int32_t>(m_text.size()), &m_status);
        }
        if (!m_iterator || U_FAILURE(m_status))
            return position + 1;
        const int32_t boundary = ubrk_following(m_iterator.get(), static_cast<int32_t>(position));
        return boundary == UBRK_DONE ? m_text.size() : boundary;
    }

    QStringView m_text;
    qsizetype m_position = 0;
    BreakIterator m_iterator; ///< taken for the first characters that need it
    UErrorCode m_status = U_ZERO_ERROR;
};

template <typename Predicate>
QString trimmedOf(const QString& text, Predicate goes) {
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && goes(text[begin].unicode()))
        ++begin;
    while (end > begin && goes(text[end - 1].unicode()))
        --end;
    return begin == 0 && end == text.size() ? text : text.mid(begin, end - begin);
}

/// Whole blocks first: a loop of fixed length is what compilers turn into vector code.
template <typename Unit>
bool areAscii(const Unit* units, qsizetype count) {
    constexpr qsizetype block = 64;
    Unit seen = 0;
    for (; count >= block && seen < 0x80; units += block, count -= block)
        for (qsizetype at = 0; at < block; ++at)
            seen |= units[at];
    for (qsizetype at = 0; at < count; ++at)
        seen |= units[at];
    return seen < 0x80;
}

} // namespace

bool isAscii(QStringView text) {
    return areAscii(text.utf16(), text.size());
}

bool isAscii(QByteArrayView bytes) {
    return areAscii(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
}

qsizetype characterCount(QStringView text) {
    qsizetype count = 0;
    for (CharacterWalker walker(text); !walker.atEnd(); walker.advance())
        ++count;
    return count;
}

bool hasMoreCharactersThan(QStringView text, qsizetype limit) {
    // A character has at least one unit.
    if (text.size() <= limit)
        return false;
    CharacterWalker walker(text);
    for (qsizetype count = 0; count < limit && !walker.atEnd(); ++count)
        walker.advance();
    return !walker.atEnd();
}

QString firstCharacters(const QString& text, qsizetype count) {
    if (text.size() <= count)
        return text;
    CharacterWalker walker(text);
    for (qsizetype taken = 0; taken < count && !walker.atEnd(); ++taken)
        walker.advance();
    return walker.atEnd() ? text : text.left(walker.position());
}

void forEachCharacter(QStringView text, const std::function<bool(QStringView)>& visit) {
    CharacterWalker walker(text);
    while (!walker.atEnd()) {
        const qsizetype begin = walker.position();
        walker.advance();
        if (!visit(text.sliced(begin, walker.position() - begin)))
            return;
    }
}

bool isNewline(char32_t scalar) {
    return (scalar >= 0x0A && scalar <= 0x0D) || scalar == 0x85 || scalar == 0x2028 || scalar == 0x2029;
}

bool isWhitespace(char32_t scalar) {
    if (scalar < 0x80)
        return scalar == ' ' || scalar == '\t';
    return QChar::category(scalar) == QChar::Separator_Space;
}

bool isWhitespaceOrNewline(char32_t scalar) {
    return isWhitespace(scalar) || isNewline(scalar);
}

QString trimmed(const QString& text) {
    return trimmedOf(text, isWhitespaceOrNewline);
}
QString trimmedOfWhitespace(const QString& text) {
    return trimmedOf(text, isWhitespace);
}
QString trimmedOfNewlines(const QString& text) {
    return trimmedOf(text, isNewline);
}

bool isBlank(QStringView text) {
    for (const QChar unit : text) {
        if (!isWhitespaceOrNewline(unit.unicode()))
            return false;
    }
    return true;
}

QStringList lines(QStringView text) {
    QStringList result;
    qsizetype begin = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!isNewline(text[i].unicode()))
            continue;
        result.append(text.sliced(begin, i - begin).toString());
        if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n')
            ++i;
        begin = i + 1;
    }
    result.append(text.sliced(begin).toString());
    return result;
}

std::optional<QString> fromUtf8(const QByteArray& bytes) {
    if (!bytes.isValidUtf8())
        return std::nullopt;
    return QString::fromUtf8(bytes);
}

} // namespace vellumry::text
