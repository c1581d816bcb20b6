// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ReadLines.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

using readlines::Lines;

TextLine line(const char* text, const QRect& box, double confidence) {
    return {QString::fromUtf8(text), box, confidence};
}

TEST(ReadLines, ConfidenceIsWeighedByLength) {
    EXPECT_DOUBLE_EQ(readlines::confidence({line("abc", {}, 90), line("a", {}, 50)}), 80);
    EXPECT_EQ(readlines::confidence({}), 0);
}

TEST(ReadLines, SamplesAreTheWidestLines) {
    const Lines found = readlines::samples(
        {line("short", {0, 0, 10, 9}, 1), line("longest", {0, 9, 90, 9}, 1), line("long", {0, 20, 50, 9}, 1)}, 2);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].text, QStringLiteral("longest"));
    EXPECT_EQ(found[1].text, QStringLiteral("long"));
}

TEST(ReadLines, AClearlyBetterReadingOfTheSameLineIsTaken) {
    Lines lines{line("helio", {0, 0, 100, 20}, 70), line("fine", {0, 40, 100, 20}, 95)};
    readlines::improve(lines, {line("hello", {1, 1, 99, 19}, 90), line("fime", {0, 40, 100, 20}, 96)});
    EXPECT_EQ(readlines::joined(lines), QStringLiteral("hello\nfine\n"));
}

TEST(ReadLines, ALineThatOneReadingMissedIsAddedWhenItIsSure) {
    Lines lines{line("seen", {0, 0, 100, 20}, 95)};
    readlines::improve(lines, {line("missed", {0, 40, 100, 20}, 90), line("~|", {0, 80, 100, 20}, 30)});
    EXPECT_EQ(readlines::joined(lines), QStringLiteral("seen\nmissed\n"));
}

TEST(ReadLines, ALineThatOverlapsOthersIsNotAddedTwice) {
    Lines lines{line("left", {0, 0, 100, 20}, 95), line("right", {110, 0, 100, 20}, 95)};
    readlines::improve(lines, {line("left right", {0, 0, 210, 20}, 99)});
    EXPECT_EQ(readlines::joined(lines), QStringLiteral("left\nright\n"));
}

} // namespace
} // namespace vellumry
