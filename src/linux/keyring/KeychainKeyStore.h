// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/KeyStore.h"

#include <QString>
#include <chrono>

namespace vellumry {

/// Keeps the history key in the desktop's keyring, by way of the Secret Service (freedesktop Secret Service API 0.2,
/// through libsecret). Blocks: both calls belong on a worker thread. One call at a time.
///
/// The key is an item of the default collection with the attributes `service` and `account`: 32 raw bytes, content type
/// `application/octet-stream`. A keyring that is locked is never taken for one that does not have the key: the user is
/// asked to unlock it, and a refusal is an error.
class KeychainKeyStore : public KeyStore {
public:
    /// How long the keyring's daemon may take to answer, and how long a person may take to type a password.
    struct Patience {
        std::chrono::milliseconds answer = std::chrono::seconds(10);
        std::chrono::milliseconds unlock = std::chrono::seconds(60);
    };

    /// The numbers carried by `CryptoError::keychain`.
    enum Status : qint32 {
        userCanceled = -128,            ///< the user dismissed the prompt, or did not answer it in time
        notAvailable = -25291,          ///< no session bus, no Secret Service on it, or it does not answer
        duplicateItem = -25299,         ///< there is a key already; it is not replaced
        interactionNotAllowed = -25308, ///< the keyring is locked and nobody can be asked to unlock it
    };

    KeychainKeyStore() = default;
    explicit KeychainKeyStore(Patience patience)
        : m_patience(patience) {}

    /// Throws `CryptoError::keychain` with a `Status`, or `invalidKeyData` for an item that is not 32 bytes long. Of
    /// several items the oldest counts: it is the one that the history was sealed with.
    [[nodiscard]] std::optional<SymmetricKey> load() override;
    /// Throws `CryptoError::keychain` with a `Status`.
    void save(const SymmetricKey& key) override;

private:
    QString m_service = QStringLiteral("com.vellumry.Vellumry.history");
    QString m_account = QStringLiteral("history-key-v1");
    Patience m_patience;
};

} // namespace vellumry
