// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/SharedClips.h"
#include "panel/PanelSections.h"

#include <QString>
#include <QUuid>
#include <optional>
#include <vector>

namespace vellumry {

/// Sections as the rows of a list: a header, then the clips below it. A value that shares the clips with the sections,
/// so that a list of 100,000 rows is made in the time of its headers. Main thread.
class PanelListRows {
public:
    /// Rows that stand in one run.
    struct Run {
        int row = 0;
        int count = 0;
    };

    PanelListRows() = default;
    explicit PanelListRows(const PanelSections::Listing& listing);

    [[nodiscard]] int count() const { return m_count; }
    /// From now on only the first `count` rows are there; all of them when it is no less than that.
    void cut(int count);
    /// Null for a header. `row` is in range.
    [[nodiscard]] ClipRef clipAt(int row) const;
    /// The header's title, which may be empty; null for a clip. `row` is in range.
    [[nodiscard]] const QString* headerAt(int row) const;
    /// Null for a header. `row` is in range; good as long as the rows.
    [[nodiscard]] const Clip* peek(int row) const;
    /// The row of the clip at that place of the list that the sections share; nothing when it is not there.
    [[nodiscard]] std::optional<int> rowOfClip(qsizetype index) const;
    [[nodiscard]] std::optional<int> rowOf(const QUuid& id) const;
    [[nodiscard]] int headersIn(Run run) const;

    /// The rows of this list that are not in a shorter one; nothing when they differ by more than one run, or the other
    /// one is no shorter.
    [[nodiscard]] std::optional<Run> runBeyond(const PanelListRows& shorter) const;

private:
    struct Header {
        int row = 0;
        QString title;
    };

    [[nodiscard]] int wholeCount() const;
    /// The last header at `row` or above.
    [[nodiscard]] std::size_t headerOf(int row) const;
    [[nodiscard]] bool isSameRow(int row, const PanelListRows& other, int otherRow) const;

    SharedClips m_clips;
    std::vector<Header> m_headers; ///< ascending by row
    int m_count = 0;
    mutable std::size_t m_lastHeader = 0; ///< where the last row was: the next one is mostly near
};

} // namespace vellumry
