// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/MemoryKeyStore.h"

namespace vellumry {

std::optional<SymmetricKey> MemoryKeyStore::load() {
    const std::lock_guard guard(m_lock);
    return m_key;
}

void MemoryKeyStore::save(const SymmetricKey& key) {
    const std::lock_guard guard(m_lock);
    m_key = key;
}

} // namespace vellumry
