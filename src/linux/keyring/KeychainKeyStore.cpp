// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/keyring/KeychainKeyStore.h"

#include "linux/keyring/SecretServiceSession.h"

namespace vellumry {

std::optional<SymmetricKey> KeychainKeyStore::load() {
    SecretServiceSession session(m_service.toUtf8(), m_account.toUtf8(), m_patience);
    auto items = session.findItems();
    if (items.empty() && !session.isDefaultCollectionUnlocked()) {
        // A service may hide what is in a locked keyring. To believe that there is no key would cost the user the
        // history.
        session.unlockDefaultCollection();
        items = session.findItems();
    }
    if (items.empty())
        return std::nullopt;

    const SecureBytes secret = session.secretOf(items.front().get());
    if (secret.size() != SymmetricKey::byteCount)
        throw CryptoError::invalidKeyData();
    const auto bytes = secret.bytes();
    return SymmetricKey(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
}

void KeychainKeyStore::save(const SymmetricKey& key) {
    SecretServiceSession session(m_service.toUtf8(), m_account.toUtf8(), m_patience);
    if (!session.findItems().empty())
        throw CryptoError::keychain(duplicateItem);
    session.addItem("Vellumry history key", key.bytes());
}

} // namespace vellumry
