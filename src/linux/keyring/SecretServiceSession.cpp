// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/keyring/SecretServiceSession.h"

#include "foundation/Localisation.h"
#include "foundation/Logging.h"
#include "linux/keyring/CallDeadline.h"

#include <algorithm>

namespace vellumry {

namespace {

constexpr auto contentType = "application/octet-stream";
constexpr auto defaultAlias = "default";

const SecretSchema keySchema = {"com.vellumry.Vellumry.HistoryKey",
                                SECRET_SCHEMA_DONT_MATCH_NAME,
                                {{"service", SECRET_SCHEMA_ATTRIBUTE_STRING},
                                 {"account", SECRET_SCHEMA_ATTRIBUTE_STRING},
                                 {nullptr, SECRET_SCHEMA_ATTRIBUTE_STRING}},
                                0,
                                nullptr,
                                nullptr,
                                nullptr,
                                nullptr,
                                nullptr,
                                nullptr,
                                nullptr};

struct AttributesUnreference {
    void operator()(GHashTable* table) const { g_hash_table_unref(table); }
};
using Attributes = std::unique_ptr<GHashTable, AttributesUnreference>;

struct SecretValueUnreference {
    void operator()(SecretValue* value) const { secret_value_unref(value); }
};
using Secret = std::unique_ptr<SecretValue, SecretValueUnreference>;

Attributes attributesOf(const QByteArray& service, const QByteArray& account) {
    return Attributes(
        secret_attributes_build(&keySchema, "service", service.constData(), "account", account.constData(), nullptr));
}

} // namespace

SecretServiceSession::SecretServiceSession(Item item, KeyStore::Asking asking, KeychainKeyStore::Patience patience,
                                           std::stop_token stop)
    : m_item(std::move(item))
    , m_asking(asking)
    , m_patience(patience)
    , m_stop(std::move(stop)) {
    const CallDeadline deadline(m_patience.answer, m_stop);
    GErrorReceiver error;
    m_bus.reset(g_bus_get_sync(G_BUS_TYPE_SESSION, deadline.cancellable(), error.receive()));
    if (!m_bus)
        fail(error);
    // Otherwise GIO ends the process when the bus goes away.
    g_dbus_connection_set_exit_on_close(m_bus.get(), FALSE);
    m_service.reset(secret_service_open_sync(SECRET_TYPE_SERVICE, nullptr, SECRET_SERVICE_OPEN_SESSION,
                                             deadline.cancellable(), error.receive()));
    if (!m_service)
        fail(error);
}

void SecretServiceSession::fail(const GErrorReceiver& error) const {
    if (error.is(SECRET_ERROR, SECRET_ERROR_IS_LOCKED))
        throw SecretServiceError{KeyFailure::locked};
    if (error.is(G_DBUS_ERROR, G_DBUS_ERROR_ACCESS_DENIED))
        throw SecretServiceError{KeyFailure::refused};
    qCInfo(logging::keyring) << "the keyring gives no answer:" << error.domain() << error.code();
    throw SecretServiceError{KeyFailure::absent};
}

void SecretServiceSession::requireAsking(KeyFailure otherwise) const {
    if (m_asking == KeyStore::Asking::forbidden)
        throw SecretServiceError{otherwise};
}

SecretServiceSession::Items SecretServiceSession::findItems() {
    const CallDeadline deadline(m_patience.answer, m_stop);
    GErrorReceiver error;
    const Attributes attributes = attributesOf(m_item.service, m_item.account);
    GList* found = secret_service_search_sync(m_service.get(), &keySchema, attributes.get(), SECRET_SEARCH_ALL,
                                              deadline.cancellable(), error.receive());
    Items items;
    for (GList* link = found; link; link = link->next)
        items.emplace_back(SECRET_ITEM(link->data));
    g_list_free(found);
    if (error)
        fail(error);
    std::stable_sort(items.begin(), items.end(), [](const auto& a, const auto& b) {
        return secret_item_get_created(a.get()) < secret_item_get_created(b.get());
    });
    return items;
}

GObjectPointer<SecretCollection> SecretServiceSession::defaultCollection() {
    const CallDeadline deadline(m_patience.answer, m_stop);
    GErrorReceiver error;
    GObjectPointer<SecretCollection> collection(secret_collection_for_alias_sync(
        m_service.get(), defaultAlias, SECRET_COLLECTION_NONE, deadline.cancellable(), error.receive()));
    if (error)
        fail(error);
    return collection;
}

bool SecretServiceSession::isAnyCollectionLocked() {
    const CallDeadline deadline(m_patience.answer, m_stop);
    GErrorReceiver error;
    if (!secret_service_load_collections_sync(m_service.get(), deadline.cancellable(), error.receive()))
        fail(error);
    bool isLocked = false;
    GList* collections = secret_service_get_collections(m_service.get());
    for (GList* link = collections; link; link = link->next)
        isLocked = isLocked || secret_collection_get_locked(SECRET_COLLECTION(link->data));
    g_list_free_full(collections, g_object_unref);
    return isLocked;
}

bool SecretServiceSession::isDefaultCollectionLocked() {
    const auto collection = defaultCollection();
    return collection && secret_collection_get_locked(collection.get());
}

bool SecretServiceSession::isEverythingOpen() {
    return defaultCollection() && !isAnyCollectionLocked();
}

void SecretServiceSession::unlockDefaultCollection() {
    const auto collection = defaultCollection();
    if (!collection)
        throw SecretServiceError{KeyFailure::locked};
    unlock(collection.get());
}

void SecretServiceSession::unlock(gpointer object) {
    requireAsking(KeyFailure::locked);
    const CallDeadline deadline(m_patience.unlock, m_stop);
    GErrorReceiver error;
    GList objects{object, nullptr, nullptr};
    GList* unlocked = nullptr;
    const int count =
        secret_service_unlock_sync(m_service.get(), &objects, deadline.cancellable(), &unlocked, error.receive());
    g_list_free_full(unlocked, g_object_unref);
    if (deadline.hasPassed() || error || count < 1)
        throw SecretServiceError{KeyFailure::locked};
}

SecureBytes SecretServiceSession::secretOf(SecretItem* item) {
    if (secret_item_get_locked(item))
        unlock(item);
    const CallDeadline deadline(m_patience.answer, m_stop);
    GErrorReceiver error;
    if (!secret_item_load_secret_sync(item, deadline.cancellable(), error.receive()))
        fail(error);
    const Secret secret(secret_item_get_secret(item));
    if (!secret)
        throw SecretServiceError{KeyFailure::locked};
    gsize length = 0;
    const char* bytes = secret_value_get(secret.get(), &length);
    return SecureBytes(QByteArrayView(bytes, static_cast<qsizetype>(length)));
}

GObjectPointer<SecretCollection> SecretServiceSession::makeDefaultCollection() {
    requireAsking(KeyFailure::uncertain);
    const CallDeadline deadline(m_patience.unlock, m_stop);
    GErrorReceiver error;
    const QByteArray label = localised("Default keyring").toUtf8();
    GObjectPointer<SecretCollection> collection(
        secret_collection_create_sync(m_service.get(), label.constData(), defaultAlias, SECRET_COLLECTION_CREATE_NONE,
                                      deadline.cancellable(), error.receive()));
    if (!collection)
        throw SecretServiceError{KeyFailure::refused};
    return collection;
}

void SecretServiceSession::addItem(const char* label, std::span<const unsigned char> secret) {
    auto collection = defaultCollection();
    if (!collection)
        collection = makeDefaultCollection();
    if (secret_collection_get_locked(collection.get()))
        unlock(collection.get());

    const CallDeadline deadline(m_patience.unlock, m_stop);
    GErrorReceiver error;
    const Attributes attributes = attributesOf(m_item.service, m_item.account);
    const Secret value(secret_value_new(reinterpret_cast<const char*>(secret.data()),
                                        static_cast<gssize>(secret.size()), contentType));
    const GObjectPointer<SecretItem> item(secret_item_create_sync(collection.get(), &keySchema, attributes.get(), label,
                                                                  value.get(), SECRET_ITEM_CREATE_NONE,
                                                                  deadline.cancellable(), error.receive()));
    if (!item)
        fail(error);
}

} // namespace vellumry
