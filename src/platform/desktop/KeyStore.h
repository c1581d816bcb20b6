// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/CryptoError.h"
#include "foundation/SecureBytes.h"

#include <optional>

namespace vellumry {

/// Where the history key lives.
class KeyStore {
public:
    virtual ~KeyStore() = default;
    /// The stored key, or nothing if none was ever stored. Throws `CryptoError`.
    [[nodiscard]] virtual std::optional<SymmetricKey> load() = 0;
    /// Stores the key; never replaces one. Throws `CryptoError`.
    virtual void save(const SymmetricKey& key) = 0;
};

} // namespace vellumry
