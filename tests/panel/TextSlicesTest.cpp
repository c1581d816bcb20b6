// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/TextSlices.h"
#include "panel/PreviewTextModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace vellumry;

namespace {

std::vector<QByteArray> slicesOf(const QByteArray& text) {
    const auto starts = textslices::startsOf(text);
    std::vector<QByteArray> slices;
    for (std::size_t index = 0; index < starts.size(); ++index) {
        const qsizetype end = index + 1 < starts.size() ? qsizetype(starts[index + 1]) : text.size();
        slices.push_back(text.mid(starts[index], end - starts[index]));
    }
    return slices;
}

QByteArray joined(const std::vector<QByteArray>& slices) {
    QByteArray text;
    for (const QByteArray& slice : slices)
        text += slice;
    return text;
}

} // namespace

TEST(TextSlices, AnEmptyTextHasNone) {
    EXPECT_TRUE(slicesOf("").empty());
}

TEST(TextSlices, AShortTextIsOne) {
    EXPECT_EQ(slicesOf("one\ntwo\n").size(), 1U);
}

TEST(TextSlices, EndBehindWholeLines) {
    const QByteArray line = QByteArray(90, 'x') + '\n';
    const auto slices = slicesOf(line.repeated(100));
    EXPECT_GT(slices.size(), 5U);
    EXPECT_EQ(joined(slices), line.repeated(100));
    for (const QByteArray& slice : slices) {
        EXPECT_TRUE(slice.endsWith('\n'));
        EXPECT_LE(slice.size(), textslices::fullSlice + line.size());
    }
}

TEST(TextSlices, ManyEmptyLinesFillASliceToo) {
    for (const QByteArray& slice : slicesOf(QByteArray(1'000, '\n')))
        EXPECT_LE(slice.size(), textslices::mostLines);
}

TEST(TextSlices, ALineWithoutEndIsCutBehindABlank) {
    const QByteArray words = QByteArray("word ").repeated(10'000);
    const auto slices = slicesOf(words);
    EXPECT_EQ(joined(slices), words);
    for (const QByteArray& slice : slices) {
        EXPECT_LE(slice.size(), textslices::longestSlice);
        EXPECT_TRUE(slice.endsWith(' '));
    }
}

TEST(TextSlices, ALongLineBehindShortOnesBeginsASlice) {
    const QByteArray text = "short\n" + QByteArray(20'000, 'x');
    EXPECT_EQ(slicesOf(text).front(), "short\n");
    EXPECT_EQ(joined(slicesOf(text)), text);
}

TEST(TextSlices, ACutSplitsNoCharacter) {
    // Flags are two scalars of four bytes each; a letter in front moves them off every round number.
    const QByteArray text = "x" + QByteArray("\xF0\x9F\x87\xB3\xF0\x9F\x87\xB4").repeated(3'000);
    const auto slices = slicesOf(text);
    EXPECT_EQ(joined(slices), text);
    for (std::size_t index = 1; index < slices.size(); ++index)
        EXPECT_TRUE(slices[index].startsWith("\xF0\x9F\x87\xB3")) << index;
}

TEST(TextSlices, BytesThatAreNoTextAreCutAllTheSame) {
    const QByteArray bytes(50'000, '\x80');
    EXPECT_EQ(joined(slicesOf(bytes)), bytes);
}

TEST(TextSlices, WhatIsAppendedLeavesAllButTheLastAsTheyWere) {
    const QByteArray text = QByteArray("a line of words\n").repeated(400) + QByteArray("tail ").repeated(2'000);
    const auto before = textslices::startsOf(QByteArrayView(text).first(7'000));
    const auto after = textslices::startsOf(text);
    ASSERT_LT(before.size(), after.size());
    EXPECT_TRUE(std::equal(before.begin(), before.end(), after.begin()));
}

TEST(TextSlices, AreShownWithoutTheirLastBreakAndWithPlainLineFeeds) {
    EXPECT_EQ(textslices::shown("a\r\nb\rc\n", 0), QStringLiteral("a\nb\nc"));
    EXPECT_EQ(textslices::shown(QByteArrayView("a\0b", 3), 0), QString::fromUtf8("a␀b"));
}

TEST(TextSlices, TabsReachTheNextColumn) {
    EXPECT_EQ(textslices::shown("\ta\tb\n\tc", 4), QStringLiteral("    a   b\n    c"));
    EXPECT_EQ(textslices::shown("\ta", 0), QStringLiteral("\ta"));
}

TEST(PreviewTextModel, GrowsWithoutMovingWhatIsShown) {
    PreviewTextModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QByteArray whole = QByteArray("a line of words\n").repeated(1'000);
    const QByteArray beginning = whole.left(5'000);
    model.setContent({beginning, textslices::startsOf(beginning), {}}, 0);
    const int rows = model.rowCount();
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    const QSignalSpy additions(&model, &QAbstractItemModel::rowsInserted);
    const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    model.extendTo(whole, textslices::startsOf(whole));
    EXPECT_EQ(resets.size(), 0);
    ASSERT_EQ(additions.size(), 1);
    EXPECT_EQ(additions.first().at(1).toInt(), rows);
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes.first().first().toModelIndex().row(), rows - 1);
    EXPECT_EQ(model.text(), whole);
}

TEST(TextSlices, TheFirstSliceThatHoldsAWordIsFoundWithoutRegardToCaseAndAccents) {
    const QByteArray text = QByteArray("nothing of it here\n").repeated(100) + "a CAF\xC3\x89 at last\n" +
                            QByteArray("caf\xC3\xA9\n").repeated(500);
    const auto starts = textslices::startsOf(text);
    const int row = textslices::firstHit(text, starts, QStringLiteral(" cafe "));
    ASSERT_GE(row, 1);
    EXPECT_LE(qsizetype(starts[std::size_t(row)]), text.indexOf("CAF"));
    EXPECT_GT(qsizetype(starts[std::size_t(row) + 1]), text.indexOf("CAF"));
    EXPECT_EQ(textslices::firstHit(text, starts, QStringLiteral("walrus")), -1);
    EXPECT_EQ(textslices::firstHit(text, starts, QStringLiteral("  ")), -1);
}

TEST(PreviewTextModel, SlicesKnowTheirOwnStylesAndHits) {
    // Each line is a slice; the style goes from the end of the first into the second, over letters of two bytes.
    const QByteArray line = QByteArray("\xC3\xA9").repeated(1'200);
    const QByteArray text = line + "\n" + line;
    PreviewTextModel model;
    const auto starts = textslices::startsOf(text);
    ASSERT_EQ(starts.size(), 2U);
    model.setContent({text, starts, {{line.size() - 4, 7, {.isBold = true}}}}, 0);
    const auto markup = [&](int row) { return model.index(row).data(PreviewTextModel::MarkupRole).toString(); };
    const auto bold = [](const char* words) {
        return QStringLiteral("<span style=\"font-weight:600;\">") + QString::fromUtf8(words) +
               QStringLiteral("</span>");
    };
    EXPECT_TRUE(markup(0).contains(bold("éé") + QStringLiteral("</p>")));
    EXPECT_TRUE(markup(1).contains(QLatin1Char('>') + bold("é") + QString::fromUtf8("é")));
    model.setContent({"plain", {0}, {}}, 0);
    EXPECT_EQ(markup(0), QString());
    QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    model.setQuery(QStringLiteral("LAI"));
    EXPECT_EQ(changes.size(), 1);
    EXPECT_TRUE(markup(0).contains(QStringLiteral("lai</span>n")));
    EXPECT_TRUE(model.upToHit(0).contains(QStringLiteral(">plai<")));
}
