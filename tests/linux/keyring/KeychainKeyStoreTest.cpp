// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/keyring/KeychainKeyStore.h"

#include "linux/PrivateBus.h"
#include "support/Eventually.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>
#include <thread>

namespace vellumry {
namespace {

/// A keyring may take seconds to answer on a busy machine.
constexpr KeychainKeyStore::Patience patient{std::chrono::minutes(1), std::chrono::minutes(1)};
constexpr KeychainKeyStore::Patience hurried{std::chrono::seconds(2), std::chrono::seconds(2)};

const QStringList keyAttributes{QStringLiteral("service"), QStringLiteral("com.vellumry.Vellumry.history"),
                                QStringLiteral("account"), QStringLiteral("history-key-v1")};

QByteArray bytesOf(const SymmetricKey& key) {
    return QByteArray(reinterpret_cast<const char*>(key.bytes().data()), static_cast<qsizetype>(key.bytes().size()));
}

using Asking = KeyStore::Asking;

std::optional<KeyFailure> loadFailure(KeychainKeyStore& store, Asking asking = Asking::allowed) {
    const auto loaded = store.load(asking);
    return loaded.has_value() ? std::nullopt : std::optional(loaded.error());
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
    KeychainKeyStore store{patient};
};

TEST_F(KeychainKeyStoreTest, AnUnlockedKeyringWithoutTheKeyIsAFirstStart) {
    const auto loaded = store.load(Asking::allowed);
    ASSERT_TRUE(loaded.has_value());
    EXPECT_FALSE(loaded->has_value());
}

TEST_F(KeychainKeyStoreTest, ASavedKeyIsLoadedByTheNextStore) {
    const SymmetricKey key = SymmetricKey::random();
    ASSERT_TRUE(store.save(key, Asking::forbidden).has_value());
    KeychainKeyStore other(patient);
    EXPECT_EQ(other.load(Asking::forbidden).value(), key);
}

TEST_F(KeychainKeyStoreTest, OtherProgramsFindTheRawKeyByItsAttributes) {
    const SymmetricKey key(QByteArray("0123456789abcdef0123456789ABCDEF"));
    ASSERT_TRUE(store.save(key, Asking::allowed).has_value());
    const auto found = bus.output(QStringLiteral("secret-tool"), QStringList{QStringLiteral("lookup")} + keyAttributes);
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(*found, bytesOf(key));
    const auto item = bus.output(QStringLiteral("secret-tool"), QStringList{QStringLiteral("search")} + keyAttributes);
    ASSERT_TRUE(item.has_value());
    EXPECT_TRUE(item->contains("label = Vellumry history key")) << item->toStdString();
}

TEST_F(KeychainKeyStoreTest, SavingNeverReplacesAKey) {
    const SymmetricKey first = SymmetricKey::random();
    ASSERT_TRUE(store.save(first, Asking::allowed).has_value());
    EXPECT_EQ(store.save(SymmetricKey::random(), Asking::allowed), std::unexpected(KeyFailure::refused));
    EXPECT_EQ(store.load(Asking::allowed).value(), first);
}

TEST_F(KeychainKeyStoreTest, AnItemOfSixteenBytesIsADamagedKey) {
    ASSERT_TRUE(storeFromOutside(bus, "0123456789abcdef"));
    EXPECT_EQ(loadFailure(store), KeyFailure::damaged);
}

TEST_F(KeychainKeyStoreTest, AnEmptyItemIsADamagedKey) {
    ASSERT_TRUE(storeFromOutside(bus, ""));
    EXPECT_EQ(loadFailure(store), KeyFailure::damaged);
}

TEST_F(KeychainKeyStoreTest, ALockedKeyringIsNeverAFirstStart) {
    ASSERT_TRUE(bus.lockKeyring());
    EXPECT_EQ(loadFailure(store), KeyFailure::locked) << "without the key";
    EXPECT_EQ(loadFailure(store, Asking::forbidden), KeyFailure::locked);
    const auto saved = store.save(SymmetricKey::random(), Asking::allowed);
    EXPECT_EQ(saved, std::unexpected(KeyFailure::locked));
}

TEST_F(KeychainKeyStoreTest, ALockedKeyringWithTheKeyIsAFailure) {
    ASSERT_TRUE(store.save(SymmetricKey::random(), Asking::allowed).has_value());
    ASSERT_TRUE(bus.lockKeyring());
    EXPECT_EQ(loadFailure(store), KeyFailure::locked);
    EXPECT_EQ(loadFailure(store, Asking::forbidden), KeyFailure::locked);
}

TEST_F(KeychainKeyStoreTest, AServiceWithoutAKeyringMayHideTheKey) {
    ASSERT_TRUE(bus.deleteKeyring());
    EXPECT_EQ(loadFailure(store), KeyFailure::uncertain);
    EXPECT_EQ(store.save(SymmetricKey::random(), Asking::forbidden), std::unexpected(KeyFailure::uncertain));
}

TEST_F(KeychainKeyStoreTest, AnotherLockedKeyringMayHideTheKey) {
    ASSERT_TRUE(bus.addLockedKeyring());
    EXPECT_EQ(loadFailure(store), KeyFailure::uncertain);
    const SymmetricKey key = SymmetricKey::random();
    ASSERT_TRUE(store.save(key, Asking::forbidden).has_value());
    EXPECT_EQ(store.load(Asking::forbidden).value(), key);
}

TEST_F(KeychainKeyStoreTest, AKeyringThatIsLockedAndOneThatIsUnlockedAreHeard) {
    int changes = 0;
    store.watch([&changes] { ++changes; });
    ASSERT_TRUE(bus.lockKeyring());
    EXPECT_TRUE(eventually([&changes] { return changes > 0; }, 60'000));
    changes = 0;
    ASSERT_TRUE(bus.unlockKeyring());
    EXPECT_TRUE(eventually([&changes] { return changes > 0; }, 60'000));
    EXPECT_TRUE(store.load(Asking::forbidden).has_value());
}

TEST_F(KeychainKeyStoreTest, AHangingKeyringIsGivenUp) {
    KeychainKeyStore impatient(hurried);
    bus.setKeyringHanging(true);
    EXPECT_EQ(loadFailure(impatient), KeyFailure::absent);
    bus.setKeyringHanging(false);
    EXPECT_FALSE(store.load(Asking::allowed).value().has_value());
}

TEST_F(KeychainKeyStoreTest, ACallThatNobodyWaitsForAnyMoreEnds) {
    KeychainKeyStore waiting({std::chrono::minutes(2), std::chrono::minutes(2)});
    bus.setKeyringHanging(true);
    std::jthread other([&waiting] { waiting.interrupt(); });
    EXPECT_EQ(loadFailure(waiting), KeyFailure::absent);
    bus.setKeyringHanging(false);
    other.join();
    EXPECT_FALSE(waiting.load(Asking::allowed).value().has_value()) << "only that call";
}

TEST(KeychainKeyStore, AServiceThatAppearsIsHeard) {
    PrivateBus bus;
    ASSERT_TRUE(bus.isRunning());
    KeychainKeyStore store(patient);
    EXPECT_EQ(loadFailure(store), KeyFailure::absent);
    int changes = 0;
    store.watch([&changes] { ++changes; });
    ASSERT_TRUE(bus.startKeyring());
    EXPECT_TRUE(eventually([&changes] { return changes > 0; }, 60'000));
    EXPECT_TRUE(store.load(Asking::forbidden).has_value());
}

TEST(KeychainKeyStore, WithoutAServiceOnTheBusFailsAtOnce) {
    const PrivateBus bus;
    ASSERT_TRUE(bus.isRunning());
    KeychainKeyStore store({std::chrono::minutes(2), std::chrono::minutes(2)});
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(loadFailure(store), KeyFailure::absent);
    EXPECT_LT(timer.elapsed(), 100'000) << "the deadline of two minutes, not the answer, ended the call";
}

TEST(KeychainKeyStore, WithoutABusFails) {
    const PrivateBus bus;
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + bus.folder().toLocal8Bit() + "/nobody");
    KeychainKeyStore store;
    EXPECT_EQ(loadFailure(store), KeyFailure::absent);
    EXPECT_EQ(store.save(SymmetricKey::random(), Asking::allowed), std::unexpected(KeyFailure::absent));
}

} // namespace
} // namespace vellumry
