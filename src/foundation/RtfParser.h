// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/CodePageDecoder.h"
#include "foundation/StyledText.h"

#include <QByteArrayView>
#include <QHash>
#include <QSet>
#include <optional>
#include <vector>

namespace vellumry {

/// Walks through an RTF document (RTF 1.9.1) and keeps its text with its styles. Any thread; used once; time and memory
/// linear in the input.
class RtfParser {
public:
    explicit RtfParser(QByteArrayView rtf)
        : m_rtf(rtf) {}
    /// Nothing when the bytes do not begin as RTF, end inside a group, or nest groups beyond reason.
    [[nodiscard]] std::optional<QString> text();
    /// The same with its styles. Nothing in the same cases.
    [[nodiscard]] std::optional<StyledText> styledText();

private:
    enum class Destination { Body, FontTable, ColorTable, Ignored };
    /// What a closing brace brings back.
    struct Group {
        Destination destination = Destination::Body;
        int codePage = 0;               ///< of the current font; 0 where the document's counts
        int fallbackLength = 1;         ///< how many characters stand in for one \u
        bool isMarkedIgnorable = false; ///< \* was the last thing read
        TextStyle style{};              ///< sizes in half-points
    };
    struct ControlWord {
        QByteArrayView name;
        std::optional<int> parameter;
    };

    [[nodiscard]] bool walk();
    [[nodiscard]] bool step();
    [[nodiscard]] bool openGroup();
    void closeGroup();
    [[nodiscard]] bool readControl();
    [[nodiscard]] ControlWord readControlWord();
    void applySymbol(char symbol);
    void apply(const ControlWord& word);
    [[nodiscard]] bool applyDestination(QByteArrayView name);
    [[nodiscard]] bool applyToState(const ControlWord& word);
    [[nodiscard]] bool applyToTables(const ControlWord& word);
    void applyToStyle(const ControlWord& word);
    void readHexadecimal();

    void append(char16_t unit);
    void appendByte(char byte);
    void flushBytes();
    /// True when the character at hand stands in for a \u that was read already.
    [[nodiscard]] bool consumesFallback();

    QByteArrayView m_rtf;
    qsizetype m_position = 0;
    std::vector<Group> m_groups;
    int m_documentCodePage = 1252;
    int m_fallbackLeft = 0;
    int m_definedFont = 0; ///< the font whose entry of the font table is being read
    QHash<int, int> m_fontCodePages;
    QSet<int> m_fixedFonts;
    std::vector<std::optional<quint32>> m_colors; ///< the colour table; its first entry is often none
    std::optional<quint32> m_definedColor;        ///< the entry that is being read
    QByteArray m_bytes;                           ///< read, not yet decoded: a character may take two of them
    int m_bytesCodePage = 0;
    TextStyle m_bytesStyle;
    StyledText m_text;
    CodePageDecoder m_decoder;
};

} // namespace vellumry
