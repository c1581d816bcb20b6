// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/SecureBytes.h"

#include <QByteArray>
#include <algorithm>
#include <gtest/gtest.h>
#include <stdexcept>

namespace vellumry {

TEST(SecureBytes, HoldsACopyOfItsOwn) {
    QByteArray source("secret");
    const SecureBytes bytes(source);
    source.fill('x');
    EXPECT_EQ(bytes, SecureBytes(QByteArray("secret")));
    EXPECT_NE(bytes, SecureBytes(QByteArray("secreT")));
    EXPECT_NE(bytes, SecureBytes(QByteArray("secre")));
}

TEST(SecureBytes, CopiesAndMoves) {
    SecureBytes first(QByteArray("abc"));
    const SecureBytes copy = first;
    EXPECT_EQ(copy, first);
    EXPECT_NE(copy.bytes().data(), first.bytes().data());
    const SecureBytes moved = std::move(first);
    EXPECT_EQ(moved, copy);
    SecureBytes assigned;
    assigned = moved;
    EXPECT_EQ(assigned, copy);
}

TEST(SecureBytes, BeginAsZeroAndMayBeEmpty) {
    const SecureBytes zeros(100);
    EXPECT_TRUE(std::all_of(zeros.bytes().begin(), zeros.bytes().end(), [](unsigned char byte) { return byte == 0; }));
    EXPECT_EQ(SecureBytes().size(), 0u);
    EXPECT_EQ(SecureBytes(), SecureBytes(QByteArray()));
}

TEST(SecureBytes, WipingLeavesNothing) {
    char memory[] = "secret";
    wipe(memory, sizeof memory);
    EXPECT_TRUE(std::all_of(std::begin(memory), std::end(memory), [](char byte) { return byte == 0; }));
}

TEST(SymmetricKey, HasExactly32Bytes) {
    EXPECT_EQ(SymmetricKey(QByteArray(32, 'k')).bytes().size(), 32u);
    EXPECT_THROW(SymmetricKey(QByteArray(31, 'k')), std::invalid_argument);
    EXPECT_THROW(SymmetricKey(QByteArray(33, 'k')), std::invalid_argument);
}

TEST(SymmetricKey, RandomKeysDiffer) {
    EXPECT_NE(SymmetricKey::random(), SymmetricKey::random());
}

} // namespace vellumry
