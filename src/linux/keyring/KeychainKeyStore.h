// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/KeyStore.h"

#include <QString>
#include <chrono>
#include <memory>
#include <mutex>
#include <stop_token>

namespace vellumry {

class SecretServiceWatch;

/// Keeps the history key in the desktop's keyring, by way of the Secret Service (freedesktop Secret Service API 0.2,
/// through libsecret).
///
/// The key is an item of the default collection with the attributes `service` and `account`: 32 raw bytes, content type
/// `application/octet-stream`. A keyring that is locked, closed or not there is never taken for one that does not have
/// the key: the user is asked to unlock it, and a refusal is a failure.
class KeychainKeyStore : public KeyStore {
public:
    /// How long the keyring's daemon may take to answer, and how long a person may take to type a password.
    struct Patience {
        std::chrono::milliseconds answer = std::chrono::seconds(10);
        std::chrono::milliseconds unlock = std::chrono::minutes(10);
    };

    KeychainKeyStore();
    explicit KeychainKeyStore(Patience patience);
    ~KeychainKeyStore() override;

    /// Of several items the oldest counts: it is the one that the history was sealed with.
    [[nodiscard]] std::expected<std::optional<SymmetricKey>, KeyFailure> load(Asking asking) override;
    [[nodiscard]] std::expected<void, KeyFailure> save(const SymmetricKey& key, Asking asking) override;
    /// Calls back when a service comes or goes and when one of its keyrings is opened, locked or made.
    void watch(std::function<void()> onChanged) override;
    /// When no call is under way, the next one fails.
    void interrupt() override;

private:
    template <typename Result, typename Work>
    [[nodiscard]] Result inSession(Asking asking, Work work);
    [[nodiscard]] std::stop_token stopToken();

    QString m_service = QStringLiteral("com.vellumry.Vellumry.history");
    QString m_account = QStringLiteral("history-key-v1");
    Patience m_patience;
    std::mutex m_mutex;
    std::stop_source m_stop;
    std::unique_ptr<SecretServiceWatch> m_watch;
};

} // namespace vellumry
