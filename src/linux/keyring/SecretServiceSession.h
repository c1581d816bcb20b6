// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/keyring/GObjectPointer.h"
#include "linux/keyring/KeychainKeyStore.h"
#include "linux/keyring/PrivateMainContext.h"

#include <QByteArray>
#include <libsecret/secret.h>
#include <vector>

namespace vellumry {

/// One conversation with the Secret Service about the items of one `service` and `account`. Blocking calls with a
/// deadline each; every failure is thrown as `CryptoError::keychain` with a `KeychainKeyStore::Status`. One thread.
class SecretServiceSession {
public:
    /// Connects and agrees on an encrypted transfer.
    SecretServiceSession(QByteArray service, QByteArray account, KeychainKeyStore::Patience patience);
    SecretServiceSession(const SecretServiceSession&) = delete;
    SecretServiceSession& operator=(const SecretServiceSession&) = delete;

    using Items = std::vector<GObjectPointer<SecretItem>>;
    /// The items, oldest first, those of locked collections included where the service shows them.
    [[nodiscard]] Items findItems();
    /// True when nothing that `findItems` should have seen can have been hidden from it.
    [[nodiscard]] bool isDefaultCollectionUnlocked();
    /// Has the user unlock the default collection.
    void unlockDefaultCollection();
    /// The item's secret, after the user has unlocked it where needed. Lies in memory that is wiped.
    [[nodiscard]] SecureBytes secretOf(SecretItem* item);
    /// Adds an item to the default collection, which is made where there is none.
    void addItem(const char* label, std::span<const unsigned char> secret);

private:
    [[nodiscard]] GObjectPointer<SecretCollection> defaultCollection();
    [[nodiscard]] GObjectPointer<SecretCollection> makeDefaultCollection();
    [[nodiscard]] bool isAnyCollectionLocked();
    void unlock(gpointer object);

    QByteArray m_serviceAttribute;
    QByteArray m_accountAttribute;
    KeychainKeyStore::Patience m_patience;
    /// First, so that it goes last and takes along what the others left with it: the connection closes then.
    PrivateMainContext m_context;
    GObjectPointer<GDBusConnection> m_bus;
    GObjectPointer<SecretService> m_service;
};

} // namespace vellumry
