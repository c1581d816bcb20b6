// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"
#include "history/clips/Provenance.h"
#include "platform/display/SourceApp.h"

#include <memory>
#include <optional>

namespace vellumry {

/// One entry to import.
struct ImportEntry {
    ClipPayload payload{}; ///< empty for one that must not be, or cannot be
    Provenance provenance{};
    SourceApp source{};
    std::optional<QString> title{}; ///< where it is known; else the content gives it one
    bool isScreenshot = false;
    bool isLocked = false; ///< kept encrypted, or marked as a secret

    bool operator==(const ImportEntry&) const = default;
};

/// Entries one after the other, the newest first. May block; one thread at a time.
class ImportSource {
public:
    virtual ~ImportSource() = default;
    /// Nothing behind the last that can be read.
    [[nodiscard]] virtual std::optional<ImportEntry> next() = 0;
    /// True when what was read so far ended before its end.
    [[nodiscard]] virtual bool isDamaged() const = 0;
};

} // namespace vellumry
