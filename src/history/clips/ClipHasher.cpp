// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/ClipHasher.h"

#include "history/clips/ClipFingerprint.h"

namespace vellumry {

namespace {

/// Hashing more than this on the main thread would be felt under the fingers.
constexpr qint64 mostBytesHere = 256 * 1024;

} // namespace

QCoro::Task<Fingerprint> ClipHasher::fingerprint(ClipDraft draft, std::shared_ptr<const ClipCrypto> crypto) {
    if (draft.payload.byteCount() <= mostBytesHere)
        co_return fingerprintOf(draft, *crypto);
    if (!m_executor)
        m_executor = std::make_unique<SerialExecutor>("hashing");
    auto job = [crypto = std::move(crypto), draft = std::move(draft)] { return fingerprintOf(draft, *crypto); };
    auto running = m_executor->run(std::move(job));
    co_return co_await running;
}

} // namespace vellumry
