// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelSections.h"

#include "capture/FileStatus.h"
#include "foundation/Localisation.h"
#include "foundation/Text.h"
#include "history/clips/ClipStore.h"
#include "panel/PanelModelDayFormat.h"

#include <algorithm>
#include <ranges>
#include <tuple>

namespace vellumry {

namespace {

constexpr int numberedRows = 9;

void sortInPinOrder(std::vector<ClipRef>& clips) {
    std::ranges::stable_sort(clips, {},
                             [](const ClipRef& clip) { return std::tuple(clip->pinOrder, clip->createdAt); });
}

bool isOutOfReach(const std::vector<FileStatus>& statuses) {
    return !statuses.empty() &&
           std::ranges::none_of(statuses, [](const FileStatus& status) { return status.path().has_value(); });
}

} // namespace

PanelSections::PanelSections(ClipStore& store, PanelModelCalendar calendar)
    : m_store(store)
    , m_calendar(std::move(calendar)) {}

PanelSections::~PanelSections() = default;

bool PanelSections::setQuery(const QString& query) {
    return std::exchange(m_query, query) != query;
}

bool PanelSections::setFilter(ClipFilter filter) {
    return std::exchange(m_filter, filter) != filter;
}

PanelRows PanelSections::rows() const {
    // The list holds the store's own references.
    return {clips(), [store = &m_store](const QUuid& id) { return store->find(id); }};
}

SharedClips PanelSections::outdatedClips() const {
    return m_cache && m_cache->key != key() ? m_cache->listing.clips : nullptr;
}

bool PanelSections::updateDay() {
    const auto shown = std::exchange(m_today, {}).start;
    return m_cache && key().day != shown;
}

/// True for the whole history, pins on top and the days below.
bool PanelSections::isPlainList() const {
    return m_filter != ClipFilter::pinned && text::isBlank(m_query);
}

PanelSections::Key PanelSections::key() const {
    const Date now = m_calendar.now();
    if (!m_today.contains(now))
        m_today = dayAround(now, m_calendar.timeZone());
    return {m_store.revision(), m_query, m_filter, m_today.start};
}

const PanelSections::Cache& PanelSections::current() const {
    auto wanted = key();
    if (m_cache && m_cache->key == wanted)
        return *m_cache;

    m_cache = Cache{std::move(wanted), makeListing()};
    return *m_cache;
}

PanelSections::Listing PanelSections::makeListing() const {
    // The whole history needs no search, and no copy of a long list.
    if (isPlainList())
        return m_filter == ClipFilter::all ? listingByDay(m_store.clips())
                                           : listingByDay(m_store.search(m_query, m_filter));

    auto clips = m_store.search(m_query, m_filter);
    if (m_filter == ClipFilter::pinned)
        sortInPinOrder(clips);
    Listing listing{shared(std::move(clips)), {}};
    if (!listing.clips->empty()) {
        const auto title = text::isBlank(m_query) ? QString() : localised("Results");
        listing.sections.push_back({QStringLiteral("results"), title, *listing.clips});
    }
    return listing;
}

PanelSections::Listing PanelSections::listingByDay(const std::vector<ClipRef>& clips) const {
    const auto zone = m_calendar.timeZone();
    const auto locale = m_calendar.locale();
    if (!m_dayFormat || m_dayFormat->locale() != locale)
        m_dayFormat = std::make_unique<PanelModelDayFormat>(locale);
    const QDate date = dayAround(m_calendar.now(), zone).date;

    struct Day {
        DayLabel label;
        std::size_t first = 0;
    };
    std::vector<Day> days;
    std::vector<ClipRef> pinned;
    std::vector<ClipRef> listed;
    listed.reserve(clips.size());
    // The day spares a look at the calendar for each clip but the first of a day.
    CalendarDay day;
    for (std::size_t index = 0; index < clips.size(); ++index) {
        if (index + clipsAhead < clips.size())
            prefetchCount(clips[index + clipsAhead]);
        const ClipRef& clip = clips[index];
        if (clip->isPinned) {
            pinned.push_back(clip);
            continue;
        }
        if (!day.contains(clip->lastUsedAt)) {
            day = dayAround(clip->lastUsedAt, zone);
            auto label = dayLabel(day, date, *m_dayFormat);
            if (days.empty() || label.id != days.back().label.id)
                days.push_back({std::move(label), listed.size()});
        }
        listed.push_back(clip);
    }
    sortInPinOrder(pinned);
    listed.insert(listed.begin(), pinned.begin(), pinned.end());

    Listing listing{shared(std::move(listed)), {}};
    const std::span<const ClipRef> all(*listing.clips);
    if (!pinned.empty())
        listing.sections.push_back({QStringLiteral("pinned"), localised("Pinned"), all.first(pinned.size())});
    for (std::size_t index = 0; index < days.size(); ++index) {
        const std::size_t end = index + 1 < days.size() ? days[index + 1].first : all.size() - pinned.size();
        listing.sections.push_back({std::move(days[index].label.id), std::move(days[index].label.title),
                                    all.subspan(pinned.size() + days[index].first, end - days[index].first)});
    }
    return listing;
}

QHash<QUuid, int> PanelSections::rowNumbers(const FileStatuses& statuses) const {
    const bool skipsPins = isPlainList();
    QHash<QUuid, int> numbers;
    for (const auto& clip : clips()) {
        // A sensitive clip gets no number, so that a slip of the fingers cannot paste it.
        if ((skipsPins && clip->isPinned) || clip->isSensitive())
            continue;
        const auto known = statuses.constFind(clip->id);
        if (known != statuses.constEnd() && isOutOfReach(*known))
            continue;
        numbers.insert(clip->id, int(numbers.size()) + 1);
        if (numbers.size() == numberedRows)
            break;
    }
    return numbers;
}

QHash<QUuid, int> PanelSections::pinNumbers(const QSet<int>& available) const {
    QHash<QUuid, int> numbers;
    int number = 0;
    for (const auto& clip : m_store.pinnedClips()) {
        if (++number > numberedRows)
            break;
        if (available.contains(number))
            numbers.insert(clip->id, number);
    }
    return numbers;
}

qsizetype PanelSections::count(ClipFilter filter) const {
    const auto revision = m_store.revision();
    if (!m_counts || m_counts->revision != revision) {
        Counts counts{revision, {}};
        for (const auto& clip : m_store.clips()) {
            for (const auto each : allClipFilters)
                counts.byFilter[std::size_t(each)] += passes(*clip, each) ? 1 : 0;
        }
        m_counts = counts;
    }
    return m_counts->byFilter[std::size_t(filter)];
}

} // namespace vellumry
