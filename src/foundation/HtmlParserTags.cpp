// SPDX-License-Identifier: GPL-3.0-or-later
// What stands between "<" and ">".
#include "foundation/HtmlParser.h"

#include <QStringList>
#include <algorithm>

namespace vellumry {

namespace {

constexpr qsizetype longestName = 16;

bool isLetter(QChar character) {
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
}

} // namespace

/// At a "<". One that begins no markup is a character.
void HtmlParser::readMarkup() {
    const QStringView rest = m_html.sliced(m_position);
    if (rest.startsWith(QLatin1String("<!--"))) {
        const qsizetype end = m_html.indexOf(QLatin1String("-->"), m_position + 2);
        m_position = end < 0 ? m_html.size() : end + 3;
    } else if (rest.size() > 1 && (rest[1] == u'!' || rest[1] == u'?')) {
        const qsizetype end = m_html.indexOf(u'>', m_position);
        m_position = end < 0 ? m_html.size() : end + 1;
    } else if (rest.size() > 2 && rest[1] == u'/' && isLetter(rest[2])) {
        m_position += 2;
        readTag(true);
    } else if (rest.size() > 1 && isLetter(rest[1])) {
        ++m_position;
        readTag(false);
    } else {
        ++m_position;
        write(rest.first(1));
    }
}

void HtmlParser::readTag(bool isClosing) {
    const qsizetype begin = m_position;
    while (m_position < m_html.size() && !html::isBlank(m_html[m_position]) && m_html[m_position] != u'>' &&
           m_html[m_position] != u'/')
        ++m_position;
    const QStringView written = m_html.sliced(begin, m_position - begin);
    const QString name = written.first(std::min(written.size(), longestName)).toString().toLower();
    const Attributes attributes = readAttributes();
    if (isClosing)
        close(name);
    else
        open(name, attributes);
}

/// Up to behind the ">".
HtmlParser::Attributes HtmlParser::readAttributes() {
    static const QStringList wanted{QStringLiteral("style"), QStringLiteral("color"), QStringLiteral("face"),
                                    QStringLiteral("size"),  QStringLiteral("href"),  QStringLiteral("alt"),
                                    QStringLiteral("start"), QStringLiteral("hidden")};
    Attributes attributes;
    while (m_position < m_html.size() && m_html[m_position] != u'>') {
        if (html::isBlank(m_html[m_position]) || m_html[m_position] == u'/') {
            ++m_position;
            continue;
        }
        const qsizetype begin = m_position++;
        while (m_position < m_html.size() && !html::isBlank(m_html[m_position]) && m_html[m_position] != u'=' &&
               m_html[m_position] != u'>' && m_html[m_position] != u'/')
            ++m_position;
        const QStringView name = m_html.sliced(begin, m_position - begin);
        const QString value = readValue();
        if (name.size() <= longestName && wanted.contains(name.toString().toLower()))
            attributes.emplace_back(name.toString().toLower(), value);
    }
    m_position = std::min(m_position + 1, m_html.size());
    return attributes;
}

/// Behind an attribute's name; empty where no value follows.
QString HtmlParser::readValue() {
    qsizetype place = m_position;
    while (place < m_html.size() && html::isBlank(m_html[place]))
        ++place;
    if (place >= m_html.size() || m_html[place] != u'=')
        return {};
    do
        ++place;
    while (place < m_html.size() && html::isBlank(m_html[place]));
    qsizetype end = place;
    if (place < m_html.size() && (m_html[place] == u'"' || m_html[place] == u'\'')) {
        end = m_html.indexOf(m_html[place], place + 1);
        end = end < 0 ? m_html.size() : end;
        m_position = std::min(end + 1, m_html.size());
        ++place;
    } else {
        while (end < m_html.size() && !html::isBlank(m_html[end]) && m_html[end] != u'>')
            ++end;
        m_position = end;
    }
    // Fonts are named in quotes inside the quotes.
    return m_html.sliced(place, end - place).toString().replace(QLatin1String("&quot;"), QLatin1String("'"));
}

/// Over what is no markup, up to the end tag of `name`.
void HtmlParser::passRaw(const QString& name) {
    const qsizetype end = m_html.indexOf(QLatin1String("</") + name, m_position, Qt::CaseInsensitive);
    m_position = end < 0 ? m_html.size() : end;
}

} // namespace vellumry
