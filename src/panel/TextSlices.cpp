// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/TextSlices.h"

#include "foundation/Text.h"

#include <QTextBoundaryFinder>
#include <algorithm>
#include <cstring>

namespace vellumry::textslices {

namespace {

constexpr qsizetype nearEnd = 400;

/// The end of the line that goes on at `start`, its break included. Not looked for beyond what fits into a slice.
qsizetype lineEnd(QByteArrayView text, qsizetype start) {
    const qsizetype room = std::min(text.size() - start, longestSlice + 1);
    const void* found = std::memchr(text.data() + start, '\n', static_cast<std::size_t>(room));
    return found ? static_cast<const char*>(found) - text.data() + 1 : start + room;
}

/// Where the character begins that `place` lies in; bytes that are no text have none, and are cut anywhere.
qsizetype characterStart(QByteArrayView text, qsizetype place) {
    constexpr int mostFollowing = 3;
    for (int back = 0; back <= mostFollowing; ++back) {
        if ((static_cast<quint8>(text[place - back]) & 0xC0) != 0x80)
            return place - back;
    }
    return place;
}

/// Where a line that is too long is cut: behind a blank near the end of the room, else between two characters.
qsizetype cutOf(QByteArrayView text, qsizetype start) {
    qsizetype end = start + longestSlice;
    for (qsizetype place = end; place > end - nearEnd; --place) {
        if (text[place - 1] == ' ')
            return place;
    }
    end = characterStart(text, end);
    // From the beginning: which scalars of a row of flags belong together is told by counting.
    const QString piece = QString::fromUtf8(text.sliced(start, end - start));
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, piece);
    finder.toEnd();
    // The boundary at the end may be one only because the piece ends there.
    const qsizetype boundary = finder.toPreviousBoundary();
    const qsizetype kept = boundary <= 0 ? 0 : QStringView(piece).left(boundary).toUtf8().size();
    return kept > 0 && start + kept < end ? start + kept : end;
}

} // namespace

std::vector<quint32> startsOf(QByteArrayView text) {
    std::vector<quint32> starts;
    qsizetype start = 0;
    while (start < text.size()) {
        starts.push_back(static_cast<quint32>(start));
        qsizetype end = start;
        for (int lines = 0; lines < mostLines && end < text.size() && end - start < fullSlice; ++lines) {
            const qsizetype next = lineEnd(text, end);
            if (next - start > longestSlice) {
                // Behind whole lines, the long one begins a slice of its own.
                end = end > start ? end : cutOf(text, start);
                break;
            }
            end = next;
        }
        start = end;
    }
    return starts;
}

QString shown(QByteArrayView slice, int tabWidth) {
    QString text = QString::fromUtf8(slice);
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    if (text.endsWith(QLatin1Char('\n')))
        text.chop(1);
    text.replace(QChar(u'\0'), QChar(0x2400));
    if (tabWidth <= 0 || !text.contains(QLatin1Char('\t')))
        return text;
    QString expanded;
    int column = 0;
    for (const QChar character : std::as_const(text)) {
        if (character == QLatin1Char('\t')) {
            const int blanks = tabWidth - column % tabWidth;
            expanded.append(QString(blanks, QLatin1Char(' ')));
            column += blanks;
            continue;
        }
        expanded.append(character);
        column = character == QLatin1Char('\n') ? 0 : column + (character.isLowSurrogate() ? 0 : 1);
    }
    return expanded;
}

int firstHit(const QByteArray& text, const std::vector<quint32>& starts, const QString& query) {
    const QByteArray needle = text::foldedBytes(text::trimmed(query));
    if (needle.isEmpty())
        return -1;
    for (std::size_t row = 0; row < starts.size(); ++row) {
        const qsizetype start = starts[row];
        const qsizetype end = row + 1 < starts.size() ? qsizetype(starts[row + 1]) : text.size();
        if (text::foldedBytes(text.mid(start, end - start)).contains(needle))
            return static_cast<int>(row);
    }
    return -1;
}

} // namespace vellumry::textslices
