// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"

#include <QSet>
#include <QUuid>
#include <functional>
#include <optional>
#include <vector>

namespace vellumry {

/// The rows that a selection moves over, from the top. A view of a list that must outlive it.
class PanelRows {
public:
    /// The reference by which the clip of that id is listed, if it is; null for an unknown one.
    using Find = std::function<ClipRef(const QUuid& id)>;

    PanelRows(const std::vector<ClipRef>& clips, Find find)
        : m_clips(&clips)
        , m_find(std::move(find)) {}

    [[nodiscard]] const std::vector<ClipRef>& clips() const { return *m_clips; }
    /// -1 for none, and for one that is not listed. Compares references: a clip far down costs no look into the others.
    [[nodiscard]] qsizetype indexOf(const std::optional<QUuid>& id) const;
    [[nodiscard]] std::optional<QUuid> first() const;
    [[nodiscard]] std::optional<QUuid> last() const;
    /// The row `offset` below that of `id`, at most the first or the last; nothing without rows.
    [[nodiscard]] std::optional<QUuid> at(const std::optional<QUuid>& id, qsizetype offset) const;

private:
    const std::vector<ClipRef>* m_clips;
    Find m_find;
};

/// Which rows are selected: one primary row or none, a set that is empty or holds at least two, and the anchor from
/// which a range extends. A value; each change answers the next selection. Pure; any thread.
class PanelSelection {
public:
    PanelSelection() = default;
    explicit PanelSelection(std::optional<QUuid> primary)
        : PanelSelection(primary, {}, primary) {}

    [[nodiscard]] std::optional<QUuid> primary() const { return m_primary; }
    [[nodiscard]] const QSet<QUuid>& several() const { return m_several; }
    [[nodiscard]] std::optional<QUuid> anchor() const { return m_anchor; }
    [[nodiscard]] bool isSeveral() const { return m_several.size() >= 2; }
    [[nodiscard]] bool contains(const QUuid& id) const;
    [[nodiscard]] int count() const;
    /// The same rows are selected; the anchors may differ.
    [[nodiscard]] bool selectsAs(const PanelSelection& other) const;
    /// Those of `rows` that are selected, in their order.
    [[nodiscard]] std::vector<ClipRef> clipsOf(const PanelRows& rows) const;

    /// The row `offset` below the primary one alone.
    [[nodiscard]] PanelSelection moved(int offset, const PanelRows& rows) const;
    /// The range from the anchor to the row `offset` below the primary one.
    [[nodiscard]] PanelSelection extended(int offset, const PanelRows& rows) const;
    /// The range from the anchor to `id`, which becomes the primary row; `id` alone when one of the two is not listed.
    [[nodiscard]] PanelSelection extendedTo(const QUuid& id, const PanelRows& rows) const;
    /// `id` added, or taken out.
    [[nodiscard]] PanelSelection toggled(const QUuid& id, const PanelRows& rows) const;
    /// The same rows with `id`, one of them, as the primary one.
    [[nodiscard]] PanelSelection withPrimary(const QUuid& id) const;
    /// Those of `ids` that are listed; nothing without any.
    [[nodiscard]] static std::optional<PanelSelection> of(const QSet<QUuid>& ids, const PanelRows& rows);
    /// After `before` became `rows`: what is still listed of it; without any of it the neighbour of the primary row,
    /// the next one first, so that Return always has a clip to paste.
    [[nodiscard]] PanelSelection following(const std::vector<ClipRef>& before, const PanelRows& rows) const;
    /// What is selected once `doomed`, rows in their order, have gone: the next row that stays, else the one before.
    [[nodiscard]] static PanelSelection withoutRows(const std::vector<ClipRef>& doomed, const PanelRows& rows);

private:
    PanelSelection(std::optional<QUuid> primary, QSet<QUuid> several, std::optional<QUuid> anchor);

    std::optional<QUuid> m_primary;
    QSet<QUuid> m_several;
    std::optional<QUuid> m_anchor;
};

} // namespace vellumry
