// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"
#include "history/clips/RetentionPolicy.h"

#include <QSet>

/// Which clips have to go. Pure; any thread.
namespace vellumry::retention {

/// What the clip counts toward the limit of media bytes: nothing unless it is an image or a file clip.
[[nodiscard]] qint64 mediaBytes(const Clip& clip);

/// The clips, given last used first, that expired or exceed a limit of `policy` at `now`. Expiry spares no pin. Pinned
/// media count toward the limit of bytes and are never removed for it; of the others, the least recently used go first.
[[nodiscard]] QSet<QUuid> doomedClips(const std::vector<ClipRef>& clips, const RetentionPolicy& policy, Date now);

/// Whether space must be given back after these clips went, of so many that were asked for: after a sensitive one
/// always, whose pages may lie in the write-ahead log until then, else for more than a megabyte or from fifty clips on.
[[nodiscard]] bool isWorthReclaiming(const std::vector<ClipRef>& removed, qsizetype askedFor);

} // namespace vellumry::retention
