// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/MemoryKeyStore.h"

namespace vellumry {

std::expected<std::optional<SymmetricKey>, KeyFailure> MemoryKeyStore::load(Asking) {
    return key();
}

std::expected<void, KeyFailure> MemoryKeyStore::save(const SymmetricKey& key, Asking) {
    const std::lock_guard guard(m_lock);
    if (m_key)
        return std::unexpected(KeyFailure::refused);
    m_key = key;
    return {};
}

std::optional<SymmetricKey> MemoryKeyStore::key() {
    const std::lock_guard guard(m_lock);
    return m_key;
}

} // namespace vellumry
