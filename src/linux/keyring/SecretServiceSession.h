// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/keyring/GObjectPointer.h"
#include "linux/keyring/KeychainKeyStore.h"
#include "linux/keyring/PrivateMainContext.h"

#include <QByteArray>
#include <libsecret/secret.h>
#include <vector>

namespace vellumry {

/// What a conversation with the Secret Service ended with.
struct SecretServiceError {
    KeyFailure failure;
};

/// One conversation with the Secret Service about the items of one `service` and `account`. Blocking calls with a
/// deadline each; every failure is thrown as `SecretServiceError`. One thread.
class SecretServiceSession {
public:
    struct Item {
        QByteArray service;
        QByteArray account;
    };
    /// Connects and agrees on an encrypted transfer. Where `asking` is forbidden, what would ask the user fails
    /// instead; once `stop` is requested, so does everything.
    SecretServiceSession(Item item, KeyStore::Asking asking, KeychainKeyStore::Patience patience, std::stop_token stop);
    SecretServiceSession(const SecretServiceSession&) = delete;
    SecretServiceSession& operator=(const SecretServiceSession&) = delete;

    using Items = std::vector<GObjectPointer<SecretItem>>;
    /// The items, oldest first, those of locked collections included where the service shows them.
    [[nodiscard]] Items findItems();
    /// False as well when there is no default collection.
    [[nodiscard]] bool isDefaultCollectionLocked();
    /// True when nothing that `findItems` should have seen can have been hidden from it: there is a default collection,
    /// and none is locked. A service without a default may have its keyring closed.
    [[nodiscard]] bool isEverythingOpen();
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
    void requireAsking(KeyFailure otherwise) const;
    [[noreturn]] void fail(const GErrorReceiver& error) const;

    Item m_item;
    KeyStore::Asking m_asking;
    KeychainKeyStore::Patience m_patience;
    std::stop_token m_stop;
    /// First, so that it goes last and takes along what the others left with it: the connection closes then.
    PrivateMainContext m_context;
    GObjectPointer<GDBusConnection> m_bus;
    GObjectPointer<SecretService> m_service;
};

} // namespace vellumry
