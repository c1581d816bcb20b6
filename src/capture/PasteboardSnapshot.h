// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/DraftBuilder.h"
#include "history/clips/Clip.h"
#include "platform/display/Pasteboard.h"
#include "platform/display/SourceApp.h"

#include <QCoroTask>
#include <QSet>
#include <optional>

namespace vellumry {

/// How much of one copy is read.
struct SnapshotLimits {
    /// Most bytes of one representation whose type is not essential; exactly as many are kept.
    qint64 maxRepresentationBytes = qint64{2} << 20;
    /// Most bytes of all representations together; a copy with more is refused as a whole.
    qint64 maxTotalBytes = qint64{100} << 20;
};

/// One copy to be looked at.
struct SnapshotRequest {
    /// The pasteboard's change count when the copy was noticed; contents of any other count are left to their own
    /// request.
    qint64 changeCount = 0;
    SourceApp source;          ///< the application in front, to which the clip is ascribed
    SourceApp owner;           ///< the application that owns the pasteboard, where that is known
    QSet<QString> ignoredApps; ///< identifiers of applications whose copies are never read
    Date now = 0;
    SnapshotLimits limits;
};

/// The draft of what the pasteboard holds, or nothing when the copy is refused, cannot be read or holds nothing of use.
///
/// What is refused is decided by the declared types and the source alone, before any content is asked for. A
/// representation that fails or hangs costs itself only: text is read first, pictures after it, unknown types last.
/// When the deadline of the copy passes or another copy replaces it, what was read until then counts if it makes a
/// clip. An owner that gave nothing of what it offered is asked once more while its copy stands. Main thread; the seams
/// must outlive the task.
[[nodiscard]] QCoro::Task<std::optional<ClipDraft>> readDraft(Pasteboard* pasteboard, DraftBuilder builder,
                                                              SnapshotRequest request);

} // namespace vellumry
