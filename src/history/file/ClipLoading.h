// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"
#include "history/file/ClipCrypto.h"
#include "history/file/SQLiteDatabase.h"

#include <memory>
#include <vector>

namespace vellumry {

/// Turns rows into clips while the rows are still being read: a thread of its own opens and decodes what the caller's
/// thread has read, and the caller's thread helps when it is ahead or done. One use, one thread.
class ClipLoading {
public:
    explicit ClipLoading(const ClipCrypto& crypto);
    ~ClipLoading();
    ClipLoading(const ClipLoading&) = delete;
    ClipLoading& operator=(const ClipLoading&) = delete;

    /// Takes over a row of id, kind, created, used, pinned, expires, fingerprint, size, meta.
    void take(const SQLiteDatabase::Statement& row);
    /// The clips of all rows in their order, without those of a strange id or kind, or of a meta that does not open or
    /// decode.
    [[nodiscard]] std::vector<ClipRef> finish();

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace vellumry
