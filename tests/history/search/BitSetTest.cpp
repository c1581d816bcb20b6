// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/search/BitSet.h"

#include <gtest/gtest.h>
#include <random>
#include <set>

namespace vellumry {
namespace {

TEST(BitSet, IsEmptyAtFirst) {
    EXPECT_TRUE(BitSet(0).positions().empty());
    EXPECT_TRUE(BitSet(130).positions().empty());
    EXPECT_FALSE(BitSet(1).contains(0));
}

TEST(BitSet, HoldsWhatWasSetInOrder) {
    std::mt19937 random(5);
    for (const std::size_t bound : {1U, 63U, 64U, 65U, 128U, 1000U}) {
        BitSet bits(bound);
        std::set<std::size_t> expected{bound - 1};
        bits.set(bound - 1);
        for (std::size_t count = 0; count < bound / 3; ++count) {
            const std::size_t number = random() % bound;
            bits.set(number);
            expected.insert(number);
        }
        EXPECT_EQ(bits.positions(), std::vector<std::size_t>(expected.begin(), expected.end())) << bound;
        for (std::size_t number = 0; number < bound; ++number)
            ASSERT_EQ(bits.contains(number), expected.contains(number)) << number;
    }
}

} // namespace
} // namespace vellumry
