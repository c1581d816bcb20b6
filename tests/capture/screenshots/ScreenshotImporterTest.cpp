// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/screenshots/ScreenshotWorld.h"

#include "capture/DraftTitles.h"
#include "foundation/UniformType.h"

#include <QFile>
#include <sys/stat.h>

namespace vellumry {
namespace {

using ScreenshotImporterTest = ScreenshotWorld;

const QString first = QStringLiteral("Screenshot from 2026-03-09 14-05-00.png");
const QString second = QStringLiteral("Screenshot from 2026-03-09 14-06-00.png");

TEST_F(ScreenshotImporterTest, ANewScreenshotBecomesAClip) {
    makeFolder();
    ASSERT_TRUE(start());
    write(first, png());
    change();
    ASSERT_EQ(store.clips().size(), 1u);
    const Clip& clip = *store.clips().front();
    EXPECT_EQ(clip.kind, ClipKind::image);
    EXPECT_TRUE(clip.isScreenshot);
    EXPECT_FALSE(clip.isSensitive());
    EXPECT_EQ(clip.sourceAppName, QStringLiteral("Screenshot"));
    EXPECT_EQ(clip.sourceBundleID, QStringLiteral("com.apple.screencaptureui"));
    EXPECT_EQ(clip.thumbnail, "small");
    EXPECT_TRUE(clip.title.toString().startsWith(QStringLiteral("Screenshot 20"))) << clip.title.utf8().toStdString();
    EXPECT_EQ(clip.searchText.toString(), clip.title.toString() + u'\n' + first + QStringLiteral("\nImage 640 × 480"));
    EXPECT_EQ(imported, QStringList{first});
    const auto payload = awaited(store.payload(clip.id));
    ASSERT_TRUE(payload);
    EXPECT_EQ(payload->items,
              (std::vector{PasteboardItem{{{uniformtype::png, png()}}, QStringList{uniformtype::png}}}));
}

TEST_F(ScreenshotImporterTest, TheTitleHasTheTimeAtWhichTheFileWasMade) {
    makeFolder();
    write(first, png());
    const auto result = awaited(importer->read(path(first)));
    ASSERT_TRUE(std::holds_alternative<ClipDraft>(result));
    const Date made = ScreenshotFile::load(path(first)).createdAt.value_or(now);
    EXPECT_EQ(std::get<ClipDraft>(result).title, screenshotTitle(made));
}

TEST_F(ScreenshotImporterTest, EachKindOfPictureIsImportedAsWhatItIs) {
    makeFolder();
    ASSERT_TRUE(start());
    const QByteArray jpeg = "\xFF\xD8 scans \xFF\xD9";
    write(QStringLiteral("Screenshot_20260309_140500.jpeg"), jpeg);
    change();
    ASSERT_EQ(store.clips().size(), 1u);
    const auto payload = awaited(store.payload(store.clips().front()->id));
    ASSERT_TRUE(payload);
    EXPECT_EQ(payload->items.front().representations.at(uniformtype::jpeg), jpeg);
}

TEST_F(ScreenshotImporterTest, WhatWasThereBeforeIsNeverTouched) {
    makeFolder();
    write(first, png());
    ASSERT_TRUE(start());
    change();
    write(second, png("others"));
    change();
    EXPECT_EQ(imported, QStringList{second});
    EXPECT_EQ(images.requests.size(), 1u);
}

TEST_F(ScreenshotImporterTest, AHiddenFileIsIgnoredUntilItIsRenamed) {
    makeFolder();
    ASSERT_TRUE(start());
    write(u'.' + first, png());
    change();
    EXPECT_TRUE(imported.isEmpty());
    ASSERT_TRUE(QFile::rename(path(u'.' + first), path(first)));
    change();
    EXPECT_EQ(imported, QStringList{first});
}

TEST_F(ScreenshotImporterTest, AnOrdinaryPictureIsSkippedForGoodAndNotEvenOpened) {
    makeFolder();
    ASSERT_TRUE(start());
    write(QStringLiteral("holiday.png"), png());
    change();
    EXPECT_TRUE(imported.isEmpty());
    EXPECT_TRUE(images.requests.empty());
    QFile::remove(path(QStringLiteral("holiday.png")));
    images.summary.isScreenshot = true;
    write(QStringLiteral("holiday.png"), png("comment: Screenshot"));
    change();
    EXPECT_TRUE(imported.isEmpty());
    EXPECT_TRUE(images.requests.empty());
}

TEST_F(ScreenshotImporterTest, AMarkInTheFileCountsWhateverItsName) {
    makeFolder();
    ASSERT_TRUE(start());
    images.summary.isScreenshot = true;
    write(QStringLiteral("bug.png"), png("Software gnome-screenshot"));
    change();
    EXPECT_EQ(imported, QStringList{QStringLiteral("bug.png")});
}

TEST_F(ScreenshotImporterTest, AWordThatIsNoMarkDoesNotCount) {
    makeFolder();
    ASSERT_TRUE(start());
    write(QStringLiteral("article.png"), png("Title: how to take a screenshot"));
    change();
    EXPECT_TRUE(imported.isEmpty());
    EXPECT_EQ(images.requests.size(), 1u);
}

TEST_F(ScreenshotImporterTest, APauseLosesItsScreenshotsForGood) {
    makeFolder();
    ASSERT_TRUE(start());
    bool isPaused = true;
    importer->isAllowed = [&isPaused] { return !isPaused; };
    write(first, png());
    change();
    isPaused = false;
    write(second, png("others"));
    change();
    EXPECT_EQ(imported, QStringList{second});
}

TEST_F(ScreenshotImporterTest, AFullDiskLosesItsScreenshotsForGood) {
    makeFolder();
    ASSERT_TRUE(start());
    bool isFull = true;
    importer->hasRoomForImages = [&isFull] { return !isFull; };
    write(first, png());
    change();
    isFull = false;
    change();
    EXPECT_TRUE(imported.isEmpty());
}

TEST_F(ScreenshotImporterTest, OtherFilesAreNoScreenshots) {
    makeFolder();
    ASSERT_TRUE(start());
    write(QStringLiteral("Screenshot_20260309_140500.txt"), png());
    ASSERT_TRUE(QDir(shots()).mkdir(QStringLiteral("Screenshot_20260309_140501.png")));
    ASSERT_TRUE(QFile::link(path(QStringLiteral("Screenshot_20260309_140500.txt")),
                            path(QStringLiteral("Screenshot_20260309_140502.png"))));
    ASSERT_EQ(mkfifo(QFile::encodeName(path(QStringLiteral("Screenshot_20260309_140503.png"))).constData(), 0600), 0);
    change();
    EXPECT_TRUE(imported.isEmpty());
    EXPECT_TRUE(later.empty());
}

TEST_F(ScreenshotImporterTest, AFileOfMoreThanAHundredMebibytesIsNoScreenshot) {
    makeFolder();
    ASSERT_TRUE(start());
    QFile file(path(first));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(ScreenshotFile::mostBytes + 1)); // sparse
    change();
    EXPECT_TRUE(imported.isEmpty());
    EXPECT_TRUE(later.empty());
}

TEST_F(ScreenshotImporterTest, StoppedItImportsNothingAndStartingAgainTakesAllForKnown) {
    makeFolder();
    ASSERT_TRUE(start());
    importer->stop();
    EXPECT_FALSE(importer->isWatching());
    EXPECT_EQ(watching.activeCount, 0);
    write(first, png());
    watching.lastNotice();
    finishScan();
    ASSERT_TRUE(start());
    change();
    EXPECT_TRUE(imported.isEmpty());
    write(second, png("others"));
    change();
    EXPECT_EQ(imported, QStringList{second});
}

TEST_F(ScreenshotImporterTest, WithoutAnyReadableFolderItDoesNotStart) {
    makeImporter({root.filePath(QStringLiteral("file"))});
    QFile file(root.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_FALSE(start());
    EXPECT_FALSE(importer->isWatching());
    makeImporter({});
    EXPECT_FALSE(start());
    makeImporter({shots()});
    watching.isUnavailable = true;
    EXPECT_FALSE(start());
}

TEST_F(ScreenshotImporterTest, OneClosedFolderLeavesTheOthersWatched) {
    QFile file(root.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    makeFolder();
    makeImporter({root.filePath(QStringLiteral("file")), shots()});
    ASSERT_TRUE(start());
    write(first, png());
    change();
    EXPECT_EQ(imported, QStringList{first});
}

TEST_F(ScreenshotImporterTest, AFolderThatIsNotThereYetIsWaitedFor) {
    ASSERT_TRUE(start());
    makeFolder();
    write(first, png());
    change();
    EXPECT_EQ(imported, QStringList{first});
}

TEST_F(ScreenshotImporterTest, AFolderThatGoesAndComesBackIsWatchedOn) {
    makeFolder();
    write(first, png());
    ASSERT_TRUE(start());
    const QString aside = root.filePath(QStringLiteral("aside"));
    ASSERT_TRUE(QDir().rename(shots(), aside));
    change();
    ASSERT_TRUE(QDir().rename(aside, shots()));
    write(second, png("others"));
    change();
    EXPECT_EQ(imported, QStringList{second});
}

} // namespace
} // namespace vellumry
