// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"
#include "panel/PanelModel.h"
#include "platform/display/DragSource.h"

#include <QHash>
#include <vector>

namespace vellumry {

/// What a drag of `clips` carries, in their order. Texts keep their forms; several of them become one plain text. Files
/// are those that still exist. Pictures are files under their titles, and the picture itself where there is only one.
/// A clip whose payload is not at hand gives nothing but its files. Pure.
[[nodiscard]] DragSource::Content dragContents(const std::vector<ClipRef>& clips,
                                               const QHash<QUuid, ClipPayload>& payloads,
                                               const PanelModel::FileStatuses& statuses);

/// The name of the file that a picture becomes: its title without what no file name may have, and ".png".
[[nodiscard]] QString pictureFileName(const QString& title);

} // namespace vellumry
