// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/RtfParser.h"

#include "foundation/RtfVocabulary.h"

#include <algorithm>
#include <utility>

namespace vellumry {

namespace {

constexpr std::size_t deepest = 512;
constexpr std::size_t mostColors = 4096;

bool isLetter(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}
bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

int hexValue(char byte) {
    if (isDigit(byte))
        return byte - '0';
    const char lower = static_cast<char>(byte | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

} // namespace

std::optional<QString> RtfParser::text() {
    return walk() ? std::optional(std::move(m_text.text)) : std::nullopt;
}

std::optional<StyledText> RtfParser::styledText() {
    if (!walk())
        return std::nullopt;
    m_text.finish();
    return std::move(m_text);
}

bool RtfParser::walk() {
    if (!m_rtf.startsWith("{\\rtf"))
        return false;
    do {
        if (!step())
            return false;
    } while (!m_groups.empty());
    flushBytes();
    return true;
}

bool RtfParser::step() {
    if (m_position >= m_rtf.size())
        return false;
    const char byte = m_rtf[m_position++];
    switch (byte) {
    case '{':
        return openGroup();
    case '}':
        closeGroup();
        return true;
    case '\\':
        return readControl();
    case '\r':
    case '\n':
    case '\0':
        return true;
    default:
        m_groups.back().isMarkedIgnorable = false;
        appendByte(byte);
        return true;
    }
}

bool RtfParser::openGroup() {
    if (m_groups.size() >= deepest)
        return false;
    m_fallbackLeft = 0;
    Group inner = m_groups.empty() ? Group{.style = rtf::plainStyle} : m_groups.back();
    inner.isMarkedIgnorable = false;
    m_groups.push_back(inner);
    return true;
}

void RtfParser::closeGroup() {
    m_fallbackLeft = 0;
    m_groups.pop_back();
}

bool RtfParser::readControl() {
    if (m_position >= m_rtf.size())
        return false;
    const char first = m_rtf[m_position];
    if (!isLetter(first)) {
        ++m_position;
        applySymbol(first);
        return true;
    }
    const ControlWord word = readControlWord();
    if (word.name == "bin") {
        // Raw bytes follow, braces and backslashes among them.
        const int length = std::max(word.parameter.value_or(0), 0);
        if (length > m_rtf.size() - m_position)
            return false;
        m_position += length;
        (void)consumesFallback();
        return true;
    }
    apply(word);
    return true;
}

RtfParser::ControlWord RtfParser::readControlWord() {
    const qsizetype begin = m_position;
    while (m_position < m_rtf.size() && isLetter(m_rtf[m_position]))
        ++m_position;
    ControlWord word{m_rtf.sliced(begin, m_position - begin), std::nullopt};
    const auto digitAt = [this](qsizetype at) { return at < m_rtf.size() && isDigit(m_rtf[at]); };
    const bool isNegative = m_position < m_rtf.size() && m_rtf[m_position] == '-' && digitAt(m_position + 1);
    if (isNegative)
        ++m_position;
    if (digitAt(m_position)) {
        qint64 value = 0;
        for (; digitAt(m_position); ++m_position)
            value = std::min<qint64>(value * 10 + (m_rtf[m_position] - '0'), 0x7FFF'FFFF);
        word.parameter = static_cast<int>(isNegative ? -value : value);
    }
    // One space belongs to the word.
    if (m_position < m_rtf.size() && m_rtf[m_position] == ' ')
        ++m_position;
    return word;
}

void RtfParser::applySymbol(char symbol) {
    Group& group = m_groups.back();
    if (symbol == '*') {
        group.isMarkedIgnorable = true;
        return;
    }
    group.isMarkedIgnorable = false;
    switch (symbol) {
    case '\'':
        return readHexadecimal();
    case '\\':
    case '{':
    case '}':
        return appendByte(symbol);
    case '~':
        return append(u'\u00A0');
    case '_':
        return append(u'\u2011');
    case '\r':
        if (m_position < m_rtf.size() && m_rtf[m_position] == '\n')
            ++m_position;
        return append(u'\n');
    case '\n':
        return append(u'\n');
    case '\t':
        return append(u'\t');
    default:
        // An optional hyphen and index marks show nothing.
        (void)consumesFallback();
    }
}

void RtfParser::readHexadecimal() {
    const int high = m_position + 1 < m_rtf.size() ? hexValue(m_rtf[m_position]) : -1;
    const int low = m_position + 1 < m_rtf.size() ? hexValue(m_rtf[m_position + 1]) : -1;
    if (high < 0 || low < 0)
        return;
    m_position += 2;
    appendByte(static_cast<char>(high << 4 | low));
}

void RtfParser::apply(const ControlWord& word) {
    const bool isDestination = applyDestination(word.name);
    m_groups.back().isMarkedIgnorable = false;
    if (isDestination || applyToTables(word) || applyToState(word))
        return;
    if (word.name == "u" && word.parameter) {
        append(static_cast<char16_t>(*word.parameter));
        m_fallbackLeft = m_groups.back().fallbackLength;
        return;
    }
    if (const std::optional<char16_t> character = rtf::characterOf(word.name.toByteArray()))
        return append(*character);
    applyToStyle(word);
    (void)consumesFallback();
}

bool RtfParser::applyDestination(QByteArrayView name) {
    Group& group = m_groups.back();
    if (name == "fonttbl") {
        group.destination = Destination::FontTable;
        return true;
    }
    if (name == "colortbl") {
        group.destination = Destination::ColorTable;
        return true;
    }
    // \* marks what an unknowing reader leaves out. Of these we know none but the tables.
    if (group.isMarkedIgnorable || rtf::isIgnoredDestination(name.toByteArray())) {
        group.destination = Destination::Ignored;
        return true;
    }
    return false;
}

bool RtfParser::consumesFallback() {
    if (m_fallbackLeft == 0)
        return false;
    --m_fallbackLeft;
    return true;
}

void RtfParser::append(char16_t unit) {
    if (consumesFallback() || m_groups.back().destination != Destination::Body)
        return;
    flushBytes();
    const QChar character(unit);
    m_text.append(QStringView(&character, 1), m_groups.back().style);
}

void RtfParser::appendByte(char byte) {
    const Group& group = m_groups.back();
    if (group.destination == Destination::ColorTable && byte == ';' && m_colors.size() < mostColors)
        m_colors.push_back(std::exchange(m_definedColor, std::nullopt));
    if (consumesFallback() || group.destination != Destination::Body)
        return;
    const int codePage = group.codePage != 0 ? group.codePage : m_documentCodePage;
    if (codePage != m_bytesCodePage || group.style != m_bytesStyle)
        flushBytes();
    m_bytesCodePage = codePage;
    m_bytesStyle = group.style;
    m_bytes.append(byte);
}

void RtfParser::flushBytes() {
    if (m_bytes.isEmpty())
        return;
    m_text.append(m_decoder.decoded(m_bytes, m_bytesCodePage), m_bytesStyle);
    m_bytes.truncate(0);
}

} // namespace vellumry
