// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/SerialExecutor.h"
#include "history/clips/Clip.h"
#include "history/file/ClipCrypto.h"

#include <QCoroTask>
#include <memory>

namespace vellumry {

/// Computes fingerprints where it blocks nothing: at once for what is small, on a thread of its own for payloads of
/// many bytes. Main thread. Its end waits for the hash under way.
class ClipHasher {
public:
    /// As `fingerprintOf`. Suspends for a payload of more than 256 KiB only; from then on the hasher may be gone.
    [[nodiscard]] QCoro::Task<Fingerprint> fingerprint(ClipDraft draft, std::shared_ptr<const ClipCrypto> crypto);

private:
    std::unique_ptr<SerialExecutor> m_executor; ///< made for the first large payload
};

} // namespace vellumry
