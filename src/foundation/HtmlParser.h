// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/CssStyle.h"
#include "foundation/HtmlVocabulary.h"
#include "foundation/StyledText.h"

#include <QString>
#include <QStringView>
#include <utility>
#include <vector>

namespace vellumry {

/// Walks through HTML and keeps what a reader would see of it as a styled text: blocks become lines, items of lists get
/// their marks, cells are set apart by tabs. Scripts, style sheets and addresses of resources are passed over. Any
/// thread; used once; time and memory linear in the input.
class HtmlParser {
public:
    /// `html` must outlive the parser.
    explicit HtmlParser(QStringView html)
        : m_html(html) {}
    [[nodiscard]] StyledText styledText();

private:
    struct Element {
        QString name{};
        html::Meaning meaning{};
        TextStyle style{};
        css::Flow flow{};
        int items = 0; ///< of a list, how many it has had so far
    };
    using Attributes = std::vector<std::pair<QString, QString>>;

    void readMarkup();
    void readTag(bool isClosing);
    [[nodiscard]] Attributes readAttributes();
    [[nodiscard]] QString readValue();
    void passRaw(const QString& name);
    void open(const QString& name, const Attributes& attributes);
    void close(const QString& name);
    void closeDownTo(std::size_t depth);
    [[nodiscard]] Element childOf(const QString& name, const Attributes& attributes) const;
    void begin(const Element& element);

    void writeReference();
    void write(QStringView text);
    void writeVisible(QStringView text);
    void writeMark();
    void setApart(int breaks);
    void breakLines();
    [[nodiscard]] bool isAtLineStart() const;
    [[nodiscard]] const Element& current() const { return m_elements.back(); }

    QStringView m_html;
    qsizetype m_position = 0;
    std::vector<Element> m_elements{{.style = {.size = css::usualSize}}};
    StyledText m_text;
    int m_breaks = 0;        ///< line breaks owed before the next text
    bool m_hasBlank = false; ///< a blank is owed, unless a line begins
    TextStyle m_blankStyle;  ///< of the text that the blank stands in: that before a link is not underlined
    bool m_isMarked = false; ///< an item's mark was the last thing written
};

} // namespace vellumry
