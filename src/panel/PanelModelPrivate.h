// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/FileStatus.h"
#include "history/clips/ClipStore.h"
#include "panel/DeletionUndo.h"
#include "panel/PanelModel.h"
#include "panel/PanelModelDayFormat.h"
#include "paste/PasteEngine.h"

#include <QPointer>
#include <array>
#include <optional>
#include <vector>

namespace vellumry {

/// What the model holds; shared by the files that make it up.
struct PanelModel::Private {
    /// What the sections were computed for. The day rolls "Today" over at midnight without a timer.
    struct CacheKey {
        qint64 revision = 0;
        QString query;
        ClipFilter filter = ClipFilter::all;
        Date day = 0;
        bool operator==(const CacheKey&) const = default;
    };
    struct SectionCache {
        CacheKey key;
        std::vector<Section> sections;
        std::vector<ClipRef> visible;
    };
    struct CountCache {
        qint64 revision = 0;
        std::array<qsizetype, allClipFilters.size()> counts{};
    };

    Private(ClipStore& clipStore, PasteEngine& engine, PanelModelCalendar userCalendar)
        : store(clipStore)
        , paster(engine)
        , calendar(std::move(userCalendar))
        , undo(clipStore) {}

    [[nodiscard]] bool isPlainList() const;
    [[nodiscard]] CacheKey key();
    [[nodiscard]] std::vector<Section> makeSections();
    [[nodiscard]] std::vector<Section> sectionsByDay(const std::vector<ClipRef>& clips);
    const SectionCache& current();

    ClipStore& store;
    PasteEngine& paster;
    PanelModelCalendar calendar;

    QString query;
    ClipFilter filter = ClipFilter::all;
    std::optional<QUuid> selectedID;
    QSet<QUuid> selectedIDs;
    std::optional<QUuid> anchorID;
    std::optional<QUuid> hoveredID;
    int focusToken = 0;
    bool isPresented = false;
    bool hasAccessibility = false;
    FileStatuses fileStatuses;
    std::optional<QUuid> transformClipID;
    int transformIndex = 0;
    QSet<int> availablePinnedNumbers{1, 2, 3, 4, 5, 6, 7, 8, 9};

    DeletionUndo undo;
    quint64 edits = 0; ///< of the search field

    std::optional<SectionCache> sectionCache;
    std::optional<CountCache> countCache;
    CalendarDay today;
    std::unique_ptr<PanelModelDayFormat> dayFormat;
    quint64 statusRefresh = 0; ///< grows with each refresh; an older one finds out that it is no longer wanted
};

/// The order in which clips were last used, oldest first.
[[nodiscard]] std::vector<ClipRef> inCopyOrder(std::vector<ClipRef> clips);

} // namespace vellumry
