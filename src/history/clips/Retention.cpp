// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/Retention.h"

#include <algorithm>

namespace vellumry::retention {

qint64 mediaBytes(const Clip& clip) {
    // More than any row can hold, so that the sum of a file with nonsense in it still fits its type.
    constexpr qint64 mostBytes = qint64{1} << 40;
    if (clip.kind != ClipKind::image && clip.kind != ClipKind::file)
        return 0;
    return std::clamp<qint64>(clip.byteSize, 0, mostBytes);
}

QSet<QUuid> doomedClips(const std::vector<ClipRef>& clips, const RetentionPolicy& policy, Date now) {
    QSet<QUuid> doomed;
    for (const ClipRef& clip : clips) {
        const bool isExpired = clip->expiresAt && *clip->expiresAt <= now;
        const bool isTooOld = !clip->isPinned && policy.maxAge && now - clip->lastUsedAt > *policy.maxAge;
        if (isExpired || isTooOld)
            doomed.insert(clip->id);
    }

    std::vector<const Clip*> survivors;
    for (const ClipRef& clip : clips) {
        if (!clip->isPinned && !doomed.contains(clip->id))
            survivors.push_back(clip.get());
    }
    for (qint64 i = std::max<qint64>(policy.maxCount, 0); i < std::ssize(survivors); ++i)
        doomed.insert(survivors[static_cast<std::size_t>(i)]->id);

    qint64 total = 0;
    for (const ClipRef& clip : clips) {
        if (!doomed.contains(clip->id))
            total += mediaBytes(*clip);
    }
    for (auto clip = survivors.rbegin(); clip != survivors.rend() && total > policy.maxMediaBytes; ++clip) {
        const bool isMedia = (*clip)->kind == ClipKind::image || (*clip)->kind == ClipKind::file;
        if (!isMedia || doomed.contains((*clip)->id))
            continue;
        doomed.insert((*clip)->id);
        total -= mediaBytes(**clip);
    }
    return doomed;
}

bool isWorthReclaiming(const std::vector<ClipRef>& removed, qsizetype askedFor) {
    constexpr double manyBytes = 1'048'576;
    constexpr qsizetype manyClips = 50;
    double bytes = 0;
    for (const ClipRef& clip : removed)
        bytes += static_cast<double>(clip->byteSize);
    return std::ranges::any_of(removed, [](const ClipRef& clip) { return clip->isSensitive(); }) || bytes > manyBytes ||
           askedFor >= manyClips;
}

} // namespace vellumry::retention
