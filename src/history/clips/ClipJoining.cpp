// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/ClipJoining.h"

#include <algorithm>
#include <iterator>

namespace vellumry {

namespace {

void removeCleared(std::vector<ClipRef>& rows, ClearedBefore cleared, std::vector<QUuid>& unwanted) {
    std::erase_if(rows, [&](const ClipRef& row) {
        if (row->isPinned && cleared == ClearedBefore::unpinned)
            return false;
        unwanted.push_back(row->id);
        return true;
    });
}

} // namespace

void inherit(Clip& clip, const Clip& row) {
    clip.createdAt = std::min(clip.createdAt, row.createdAt);
    if (row.isPinned && !clip.isPinned) {
        clip.isPinned = true;
        clip.pinOrder = row.pinOrder;
    }
    const bool isReadable = clip.kind == ClipKind::image || clip.kind == ClipKind::file;
    if (isReadable && clip.kind == row.kind && !clip.imageText) {
        clip.imageText = row.imageText;
        clip.imageTextIsAccurate = row.imageTextIsAccurate;
    }
    clip.isScreenshot = clip.isScreenshot || (clip.kind == ClipKind::image && row.isScreenshot);
}

JoinedClips joinClips(std::vector<ClipRef> rows, const std::vector<ClipRef>& captured,
                      const QHash<QUuid, Fingerprint>& fingerprints, std::optional<ClearedBefore> cleared) {
    JoinedClips joined;
    if (cleared)
        removeCleared(rows, *cleared, joined.unwanted);
    std::vector<std::shared_ptr<Clip>> clips;
    QHash<QString, Clip*> byContent;
    for (const ClipRef& one : captured) {
        clips.push_back(std::make_shared<Clip>(*one));
        clips.back()->fingerprint = fingerprints.value(one->id);
        byContent.insert(clips.back()->fingerprint.toString(), clips.back().get());
    }
    if (!byContent.isEmpty()) {
        std::erase_if(rows, [&](const ClipRef& row) {
            Clip* const clip = byContent.value(row->fingerprint.toString());
            if (!clip || joined.replaced.contains(clip->id))
                return false;
            inherit(*clip, *row);
            joined.replaced.insert(clip->id, row->id);
            return true;
        });
    }
    joined.clips.assign(clips.begin(), clips.end());
    std::ranges::move(rows, std::back_inserter(joined.clips));
    return joined;
}

} // namespace vellumry
