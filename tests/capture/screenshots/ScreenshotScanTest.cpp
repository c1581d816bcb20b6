// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/screenshots/ScreenshotWorld.h"

#include <QFile>

namespace vellumry {
namespace {

/// Files that are still being written, and changes that come while a scan runs.
using ScreenshotScanTest = ScreenshotWorld;

const QString shot = QStringLiteral("Screenshot_20260309_140500.png");

TEST_F(ScreenshotScanTest, AFileWrittenInTwoHalvesIsImportedASecondLater) {
    makeFolder();
    ASSERT_TRUE(start());
    write(shot, pngBeginning());
    change();
    EXPECT_TRUE(imported.isEmpty());
    ASSERT_EQ(delays, std::vector{std::chrono::milliseconds(1000)});
    write(shot, pngEnd());
    passSecond();
    EXPECT_EQ(imported, QStringList{shot});
    EXPECT_TRUE(later.empty());
}

TEST_F(ScreenshotScanTest, AnEmptyFileIsWaitedFor) {
    makeFolder();
    ASSERT_TRUE(start());
    write(shot, {});
    change();
    EXPECT_EQ(later.size(), 1u);
    write(shot, png());
    passSecond();
    EXPECT_EQ(imported, QStringList{shot});
}

TEST_F(ScreenshotScanTest, AFileThatIsNeverCompleteIsDroppedAfterTheSixthAttempt) {
    makeFolder();
    ASSERT_TRUE(start());
    write(shot, pngBeginning());
    change();
    for (int attempt = 2; attempt <= 6; ++attempt) {
        ASSERT_EQ(later.size(), 1u) << "before attempt " << attempt;
        passSecond();
    }
    EXPECT_TRUE(later.empty());
    write(shot, pngEnd());
    change();
    EXPECT_TRUE(imported.isEmpty());
}

TEST_F(ScreenshotScanTest, WhatHappensBesideDoesNotUseUpTheAttempts) {
    makeFolder();
    ASSERT_TRUE(start());
    write(shot, pngBeginning());
    for (int i = 0; i < 20; ++i)
        change();
    EXPECT_EQ(later.size(), 1u) << "one second is waited for at a time";
    write(shot, pngEnd());
    change();
    EXPECT_EQ(imported, QStringList{shot});
    passSecond();
    EXPECT_EQ(imported, QStringList{shot});
}

TEST_F(ScreenshotScanTest, AFileThatCannotBeDecodedIsTriedAgain) {
    makeFolder();
    ASSERT_TRUE(start());
    const ImageSummary good = std::exchange(images.summary, ImageSummary());
    write(shot, png());
    change();
    EXPECT_EQ(later.size(), 1u);
    images.summary = good;
    passSecond();
    EXPECT_EQ(imported, QStringList{shot});
}

TEST_F(ScreenshotScanTest, AFileThatVanishesBeforeItIsReadCostsNothing) {
    makeFolder();
    ASSERT_TRUE(start());
    write(shot, pngBeginning());
    change();
    ASSERT_TRUE(QFile::remove(path(shot)));
    passSecond();
    EXPECT_TRUE(imported.isEmpty());
    EXPECT_TRUE(importer->isWatching());
    EXPECT_TRUE(later.empty()) << "what has gone is waited for";
}

TEST_F(ScreenshotScanTest, WithTheFolderGoneNothingIsWaitedFor) {
    makeFolder();
    ASSERT_TRUE(start());
    write(shot, pngBeginning());
    change();
    ASSERT_TRUE(QDir(shots()).removeRecursively());
    passSecond();
    EXPECT_TRUE(later.empty());
    makeFolder();
    write(shot, png());
    change();
    EXPECT_EQ(imported, QStringList{shot});
}

TEST_F(ScreenshotScanTest, ChangesDuringAScanLeadToOneMore) {
    makeFolder();
    ASSERT_TRUE(start());
    const int before = *listings;
    watching.change();
    ASSERT_TRUE(importer->isScanning());
    for (int i = 0; i < 50; ++i)
        watching.change();
    finishScan();
    EXPECT_EQ(*listings, before + 2);
}

TEST_F(ScreenshotScanTest, AScanThatCannotListEndsWithoutAWord) {
    makeFolder();
    ASSERT_TRUE(start());
    ASSERT_TRUE(QDir().rmdir(shots()));
    QFile file(shots());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    change();
    EXPECT_TRUE(importer->isWatching());
    ASSERT_TRUE(file.remove());
    makeFolder();
    write(shot, png());
    change();
    EXPECT_EQ(imported, QStringList{shot});
}

TEST_F(ScreenshotScanTest, StoppingInTheMiddleLetsNothingIn) {
    makeFolder();
    ASSERT_TRUE(start());
    write(shot, png());
    watching.change();
    importer->stop();
    finishScan();
    EXPECT_TRUE(imported.isEmpty());
    passSecond();
    EXPECT_TRUE(imported.isEmpty());
}

TEST_F(ScreenshotScanTest, TheEndOfTheImporterInTheMiddleIsSurvived) {
    makeFolder();
    ASSERT_TRUE(start());
    write(shot, pngBeginning());
    change();
    const int before = *listings;
    watching.change();
    importer.reset();
    for (const auto& function : later)
        function();
    EXPECT_TRUE(eventually([this] { return listings.use_count() == 1; })) << "the scan ends";
    EXPECT_EQ(*listings, before + 1);
    EXPECT_TRUE(store.clips().empty());
}

TEST_F(ScreenshotScanTest, HundredsOfPhotographsAreNotOpened) {
    makeFolder();
    ASSERT_TRUE(start());
    for (int i = 0; i < 300; ++i)
        write(QStringLiteral("IMG_%1.jpg").arg(i), "\xFF\xD8 scans \xFF\xD9");
    write(shot, png());
    change();
    EXPECT_EQ(imported, QStringList{shot});
    EXPECT_EQ(images.requests.size(), 1u);
}

} // namespace
} // namespace vellumry
