// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/KeyStore.h"

#include <mutex>

namespace vellumry {

/// A key store that lasts as long as itself. Any thread.
class MemoryKeyStore : public KeyStore {
public:
    [[nodiscard]] std::optional<SymmetricKey> load() override;
    void save(const SymmetricKey& key) override;

private:
    std::mutex m_lock;
    std::optional<SymmetricKey> m_key;
};

} // namespace vellumry
