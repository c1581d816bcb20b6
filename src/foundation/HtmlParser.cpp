// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/HtmlParser.h"

#include <algorithm>

namespace vellumry {

namespace {

constexpr std::size_t deepest = 128;
constexpr qsizetype longestReference = 10;
constexpr int deepestIndent = 8;
/// What a reader's window never gets to; the rest is passed over.
constexpr qsizetype longestText = 400'000;

const QString* find(const std::vector<std::pair<QString, QString>>& attributes, QLatin1String name) {
    const auto found = std::ranges::find_if(attributes, [name](const auto& entry) { return entry.first == name; });
    return found == attributes.end() ? nullptr : &found->second;
}

} // namespace

StyledText HtmlParser::styledText() {
    while (m_position < m_html.size() && m_text.text.size() < longestText) {
        const QChar character = m_html[m_position];
        if (character == u'<') {
            readMarkup();
        } else if (character == u'&') {
            writeReference();
        } else {
            const qsizetype begin = m_position;
            while (m_position < m_html.size() && m_html[m_position] != u'<' && m_html[m_position] != u'&')
                ++m_position;
            write(m_html.sliced(begin, m_position - begin));
        }
    }
    m_text.finish();
    return std::move(m_text);
}

HtmlParser::Element HtmlParser::childOf(const QString& name, const Attributes& attributes) const {
    Element element{.name = name, .meaning = html::meaningOf(name), .style = current().style, .flow = current().flow};
    TextStyle& style = element.style;
    const html::Meaning& meaning = element.meaning;
    style.isBold = style.isBold || meaning.isBold;
    style.isItalic = style.isItalic || meaning.isItalic;
    style.isUnderlined = style.isUnderlined || meaning.isUnderlined;
    style.isStruck = style.isStruck || meaning.isStruck;
    style.isFixedWidth = style.isFixedWidth || meaning.isFixedWidth;
    style.size *= meaning.size;
    element.flow.keepsBlanks = element.flow.keepsBlanks || meaning.isPreformatted;
    element.flow.isHidden = element.flow.isHidden || meaning.isHidden || find(attributes, QLatin1String("hidden"));
    if (name == QLatin1String("a") && find(attributes, QLatin1String("href")))
        style.isLink = true;
    if (name == QLatin1String("font")) {
        if (const QString* color = find(attributes, QLatin1String("color")))
            style.color = css::colorOf(*color);
        if (const QString* face = find(attributes, QLatin1String("face")))
            style.isFixedWidth = css::isFixedWidth(*face);
        if (const QString* size = find(attributes, QLatin1String("size")))
            style.size = css::fontElementSize(*size).value_or(style.size);
    }
    if (const QString* start = find(attributes, QLatin1String("start")))
        element.items = std::clamp(start->toInt(), 1, 1'000'000) - 1;
    if (const QString* declarations = find(attributes, QLatin1String("style")))
        css::apply(*declarations, style, element.flow);
    return element;
}

void HtmlParser::open(const QString& name, const Attributes& attributes) {
    const html::Meaning& meaning = html::meaningOf(name);
    if (meaning.breaks > 0 && !m_elements.empty() && current().name == QLatin1String("p"))
        closeDownTo(m_elements.size() - 1);
    if (meaning.endsItsOwnKind) {
        // Not beyond the list or table that it stands in.
        for (std::size_t depth = m_elements.size(); depth-- > 1 && m_elements[depth].meaning.breaks < 2;) {
            if (m_elements[depth].name == name) {
                closeDownTo(depth);
                break;
            }
        }
    }
    const Element element = childOf(name, attributes);
    begin(element);
    if (meaning.isVoid) {
        const QString* words = name == QLatin1String("img") ? find(attributes, QLatin1String("alt")) : nullptr;
        if (words)
            write(*words);
        if (name == QLatin1String("br") && !current().flow.isHidden) {
            breakLines();
            m_hasBlank = false;
            m_text.append(u"\n", current().style);
        }
        return;
    }
    if (meaning.isRaw)
        passRaw(name);
    if (m_elements.size() < deepest)
        m_elements.push_back(element);
}

/// What stands before an element's text.
void HtmlParser::begin(const Element& element) {
    if (element.flow.isHidden)
        return;
    setApart(element.meaning.breaks);
    if (element.name == QLatin1String("li")) {
        writeMark();
    } else if (element.name == QLatin1String("td") || element.name == QLatin1String("th")) {
        if (m_breaks == 0 && !isAtLineStart())
            m_text.append(u"\t", TextStyle{.size = element.style.size});
        m_hasBlank = false;
    }
}

void HtmlParser::close(const QString& name) {
    for (std::size_t depth = m_elements.size(); depth-- > 1;) {
        if (m_elements[depth].name == name) {
            closeDownTo(depth);
            return;
        }
    }
}

void HtmlParser::closeDownTo(std::size_t depth) {
    for (; m_elements.size() > depth; m_elements.pop_back()) {
        if (!current().flow.isHidden) {
            m_isMarked = false;
            setApart(current().meaning.breaks);
        }
    }
}

void HtmlParser::writeReference() {
    const QStringView rest = m_html.sliced(m_position + 1, std::min(longestReference, m_html.size() - m_position - 1));
    const qsizetype end = rest.indexOf(u';');
    const auto character = end > 0 ? html::referenced(rest.first(end)) : std::nullopt;
    if (!character) {
        ++m_position;
        write(u"&");
        return;
    }
    m_position += end + 2;
    // A blank that is written as a reference is not folded into others.
    writeVisible(*character);
}

void HtmlParser::write(QStringView text) {
    qsizetype begin = 0;
    const bool keepsBlanks = current().flow.keepsBlanks;
    const auto isFolded = [keepsBlanks](QChar character) {
        return character.isNull() || character == u'\r' || (!keepsBlanks && html::isBlank(character));
    };
    while (begin < text.size()) {
        qsizetype end = begin;
        while (end < text.size() && !isFolded(text[end]))
            ++end;
        if (end > begin)
            writeVisible(text.sliced(begin, end - begin));
        for (begin = end; begin < text.size() && isFolded(text[begin]); ++begin)
            if (!m_hasBlank && !keepsBlanks && html::isBlank(text[begin])) {
                m_hasBlank = true;
                m_blankStyle = current().style;
            }
    }
}

void HtmlParser::writeVisible(QStringView text) {
    if (current().flow.isHidden)
        return;
    breakLines();
    if (m_hasBlank && !isAtLineStart() && !m_isMarked)
        m_text.append(u" ", m_blankStyle);
    m_hasBlank = false;
    m_isMarked = false;
    m_text.append(text, current().style);
}

/// The mark of a list's item, indented by the lists that the list stands in.
void HtmlParser::writeMark() {
    int depth = 0;
    Element* list = nullptr;
    for (Element& element : m_elements) {
        if (element.name == QLatin1String("ul") || element.name == QLatin1String("ol")) {
            list = &element;
            ++depth;
        }
    }
    breakLines();
    const QString indent(std::clamp(depth - 1, 0, deepestIndent) * 4, QChar::Nbsp);
    const bool isNumbered = list != nullptr && list->name == QLatin1String("ol");
    const QString mark = isNumbered ? QString::number(++list->items) + QStringLiteral(". ") : QStringLiteral("• ");
    m_text.append(indent + mark, TextStyle{.size = current().style.size});
    m_isMarked = true;
}

void HtmlParser::setApart(int breaks) {
    if (!m_isMarked)
        m_breaks = std::max(m_breaks, breaks);
}

/// The line breaks that are owed, less those that are there.
void HtmlParser::breakLines() {
    if (m_breaks == 0)
        return;
    m_hasBlank = false;
    const QString& text = m_text.text;
    qsizetype present = 0;
    while (present < text.size() && text[text.size() - 1 - present] == u'\n')
        ++present;
    if (!text.isEmpty() && present < m_breaks)
        m_text.append(QString(m_breaks - present, u'\n'), TextStyle{.size = current().style.size});
    m_breaks = 0;
}

bool HtmlParser::isAtLineStart() const {
    return m_text.text.isEmpty() || m_text.text.back() == u'\n';
}

} // namespace vellumry
