// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"

#include <memory>
#include <vector>

namespace vellumry {

/// Clips that were taken out of the history, whole, so that they can be put back as they were. The history and its file
/// know nothing of them meanwhile. Shared bytes; cheap to move.
struct RemovedClips {
    struct Entry {
        ClipRef clip;
        ClipPayload payload;
    };
    /// Without those whose payload could not be read.
    std::shared_ptr<std::vector<Entry>> entries = std::make_shared<std::vector<Entry>>();
    quint64 era = 0; ///< of the history they were taken from
};

} // namespace vellumry
