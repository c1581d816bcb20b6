// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <vector>

/// A long text cut into slices that are small enough to be laid out at once, so that a view lays out what it shows and
/// no more. Texts are UTF-8. Pure; any thread.
namespace vellumry::textslices {

/// A slice ends behind the line that fills it: this many bytes, or this many lines.
constexpr qsizetype fullSlice = 1'000;
constexpr int mostLines = 24;
/// A line longer than this is cut, behind a blank where there is one.
constexpr qsizetype longestSlice = 4'000;

/// Where the slices begin, ascending from 0; empty for an empty text. What is appended to a text changes its last slice
/// and adds others.
[[nodiscard]] std::vector<quint32> startsOf(QByteArrayView text);

/// The slice as it is shown: without the line break at its end, each other break a line feed, a NUL as U+2400.
/// `tabWidth` above 0 sets what follows a tab to a multiple of so many characters.
[[nodiscard]] QString shown(QByteArrayView slice, int tabWidth);

/// The first slice of a text so cut that holds `query`, trimmed, without regard to case, diacritics and width; -1
/// without one. A hit that lies across two slices is not found.
[[nodiscard]] int firstHit(const QByteArray& text, const std::vector<quint32>& starts, const QString& query);

} // namespace vellumry::textslices
