// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"
#include "history/clips/ClipFilter.h"
#include "history/clips/SharedClips.h"
#include "panel/PanelModelCalendar.h"
#include "panel/PanelSelection.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QUuid>
#include <array>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace vellumry {

class ClipStore;
struct FileStatus;

/// What is known of the files of each clip of files.
using FileStatuses = QHash<QUuid, std::vector<FileStatus>>;

/// The clips that a query and a filter leave, in their sections: pins on top and the days below, or the results of a
/// search. Computed when they are asked for, and again only after the history, the query, the filter or the day
/// changed. Main thread. References stay good until the next call behind such a change.
class PanelSections {
public:
    struct Section {
        QString id;
        QString title;                  ///< may be empty
        std::span<const ClipRef> clips; ///< a part of the listing's
    };
    /// Clips in display order, and the sections that lie one behind the other in them.
    struct Listing {
        SharedClips clips;
        std::vector<Section> sections;
    };

    /// `store` must outlive this.
    PanelSections(ClipStore& store, PanelModelCalendar calendar);
    ~PanelSections();

    [[nodiscard]] const QString& query() const { return m_query; }
    /// False when it was that already.
    bool setQuery(const QString& query);
    [[nodiscard]] ClipFilter filter() const { return m_filter; }
    bool setFilter(ClipFilter filter);

    /// No section is empty.
    [[nodiscard]] const std::vector<Section>& sections() const { return listing().sections; }
    /// The clips of all sections in display order.
    [[nodiscard]] const std::vector<ClipRef>& clips() const { return *listing().clips; }
    /// Both, for a reader that keeps them.
    [[nodiscard]] const Listing& listing() const { return current().listing; }
    [[nodiscard]] PanelRows rows() const;
    /// The clips that were listed before the last change; null when nothing has changed since they were computed.
    [[nodiscard]] SharedClips outdatedClips() const;
    /// Asks for the day anew: the user may have travelled. True when sections were computed for another one.
    bool updateDay();

    [[nodiscard]] qsizetype count(ClipFilter filter) const;
    /// Clip id to the digit, 1 to 9, that pastes it: neither pins of the plain list, nor sensitive clips, nor those all
    /// of whose files are gone have one.
    [[nodiscard]] QHash<QUuid, int> rowNumbers(const FileStatuses& statuses) const;
    /// Clip id to the digit of its pinned hot key, of those that are `available`.
    [[nodiscard]] QHash<QUuid, int> pinNumbers(const QSet<int>& available) const;

private:
    /// What the sections were computed for. The day rolls "Today" over at midnight without a timer.
    struct Key {
        qint64 revision = 0;
        QString query;
        ClipFilter filter = ClipFilter::all;
        Date day = 0;
        bool operator==(const Key&) const = default;
    };
    struct Cache {
        Key key;
        Listing listing;
    };
    struct Counts {
        qint64 revision = 0;
        std::array<qsizetype, allClipFilters.size()> byFilter{};
    };

    [[nodiscard]] bool isPlainList() const;
    [[nodiscard]] Key key() const;
    [[nodiscard]] const Cache& current() const;
    [[nodiscard]] Listing makeListing() const;
    [[nodiscard]] Listing listingByDay(const std::vector<ClipRef>& clips) const;

    ClipStore& m_store;
    PanelModelCalendar m_calendar;
    QString m_query;
    ClipFilter m_filter = ClipFilter::all;
    mutable std::optional<Cache> m_cache;
    mutable std::optional<Counts> m_counts;
    mutable CalendarDay m_today;
    mutable std::unique_ptr<PanelModelDayFormat> m_dayFormat;
};

} // namespace vellumry
