// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/FieldEditing.h"

#include <QTextBoundaryFinder>
#include <algorithm>

namespace vellumry {

namespace {

qsizetype beforeBlanks(const QString& text, qsizetype position) {
    while (position > 0 && text.at(position - 1).isSpace())
        --position;
    return position;
}

} // namespace

qsizetype startOfWordToRubOut(const QString& text, qsizetype cursor) {
    const qsizetype end = beforeBlanks(text, std::clamp<qsizetype>(cursor, 0, text.size()));
    QTextBoundaryFinder words(QTextBoundaryFinder::Word, text);
    words.setPosition(end);
    return beforeBlanks(text, std::max<qsizetype>(words.toPreviousBoundary(), 0));
}

} // namespace vellumry
