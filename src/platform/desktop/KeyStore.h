// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/SecureBytes.h"

#include <expected>
#include <functional>
#include <optional>

namespace vellumry {

/// Why the history key cannot be had, or kept.
enum class KeyFailure {
    absent,    ///< there is no service that keeps secrets, or it does not answer
    uncertain, ///< no key where the service could look, but it could not look everywhere, or has no keyring at all
    locked,    ///< the keyring is locked and stayed so
    refused,   ///< the service, or the user, does not give the key or take it
    damaged,   ///< what is kept under the key's name is no key
};

/// Where the history key lives.
///
/// `load` and `save` may block and belong on a worker thread, one call at a time; the rest on the main one.
class KeyStore {
public:
    /// Whether the user may be asked for a password on the way.
    enum class Asking { allowed, forbidden };

    virtual ~KeyStore() = default;
    /// The stored key; no key when it is certain that there is none.
    [[nodiscard]] virtual std::expected<std::optional<SymmetricKey>, KeyFailure> load(Asking asking) = 0;
    /// Stores the key; never replaces one.
    [[nodiscard]] virtual std::expected<void, KeyFailure> save(const SymmetricKey& key, Asking asking) = 0;
    /// From now on `onChanged` is called whenever what failed may go well now. Once.
    virtual void watch(std::function<void()> onChanged) { (void)onChanged; }
    /// Ends the call that blocks a worker thread, if there is one; it fails. Any thread.
    virtual void interrupt() {}
};

} // namespace vellumry
