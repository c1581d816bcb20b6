// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"

#include <QHash>
#include <optional>
#include <vector>

namespace vellumry {

/// What was cleared before the file was there to be cleared.
enum class ClearedBefore { unpinned, everything };

/// The history as it is when the file's clips and those captured without it have come together.
struct JoinedClips {
    std::vector<ClipRef> clips;
    QHash<QUuid, QUuid> replaced; ///< by a captured clip's identity, that of the row it takes the place of
    std::vector<QUuid> unwanted;  ///< rows that were cleared before they were known
};

/// Gives the clip what a copy of its content would keep of the row whose place it takes: the age, the pin and the text
/// of an unchanged picture.
void inherit(Clip& clip, const Clip& row);

/// Joins the `rows` of a file with the clips that were `captured` meanwhile, whose fingerprints under the file's key
/// are given by identity. A captured clip of the same content takes a row's place as a copy of it would: with its age,
/// its pin and the text of an unchanged picture. It keeps its own identity, which others know already. Pure.
[[nodiscard]] JoinedClips joinClips(std::vector<ClipRef> rows, const std::vector<ClipRef>& captured,
                                    const QHash<QUuid, Fingerprint>& fingerprints,
                                    std::optional<ClearedBefore> cleared);

} // namespace vellumry
