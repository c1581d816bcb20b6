// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/SerialExecutor.h"
#include "history/clips/Clip.h"
#include "history/file/ClipCrypto.h"

#include <QCoroTask>
#include <memory>

namespace vellumry {

/// Computes fingerprints where it holds nobody up: at once for what is small, on a thread of its own for payloads of
/// many bytes. Main thread. The cipher must outlive it; its end waits for the hash under way.
class ClipHasher {
public:
    explicit ClipHasher(const ClipCrypto& crypto)
        : m_crypto(&crypto) {}

    /// As `fingerprintOf`. Suspends for a payload of more than 256 KiB only; from then on the hasher may be gone.
    [[nodiscard]] QCoro::Task<Fingerprint> fingerprint(ClipDraft draft);

private:
    const ClipCrypto* m_crypto;
    std::unique_ptr<SerialExecutor> m_executor; ///< made for the first large payload
};

} // namespace vellumry
