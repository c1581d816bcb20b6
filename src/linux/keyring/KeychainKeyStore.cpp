// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/keyring/KeychainKeyStore.h"

#include "linux/keyring/SecretServiceSession.h"
#include "linux/keyring/SecretServiceWatch.h"

namespace vellumry {

KeychainKeyStore::KeychainKeyStore()
    : KeychainKeyStore(Patience()) {}

KeychainKeyStore::KeychainKeyStore(Patience patience)
    : m_patience(patience) {}

KeychainKeyStore::~KeychainKeyStore() = default;

template <typename Result, typename Work>
Result KeychainKeyStore::inSession(Asking asking, Work work) {
    Result result;
    try {
        SecretServiceSession session({m_service.toUtf8(), m_account.toUtf8()}, asking, m_patience, stopToken());
        result = work(session);
    } catch (const SecretServiceError& error) {
        result = std::unexpected(error.failure);
    }
    const std::lock_guard guard(m_mutex);
    // One that went well was not ended: the word was for what would come next.
    if (!result && m_stop.stop_requested())
        m_stop = std::stop_source();
    return result;
}

std::stop_token KeychainKeyStore::stopToken() {
    const std::lock_guard guard(m_mutex);
    return m_stop.get_token();
}

std::expected<std::optional<SymmetricKey>, KeyFailure> KeychainKeyStore::load(Asking asking) {
    using Result = std::expected<std::optional<SymmetricKey>, KeyFailure>;
    return inSession<Result>(asking, [](SecretServiceSession& session) -> Result {
        auto items = session.findItems();
        if (items.empty() && session.isDefaultCollectionLocked()) {
            // A service may hide what is in a locked keyring. To believe that there is no key would cost the user the
            // history.
            session.unlockDefaultCollection();
            items = session.findItems();
        }
        if (items.empty())
            return session.isEverythingOpen() ? Result(std::nullopt) : std::unexpected(KeyFailure::uncertain);

        const SecureBytes secret = session.secretOf(items.front().get());
        if (secret.size() != SymmetricKey::byteCount)
            return std::unexpected(KeyFailure::damaged);
        const auto bytes = secret.bytes();
        return SymmetricKey(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    });
}

std::expected<void, KeyFailure> KeychainKeyStore::save(const SymmetricKey& key, Asking asking) {
    using Result = std::expected<void, KeyFailure>;
    return inSession<Result>(asking, [&key](SecretServiceSession& session) -> Result {
        if (!session.findItems().empty())
            return std::unexpected(KeyFailure::refused);
        session.addItem("Vellumry history key", key.bytes());
        return {};
    });
}

void KeychainKeyStore::watch(std::function<void()> onChanged) {
    m_watch = std::make_unique<SecretServiceWatch>(std::move(onChanged));
}

void KeychainKeyStore::interrupt() {
    const std::lock_guard guard(m_mutex);
    m_stop.request_stop();
}

} // namespace vellumry
