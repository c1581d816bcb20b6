// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/MemoryKeyStore.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

TEST(MemoryKeyStore, HasNoKeyUntilOneIsSavedAndNeverReplacesIt) {
    using Asking = KeyStore::Asking;
    MemoryKeyStore store;
    ASSERT_TRUE(store.load(Asking::allowed).has_value());
    EXPECT_EQ(store.load(Asking::allowed).value(), std::nullopt);
    const SymmetricKey key = SymmetricKey::random();
    EXPECT_TRUE(store.save(key, Asking::forbidden).has_value());
    EXPECT_EQ(store.load(Asking::forbidden).value(), key);
    EXPECT_EQ(store.save(SymmetricKey::random(), Asking::allowed), std::unexpected(KeyFailure::refused));
    EXPECT_EQ(store.key(), key);
}

} // namespace
} // namespace vellumry
