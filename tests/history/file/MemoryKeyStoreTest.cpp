// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/MemoryKeyStore.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

TEST(MemoryKeyStore, HasNoKeyUntilOneIsSaved) {
    MemoryKeyStore store;
    EXPECT_FALSE(store.load().has_value());
    const SymmetricKey key = SymmetricKey::random();
    store.save(key);
    EXPECT_EQ(store.load(), key);
}

} // namespace
} // namespace vellumry
