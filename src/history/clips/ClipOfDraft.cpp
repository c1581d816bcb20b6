// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/ClipOfDraft.h"

namespace vellumry {

Clip clipOfDraft(const ClipDraft& draft, const ClipRef& existing, const Fingerprint& fingerprint, Date now,
                 double lifetime) {
    Clip clip;
    clip.id = existing ? existing->id : QUuid::createUuid();
    clip.kind = draft.kind;
    clip.title = draft.title;
    clip.searchText = draft.searchText;
    clip.title.shareWith(clip.searchText);
    clip.sourceBundleID = draft.sourceBundleID;
    clip.sourceAppName = draft.sourceAppName;
    clip.createdAt = existing ? existing->createdAt : now;
    clip.lastUsedAt = now;
    clip.isPinned = existing && existing->isPinned;
    clip.pinOrder = existing ? existing->pinOrder : 0;
    if (draft.isSensitive)
        clip.expiresAt = now + lifetime;
    clip.fingerprint = fingerprint;
    clip.byteSize = draft.payload.byteCount();
    clip.files = draft.files;
    clip.thumbnail = draft.thumbnail;
    const bool isReadable = draft.kind == ClipKind::image || draft.kind == ClipKind::file;
    if (existing && existing->kind == draft.kind && existing->fingerprint == fingerprint && isReadable) {
        clip.imageText = existing->imageText;
        clip.imageTextIsAccurate = existing->imageTextIsAccurate;
    }
    clip.isScreenshot = draft.isScreenshot || (draft.kind == ClipKind::image && existing && existing->isScreenshot);
    return clip;
}

} // namespace vellumry
