// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/KeyStore.h"

#include <mutex>

namespace vellumry {

/// A key store that lasts as long as itself. Any thread.
class MemoryKeyStore : public KeyStore {
public:
    MemoryKeyStore() = default;
    explicit MemoryKeyStore(const SymmetricKey& key)
        : m_key(key) {}
    [[nodiscard]] std::expected<std::optional<SymmetricKey>, KeyFailure> load(Asking asking) override;
    [[nodiscard]] std::expected<void, KeyFailure> save(const SymmetricKey& key, Asking asking) override;
    /// What was saved.
    [[nodiscard]] std::optional<SymmetricKey> key();

private:
    std::mutex m_lock;
    std::optional<SymmetricKey> m_key;
};

} // namespace vellumry
