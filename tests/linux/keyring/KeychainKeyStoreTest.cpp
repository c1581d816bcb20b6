// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/keyring/KeychainKeyStore.h"

#include "linux/PrivateBus.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

constexpr KeychainKeyStore::Patience shortPatience{std::chrono::milliseconds(2000), std::chrono::milliseconds(2000)};

const QStringList keyAttributes{QStringLiteral("service"), QStringLiteral("com.vellumry.Vellumry.history"),
                                QStringLiteral("account"), QStringLiteral("history-key-v1")};

QByteArray bytesOf(const SymmetricKey& key) {
    return QByteArray(reinterpret_cast<const char*>(key.bytes().data()), static_cast<qsizetype>(key.bytes().size()));
}

/// The error that `call` ends with; nothing when it ends well.
template <typename Call>
std::optional<CryptoError> errorOf(Call call) {
    try {
        call();
    } catch (const CryptoError& error) {
        return error;
    }
    return std::nullopt;
}

std::optional<CryptoError> loadError(KeychainKeyStore& store) {
    return errorOf([&store] { (void)store.load(); });
}

bool storeFromOutside(PrivateBus& bus, const QByteArray& secret) {
    const QStringList arguments = QStringList{QStringLiteral("store"), QStringLiteral("--label=any")} + keyAttributes;
    return bus.output(QStringLiteral("secret-tool"), arguments, secret).has_value();
}

class KeychainKeyStoreTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(bus.isRunning());
        ASSERT_TRUE(bus.startKeyring());
    }

    PrivateBus bus;
    KeychainKeyStore store{shortPatience};
};

TEST_F(KeychainKeyStoreTest, AnUnlockedKeyringWithoutTheKeyIsAFirstStart) {
    const std::optional<SymmetricKey> key = store.load();
    EXPECT_FALSE(key.has_value());
}

TEST_F(KeychainKeyStoreTest, ASavedKeyIsLoadedByTheNextStore) {
    const SymmetricKey key = SymmetricKey::random();
    store.save(key);
    KeychainKeyStore other(shortPatience);
    const std::optional<SymmetricKey> loaded = other.load();
    ASSERT_TRUE(loaded.has_value());
    EXPECT_EQ(*loaded, key);
}

TEST_F(KeychainKeyStoreTest, OtherProgramsFindTheRawKeyByItsAttributes) {
    const SymmetricKey key(QByteArray("0123456789abcdef0123456789ABCDEF"));
    store.save(key);
    const auto found = bus.output(QStringLiteral("secret-tool"), QStringList{QStringLiteral("lookup")} + keyAttributes);
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(*found, bytesOf(key));
    const auto item = bus.output(QStringLiteral("secret-tool"), QStringList{QStringLiteral("search")} + keyAttributes);
    ASSERT_TRUE(item.has_value());
    EXPECT_TRUE(item->contains("label = Vellumry history key")) << item->toStdString();
}

TEST_F(KeychainKeyStoreTest, SavingNeverReplacesAKey) {
    const SymmetricKey first = SymmetricKey::random();
    store.save(first);
    const auto error = errorOf([this] { store.save(SymmetricKey::random()); });
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->kind(), CryptoError::Case::keychain);
    EXPECT_EQ(error->status(), KeychainKeyStore::duplicateItem);
    EXPECT_EQ(store.load(), first);
}

TEST_F(KeychainKeyStoreTest, AnItemOfSixteenBytesIsADamagedKey) {
    ASSERT_TRUE(storeFromOutside(bus, "0123456789abcdef"));
    const auto error = loadError(store);
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->kind(), CryptoError::Case::invalidKeyData);
    EXPECT_EQ(error->errorDescription(), QStringLiteral("The stored encryption key is damaged."));
}

TEST_F(KeychainKeyStoreTest, AnEmptyItemIsADamagedKey) {
    ASSERT_TRUE(storeFromOutside(bus, ""));
    const auto error = loadError(store);
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->kind(), CryptoError::Case::invalidKeyData);
}

TEST_F(KeychainKeyStoreTest, ALockedKeyringWithTheKeyIsAnErrorNotAFirstStart) {
    store.save(SymmetricKey::random());
    ASSERT_TRUE(bus.lockKeyring());
    const auto error = loadError(store);
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->kind(), CryptoError::Case::keychain);
}

TEST_F(KeychainKeyStoreTest, ALockedKeyringWithoutTheKeyIsAnErrorNotAFirstStart) {
    ASSERT_TRUE(bus.lockKeyring());
    const auto error = loadError(store);
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->kind(), CryptoError::Case::keychain);
}

TEST_F(KeychainKeyStoreTest, SavingToALockedKeyringIsAnError) {
    ASSERT_TRUE(bus.lockKeyring());
    const auto error = errorOf([this] { store.save(SymmetricKey::random()); });
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->kind(), CryptoError::Case::keychain);
}

TEST_F(KeychainKeyStoreTest, AHangingKeyringIsGivenUp) {
    bus.setKeyringHanging(true);
    const auto error = loadError(store);
    bus.setKeyringHanging(false);
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->status(), KeychainKeyStore::notAvailable);
    EXPECT_FALSE(store.load().has_value());
}

TEST(KeychainKeyStore, WithoutAServiceOnTheBusFailsAtOnce) {
    const PrivateBus bus;
    ASSERT_TRUE(bus.isRunning());
    KeychainKeyStore store;
    QElapsedTimer timer;
    timer.start();
    const auto error = loadError(store);
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->kind(), CryptoError::Case::keychain);
    EXPECT_EQ(error->status(), KeychainKeyStore::notAvailable);
    EXPECT_LT(timer.elapsed(), 5000) << "the deadline of ten seconds, not the answer, ended the call";
}

TEST(KeychainKeyStore, WithoutABusFails) {
    const PrivateBus bus;
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + bus.folder().toLocal8Bit() + "/nobody");
    KeychainKeyStore store;
    const auto error = loadError(store);
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->status(), KeychainKeyStore::notAvailable);
    const auto saving = errorOf([&store] { store.save(SymmetricKey::random()); });
    EXPECT_TRUE(saving.has_value());
}

} // namespace
} // namespace vellumry
