// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Localisation.h"
#include "foundation/Text.h"
#include "panel/PanelModelExcerpt.h"
#include "panel/PanelModelPrivate.h"

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

/// True for the whole history, pins on top and the days below.
bool PanelModel::Private::isPlainList() const {
    return filter != ClipFilter::pinned && text::isBlank(query);
}

PanelModel::Private::CacheKey PanelModel::Private::key() {
    const Date now = calendar.now();
    if (!today.contains(now))
        today = dayAround(now, calendar.timeZone());
    return {store.revision(), query, filter, today.start};
}

const PanelModel::Private::SectionCache& PanelModel::Private::current() {
    auto wanted = key();
    if (sectionCache && sectionCache->key == wanted)
        return *sectionCache;

    SectionCache cache{std::move(wanted), makeSections(), {}};
    std::size_t count = 0;
    for (const auto& section : cache.sections)
        count += section.clips.size();
    cache.visible.reserve(count);
    for (const auto& section : cache.sections)
        cache.visible.insert(cache.visible.end(), section.clips.begin(), section.clips.end());
    sectionCache = std::move(cache);
    return *sectionCache;
}

std::vector<PanelModel::Section> PanelModel::Private::makeSections() {
    // The whole history needs no search, and no copy of a long list.
    if (isPlainList())
        return filter == ClipFilter::all ? sectionsByDay(store.clips()) : sectionsByDay(store.search(query, filter));

    auto clips = store.search(query, filter);
    if (filter == ClipFilter::pinned)
        sortInPinOrder(clips);
    std::vector<Section> sections;
    if (!clips.empty()) {
        const auto title = text::isBlank(query) ? QString() : localised("Results");
        sections.push_back({QStringLiteral("results"), title, std::move(clips)});
    }
    return sections;
}

std::vector<PanelModel::Section> PanelModel::Private::sectionsByDay(const std::vector<ClipRef>& clips) {
    const auto zone = calendar.timeZone();
    const auto locale = calendar.locale();
    if (!dayFormat || dayFormat->locale() != locale)
        dayFormat = std::make_unique<PanelModelDayFormat>(locale);
    const QDate date = dayAround(calendar.now(), zone).date;

    std::vector<Section> sections(1);
    // The day spares a look at the calendar for each clip but the first of a day.
    CalendarDay day;
    QString dayID;
    for (const auto& clip : clips) {
        if (clip->isPinned) {
            sections.front().clips.push_back(clip);
            continue;
        }
        if (!day.contains(clip->lastUsedAt)) {
            day = dayAround(clip->lastUsedAt, zone);
            auto label = dayLabel(day, date, *dayFormat);
            if (label.id != dayID) {
                dayID = label.id;
                sections.push_back({std::move(label.id), std::move(label.title), {}});
            }
        }
        sections.back().clips.push_back(clip);
    }

    auto& pinned = sections.front();
    if (pinned.clips.empty()) {
        sections.erase(sections.begin());
    } else {
        pinned.id = QStringLiteral("pinned");
        pinned.title = localised("Pinned");
        sortInPinOrder(pinned.clips);
    }
    return sections;
}

const std::vector<PanelModel::Section>& PanelModel::sections() const {
    return d->current().sections;
}

const std::vector<ClipRef>& PanelModel::visibleClips() const {
    return d->current().visible;
}

QHash<QUuid, int> PanelModel::rowNumbers() const {
    const bool skipsPins = d->isPlainList();
    QHash<QUuid, int> numbers;
    for (const auto& clip : visibleClips()) {
        // A sensitive clip gets no number, so that a slip of the fingers cannot paste it.
        if ((skipsPins && clip->isPinned) || clip->isSensitive())
            continue;
        const auto statuses = d->fileStatuses.constFind(clip->id);
        if (statuses != d->fileStatuses.constEnd() && isOutOfReach(*statuses))
            continue;
        numbers.insert(clip->id, int(numbers.size()) + 1);
        if (numbers.size() == numberedRows)
            break;
    }
    return numbers;
}

QHash<QUuid, int> PanelModel::pinNumbers() const {
    QHash<QUuid, int> numbers;
    int number = 0;
    for (const auto& clip : d->store.pinnedClips()) {
        if (++number > numberedRows)
            break;
        if (d->availablePinnedNumbers.contains(number))
            numbers.insert(clip->id, number);
    }
    return numbers;
}

qsizetype PanelModel::count(ClipFilter filter) const {
    const auto revision = d->store.revision();
    if (!d->countCache || d->countCache->revision != revision) {
        Private::CountCache cache{revision, {}};
        for (const auto& clip : d->store.clips()) {
            for (const auto each : allClipFilters)
                cache.counts[std::size_t(each)] += passes(*clip, each) ? 1 : 0;
        }
        d->countCache = cache;
    }
    return d->countCache->counts[std::size_t(filter)];
}

std::optional<QString> PanelModel::imageMatch(const Clip& clip) const {
    if (!clip.imageText)
        return std::nullopt;
    return imageTextExcerpt(d->query, clip.title, *clip.imageText);
}

} // namespace vellumry
