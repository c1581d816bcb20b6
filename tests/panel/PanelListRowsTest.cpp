// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelListRows.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

ClipRef clip() {
    Clip made;
    made.id = QUuid::createUuid();
    return std::make_shared<const Clip>(std::move(made));
}

/// The same clip as another object, as a change of it leaves.
ClipRef changed(const ClipRef& clip) {
    return std::make_shared<const Clip>(*clip);
}

/// Sections of so many of `clips` each, one behind the other.
PanelListRows rowsOf(const std::vector<ClipRef>& clips, const std::vector<std::pair<const char*, std::size_t>>& parts) {
    PanelSections::Listing listing{shared(clips), {}};
    std::size_t first = 0;
    for (const auto& [title, count] : parts) {
        const auto part = std::span(*listing.clips).subspan(first, count);
        listing.sections.push_back({QString::fromLatin1(title), QString::fromLatin1(title), part});
        first += count;
    }
    return PanelListRows(listing);
}

/// Each row's header, or the number of its clip.
QStringList described(const PanelListRows& rows, const std::vector<ClipRef>& clips) {
    QStringList texts;
    for (int row = 0; row < rows.count(); ++row) {
        const auto place = std::ranges::find(clips, rows.clipAt(row)) - clips.begin();
        texts.append(rows.headerAt(row) != nullptr ? *rows.headerAt(row) : QString::number(place));
        EXPECT_EQ(rows.peek(row), rows.clipAt(row).get());
    }
    return texts;
}

class PanelListRowsTest : public ::testing::Test {
protected:
    [[nodiscard]] std::vector<ClipRef> without(std::size_t place, std::size_t count = 1) const {
        std::vector<ClipRef> left = clips;
        const auto first = left.begin() + static_cast<std::ptrdiff_t>(place);
        left.erase(first, first + static_cast<std::ptrdiff_t>(count));
        return left;
    }

    std::vector<ClipRef> clips{clip(), clip(), clip(), clip(), clip()};
    PanelListRows rows = rowsOf(clips, {{"A", 2}, {"B", 3}});
};

} // namespace

TEST_F(PanelListRowsTest, NoSectionsAreNoRows) {
    EXPECT_EQ(PanelListRows().count(), 0);
    EXPECT_EQ(PanelListRows().rowOf(clips[0]->id), std::nullopt);
    EXPECT_EQ(PanelListRows().rowOfClip(0), std::nullopt);
    EXPECT_EQ(rowsOf({}, {}).count(), 0);
}

TEST_F(PanelListRowsTest, EachHeaderStandsAboveItsClips) {
    EXPECT_EQ(described(rows, clips), QString::fromLatin1("A 0 1 B 2 3 4").split(u' '));
}

TEST_F(PanelListRowsTest, RowsMayBeReadInAnyOrder) {
    for (const int row : {6, 0, 3, 1, 5, 2, 4, 0}) {
        const bool isHeader = row == 0 || row == 3;
        EXPECT_EQ(rows.headerAt(row) != nullptr, isHeader) << row;
        EXPECT_EQ(rows.clipAt(row), isHeader ? nullptr : clips[std::size_t(row < 3 ? row - 1 : row - 2)]) << row;
    }
}

TEST_F(PanelListRowsTest, AClipIsFoundByItsPlaceAndByItsIdentity) {
    EXPECT_EQ(rows.rowOfClip(0), 1);
    EXPECT_EQ(rows.rowOfClip(1), 2);
    EXPECT_EQ(rows.rowOfClip(2), 4);
    EXPECT_EQ(rows.rowOfClip(4), 6);
    EXPECT_EQ(rows.rowOfClip(5), std::nullopt);
    EXPECT_EQ(rows.rowOfClip(-1), std::nullopt);
    EXPECT_EQ(rows.rowOf(clips[3]->id), 5);
    EXPECT_EQ(rows.rowOf(QUuid::createUuid()), std::nullopt);
}

TEST_F(PanelListRowsTest, WhatIsCutOffIsNotThere) {
    rows.cut(5);
    EXPECT_EQ(described(rows, clips), QString::fromLatin1("A 0 1 B 2").split(u' '));
    EXPECT_EQ(rows.rowOfClip(3), std::nullopt);
    EXPECT_EQ(rows.rowOf(clips[4]->id), std::nullopt);
    rows.cut(100);
    EXPECT_EQ(rows.count(), 7);
}

TEST_F(PanelListRowsTest, CountsTheHeadersOfARun) {
    EXPECT_EQ(rows.headersIn({0, 7}), 2);
    EXPECT_EQ(rows.headersIn({1, 2}), 0);
    EXPECT_EQ(rows.headersIn({2, 2}), 1);
    EXPECT_EQ(rows.headersIn({3, 1}), 1);
}

TEST_F(PanelListRowsTest, TheRowsThatOneListHasMore) {
    const auto run = rows.runBeyond(rowsOf(without(1), {{"A", 1}, {"B", 3}}));
    ASSERT_TRUE(run.has_value());
    EXPECT_EQ(run->row, 2);
    EXPECT_EQ(run->count, 1);
    const auto section = rows.runBeyond(rowsOf(without(0, 2), {{"B", 3}}));
    ASSERT_TRUE(section.has_value());
    EXPECT_EQ(section->row, 0);
    EXPECT_EQ(section->count, 3);
    const auto last = rows.runBeyond(rowsOf(without(4), {{"A", 2}, {"B", 2}}));
    ASSERT_TRUE(last.has_value());
    EXPECT_EQ(last->row, 6);
    const auto all = rows.runBeyond(PanelListRows());
    ASSERT_TRUE(all.has_value());
    EXPECT_EQ(all->count, 7);
}

TEST_F(PanelListRowsTest, AChangedClipIsTheSameRow) {
    std::vector<ClipRef> left = without(1);
    left.back() = changed(left.back());
    const auto run = rows.runBeyond(rowsOf(left, {{"A", 1}, {"B", 3}}));
    ASSERT_TRUE(run.has_value());
    EXPECT_EQ(run->row, 2);
}

TEST_F(PanelListRowsTest, ListsThatDifferInMoreThanOneRunHaveNone) {
    EXPECT_EQ(rows.runBeyond(rows), std::nullopt);
    EXPECT_EQ(PanelListRows().runBeyond(rows), std::nullopt);
    EXPECT_EQ(rows.runBeyond(rowsOf({clips[1], clips[2], clips[3]}, {{"A", 1}, {"B", 2}})), std::nullopt);
    EXPECT_EQ(rows.runBeyond(rowsOf(without(1), {{"A", 1}, {"C", 3}})), std::nullopt) << "another header";
}

} // namespace vellumry
