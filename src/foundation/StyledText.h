// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>
#include <optional>
#include <vector>

namespace vellumry {

/// How a stretch of a text is written.
struct TextStyle {
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    bool isStruck = false;
    bool isFixedWidth = false;
    bool isLink = false;
    float size = 1;                 ///< relative to most of the text; in a parser, in the document's own unit
    std::optional<quint32> color{}; ///< 0xRRGGBB; the reader's own colour without one
    bool operator==(const TextStyle&) const = default;
};

/// A stretch of a text with one style: [start, start + length) in UTF-16 units.
struct StyledRun {
    qsizetype start = 0;
    qsizetype length = 0;
    TextStyle style{};
    bool operator==(const StyledRun&) const = default;
};

/// A text with the styles that a document gave it. Of a document that changes its style more often than any reader
/// could see, the rest keeps the last style, so that the memory stays in proportion to the text. Any thread.
struct StyledText {
    QString text{};
    std::vector<StyledRun> runs{}; ///< ascending, without overlaps; what no run covers is plain

    void append(QStringView part, const TextStyle& style);
    /// Makes sizes relative to the one that most of the text has, in a few steps, and leaves out what is plain then.
    /// Called once, when all was appended.
    void finish();
    bool operator==(const StyledText&) const = default;
};

} // namespace vellumry
