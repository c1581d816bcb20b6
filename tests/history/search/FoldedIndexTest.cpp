// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/search/FoldedIndex.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <random>

namespace vellumry {
namespace {

using Slot = FoldedIndex::Slot;
using Slots = std::vector<Slot>;

Slots found(const FoldedIndex& index, const QByteArray& needle) {
    Slots slots;
    index.scan(ByteSearch(needle), [&](Slot slot) { slots.push_back(slot); });
    std::sort(slots.begin(), slots.end());
    return slots;
}

TEST(FoldedIndex, FindsEachTextOnceHoweverOftenItHasTheNeedle) {
    FoldedIndex index;
    const Slot first = index.append("banana");
    index.append("cherry");
    const Slot third = index.append("bandana");
    EXPECT_EQ(found(index, "an"), (Slots{first, third}));
}

TEST(FoldedIndex, ALongTextIsSearchedWhereItLies) {
    FoldedIndex index;
    const QByteArray body = "Long WORDS, " + QByteArray(5000, 'x') + " Z[@`{_";
    index.append("xyz");
    const Slot slot = index.append("title\n", body, "\nmail\n");
    EXPECT_EQ(index.byteCount(), 3 + 6 + body.size() + 6U);
    EXPECT_LT(index.capacity(), (std::size_t{1} << 20) + 1) << "it is in no chunk";
    for (const char* needle : {"long words", "title", "mail", "z[@`{_", "title\nlong", "_\nmail"}) {
        EXPECT_EQ(found(index, needle), Slots{slot}) << needle;
        EXPECT_TRUE(index.matches(ByteSearch(needle), slot)) << needle;
    }
    for (const char* needle : {"words, xx ", "title\nmail", "title\n\nmail", "z{", "\xC3\xBC"})
        EXPECT_TRUE(found(index, needle).empty()) << needle;
    EXPECT_EQ(found(index, "x").size(), 2U);
    index.remove(slot);
    EXPECT_TRUE(found(index, "words").empty());
    EXPECT_EQ(index.byteCount(), 3U);
}

TEST(FoldedIndex, ALongTextStaysWholeWhenItsNeighboursMove) {
    FoldedIndex index;
    std::vector<Slot> others;
    for (int number = 0; number < 50; ++number)
        others.push_back(index.append("other"));
    const Slot slot = index.append("title\n", "BODY", "\nmail\n");
    for (const Slot other : others)
        index.remove(other);
    index.recycle();
    EXPECT_EQ(found(index, "title\nbody\nmail"), Slots{slot});
    EXPECT_EQ(found(index, "body"), Slots{slot});
    EXPECT_EQ(index.lengthOf(slot), 16U);
}

TEST(FoldedIndex, NoNeedleReachesFromOneTextIntoTheNext) {
    FoldedIndex index;
    index.append("ab");
    index.append("cd");
    EXPECT_TRUE(found(index, "bc").empty());
}

TEST(FoldedIndex, AnEmptyTextIsNeverFound) {
    FoldedIndex index;
    index.append("");
    const Slot second = index.append("x");
    EXPECT_EQ(found(index, "x"), Slots{second});
}

TEST(FoldedIndex, ARemovedTextIsGoneAtOnce) {
    FoldedIndex index;
    const Slot slot = index.append("secret");
    index.append("other");
    index.remove(slot);
    EXPECT_FALSE(index.contains(slot));
    EXPECT_TRUE(found(index, "secret").empty());
    EXPECT_TRUE(found(index, QByteArray(1, '\0')).empty());
    EXPECT_EQ(index.byteCount(), 5U);
}

TEST(FoldedIndex, ARemovedSlotIsUsedAgainOnlyAfterRecycling) {
    FoldedIndex index;
    const Slot removed = index.append("one");
    index.remove(removed);
    EXPECT_NE(index.append("two"), removed);
    index.recycle();
    EXPECT_EQ(index.append("three"), removed);
}

TEST(FoldedIndex, GivesMemoryBackWhenMostTextsAreGone) {
    FoldedIndex index;
    Slots slots;
    for (int count = 0; count < 8000; ++count)
        slots.push_back(index.append(QByteArray(1000, 'x') + QByteArray::number(count)));
    const std::size_t full = index.capacity();
    for (std::size_t at = 0; at < slots.size(); ++at)
        if (at % 10 != 0)
            index.remove(slots[at]);
    index.recycle();
    EXPECT_LT(index.capacity(), full / 3);
    EXPECT_EQ(found(index, "x").size(), 800U);
    EXPECT_EQ(found(index, "x7990"), Slots{slots[7990]});
}

TEST(FoldedIndex, ATextLongerThanAChunkIsFoundToItsLastByte) {
    FoldedIndex index;
    index.append("short");
    const Slot slot = index.append(QByteArray(3 << 20, 'x') + "end");
    const Slot last = index.append("the end");
    EXPECT_EQ(found(index, "end"), (Slots{slot, last}));
    EXPECT_TRUE(index.matches(ByteSearch("xend"), slot));
    EXPECT_FALSE(index.matches(ByteSearch("xend"), last));
}

TEST(FoldedIndex, HoldsWhatAMapWouldHoldThroughRandomChanges) {
    std::mt19937 random(7);
    FoldedIndex index;
    std::map<Slot, QByteArray> expected;
    for (int step = 0; step < 4000; ++step) {
        if (expected.empty() || random() % 5 < 3) {
            QByteArray text;
            // Some texts fill much of a chunk, so that chunks come and go.
            const unsigned length = random() % 50 == 0 ? 200'000 + random() % 400'000 : random() % 40;
            for (unsigned count = 0; count < length; ++count)
                text += static_cast<char>('a' + random() % 3);
            const Slot slot = index.append(text);
            ASSERT_FALSE(expected.contains(slot));
            expected[slot] = text;
        } else {
            const auto victim = std::next(expected.begin(), static_cast<long>(random() % expected.size()));
            index.remove(victim->first);
            expected.erase(victim);
        }
        if (random() % 20 == 0)
            index.recycle();
        if (step % 400 == 399) {
            const QByteArray needle = step % 800 == 799 ? "abcabca" : "ccc";
            Slots slots;
            for (const auto& [slot, text] : expected)
                if (text.contains(needle))
                    slots.push_back(slot);
            ASSERT_EQ(found(index, needle), slots);
        }
    }
}

} // namespace
} // namespace vellumry
