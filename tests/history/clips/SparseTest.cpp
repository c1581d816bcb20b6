// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/Sparse.h"

#include "history/clips/Clip.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

template <typename T>
class SparseTest : public testing::Test {};

template <typename T>
T some();
template <>
QString some() {
    return QStringLiteral("some");
}
template <>
QByteArray some() {
    return QByteArrayLiteral("some");
}
template <>
StoredText some() {
    return StoredText(QStringLiteral("some"));
}
template <>
double some() {
    return 7;
}

using Kept = testing::Types<QString, QByteArray, StoredText, double>;
TYPED_TEST_SUITE(SparseTest, Kept);

TYPED_TEST(SparseTest, HoldsAValueOrNone) {
    Sparse<TypeParam> kept;
    EXPECT_FALSE(kept.has_value());
    EXPECT_EQ(kept, std::nullopt);
    EXPECT_EQ(kept.value_or(some<TypeParam>()), some<TypeParam>());
    kept = some<TypeParam>();
    EXPECT_TRUE(kept);
    EXPECT_EQ(*kept, some<TypeParam>());
    EXPECT_EQ(kept, some<TypeParam>());
    EXPECT_NE(kept, std::nullopt);
    kept.reset();
    EXPECT_FALSE(kept);
}

TYPED_TEST(SparseTest, GoesToAndFromAnOptional) {
    const std::optional<TypeParam> none;
    const std::optional<TypeParam> one = some<TypeParam>();
    EXPECT_EQ(std::optional<TypeParam>(Sparse<TypeParam>(none)), none);
    EXPECT_EQ(std::optional<TypeParam>(Sparse<TypeParam>(one)), one);
    EXPECT_TRUE(Sparse<TypeParam>(none) == none);
    EXPECT_TRUE(none == Sparse<TypeParam>(none));
    EXPECT_TRUE(one == Sparse<TypeParam>(one));
    EXPECT_FALSE(Sparse<TypeParam>(one) == none);
}

TYPED_TEST(SparseTest, AnEmptyValueIsThere) {
    const Sparse<TypeParam> empty = TypeParam();
    EXPECT_TRUE(empty.has_value());
    EXPECT_EQ(*empty, TypeParam());
    EXPECT_NE(empty, Sparse<TypeParam>());
    const Sparse<TypeParam> copied = std::optional<TypeParam>(empty);
    EXPECT_TRUE(copied.has_value());
}

TYPED_TEST(SparseTest, TakesNoRoomForItsMark) {
    EXPECT_EQ(sizeof(Sparse<TypeParam>), sizeof(TypeParam));
}

TEST(Sparse, ARecordInAListTakesLessThan300Bytes) {
    // With the two counts of std::make_shared and the allocator's own word.
    EXPECT_LE(sizeof(Clip) + 16 + 8, 288U);
}

} // namespace
} // namespace vellumry
