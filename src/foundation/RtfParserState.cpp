// SPDX-License-Identifier: GPL-3.0-or-later
// What control words change: code pages, fonts, colours, styles.
#include "foundation/RtfParser.h"

#include "foundation/RtfVocabulary.h"

#include <algorithm>

namespace vellumry {

bool RtfParser::applyToState(const ControlWord& word) {
    Group& group = m_groups.back();
    const int parameter = word.parameter.value_or(0);
    if (word.name == "uc") {
        group.fallbackLength = std::clamp(word.parameter.value_or(1), 0, 255);
    } else if (word.name == "ansicpg") {
        m_documentCodePage = parameter > 0 ? parameter : 1252;
    } else if (word.name == "ansi") {
        m_documentCodePage = 1252;
    } else if (word.name == "mac") {
        m_documentCodePage = 10000;
    } else if (word.name == "pc") {
        m_documentCodePage = 437;
    } else if (word.name == "pca") {
        m_documentCodePage = 850;
    } else if (word.name == "f" && word.parameter) {
        m_definedFont = parameter;
        group.codePage = group.destination == Destination::FontTable ? 0 : m_fontCodePages.value(parameter, 0);
        group.style.isFixedWidth = m_fixedFonts.contains(parameter);
    } else if (word.name == "plain") {
        group.codePage = 0;
        group.style = rtf::plainStyle;
    } else {
        return false;
    }
    return true;
}

bool RtfParser::applyToTables(const ControlWord& word) {
    const Destination destination = m_groups.back().destination;
    const int parameter = word.parameter.value_or(0);
    if (destination == Destination::FontTable && word.name == "fcharset") {
        if (const int codePage = rtf::codePageOfCharset(parameter))
            m_fontCodePages.insert(m_definedFont, codePage);
        return true;
    }
    if (destination == Destination::FontTable && (word.name == "fmodern" || (word.name == "fprq" && parameter == 1))) {
        m_fixedFonts.insert(m_definedFont);
        return true;
    }
    const int shift = word.name == "red" ? 16 : word.name == "green" ? 8 : word.name == "blue" ? 0 : -1;
    if (destination != Destination::ColorTable || shift < 0)
        return false;
    m_definedColor = m_definedColor.value_or(0) | static_cast<quint32>(std::clamp(parameter, 0, 255)) << shift;
    return true;
}

void RtfParser::applyToStyle(const ControlWord& word) {
    TextStyle& style = m_groups.back().style;
    const auto index = static_cast<std::size_t>(std::max(word.parameter.value_or(0), 0));
    if (word.name == "cf")
        style.color = index < m_colors.size() ? m_colors[index] : std::nullopt;
    else
        rtf::applyStyle(style, word.name, word.parameter);
}

} // namespace vellumry
