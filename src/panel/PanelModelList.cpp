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
        today = dayInterval(now, calendar.timeZone());
    return {store.revision(), query, filter, today.start};
}

const PanelModel::Private::SectionCache& PanelModel::Private::current() {
    auto wanted = key();
    if (sectionCache && sectionCache->key == wanted)
        return *sectionCache;

    SectionCache cache{std::move(wanted), makeSections(), {}};
    for (const auto& section : cache.sections)
        cache.visible.insert(cache.visible.end(), section.clips.begin(), section.clips.end());
    sectionCache = std::move(cache);
    return *sectionCache;
}

std::vector<PanelModel::Section> PanelModel::Private::makeSections() const {
    auto clips = store.search(query, filter);
    if (isPlainList())
        return sectionsByDay(clips);

    if (filter == ClipFilter::pinned)
        sortInPinOrder(clips);
    std::vector<Section> sections;
    if (!clips.empty()) {
        const auto title = text::isBlank(query) ? QString() : localised("Results");
        sections.push_back({QStringLiteral("results"), title, std::move(clips)});
    }
    return sections;
}

std::vector<PanelModel::Section> PanelModel::Private::sectionsByDay(const std::vector<ClipRef>& clips) const {
    std::vector<Section> sections;
    std::vector<ClipRef> pinned;
    std::ranges::copy_if(clips, std::back_inserter(pinned), &Clip::isPinned, &ClipRef::operator*);
    if (!pinned.empty()) {
        sortInPinOrder(pinned);
        sections.push_back({QStringLiteral("pinned"), localised("Pinned"), std::move(pinned)});
    }

    const Date now = calendar.now();
    const auto zone = calendar.timeZone();
    const auto locale = calendar.locale();
    // The interval spares a look at the calendar for each clip but the first of a day.
    DayInterval day;
    QString dayID;
    for (const auto& clip : clips) {
        if (clip->isPinned)
            continue;
        if (!day.contains(clip->lastUsedAt)) {
            auto label = dayLabel(clip->lastUsedAt, now, zone, locale);
            if (label.id != dayID) {
                dayID = label.id;
                sections.push_back({std::move(label.id), std::move(label.title), {}});
            }
            day = dayInterval(clip->lastUsedAt, zone);
        }
        sections.back().clips.push_back(clip);
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

int PanelModel::countOf(int filter) const {
    if (filter < 0 || filter >= int(allClipFilters.size()))
        return 0;
    return int(count(allClipFilters[std::size_t(filter)]));
}

std::optional<QString> PanelModel::imageMatch(const Clip& clip) const {
    if (!clip.imageText)
        return std::nullopt;
    return imageTextExcerpt(d->query, clip.title, *clip.imageText);
}

} // namespace vellumry
