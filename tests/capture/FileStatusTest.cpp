// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/FileStatus.h"

#include "support/FakeFileBookmarks.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

const QString recorded = QStringLiteral("/home/someone/a.txt");
const QString elsewhere = QStringLiteral("/home/someone/folder/a.txt");

class FileStatusTest : public ::testing::Test {
protected:
    FileStatus check(const FileRef& ref) {
        return FileStatus::check(ref, bookmarks,
                                 FilePlaces::underHome(QStringLiteral("/home/someone"), QStringLiteral("someone")),
                                 [this](const QString& path) { return existing.contains(path); });
    }
    static FileRef ref(const QString& path) {
        return {path, QStringLiteral("a.txt"), FakeFileBookmarks::bookmarkOf(path)};
    }

    FakeFileBookmarks bookmarks;
    QSet<QString> existing;
};

TEST_F(FileStatusTest, AFileInItsPlaceIsAvailable) {
    existing = {recorded};
    EXPECT_EQ(check(ref(recorded)), FileStatus::available(recorded));
    EXPECT_EQ(check(ref(recorded)).path(), recorded);
}

TEST_F(FileStatusTest, AMovedFileIsFoundByItsBookmark) {
    existing = {elsewhere};
    bookmarks.moves[recorded] = QStringLiteral("/home/someone/folder/./a.txt");
    EXPECT_EQ(check(ref(recorded)), FileStatus::moved(elsewhere));
    EXPECT_EQ(check(ref(recorded)).path(), elsewhere);
}

TEST_F(FileStatusTest, TheBookmarkOutranksAnotherFileAtThePath) {
    existing = {recorded, elsewhere};
    bookmarks.moves[recorded] = elsewhere;
    EXPECT_EQ(check(ref(recorded)), FileStatus::moved(elsewhere));
}

TEST_F(FileStatusTest, AFileInTheTrashIsThereEvenWhenCopiedThere) {
    existing = {elsewhere};
    bookmarks.moves[recorded] = elsewhere;
    bookmarks.trashedPaths = {elsewhere};
    EXPECT_EQ(check(ref(recorded)), FileStatus::inTrash(elsewhere));
    EXPECT_EQ(check(ref(recorded)).path(), elsewhere);
    EXPECT_EQ(check(ref(elsewhere)), FileStatus::inTrash(elsewhere));
}

TEST_F(FileStatusTest, AnEmptiedTrashLeavesNothing) {
    bookmarks.moves[recorded] = elsewhere;
    bookmarks.trashedPaths = {elsewhere};
    EXPECT_EQ(check(ref(recorded)), FileStatus::missing());
    EXPECT_EQ(check(ref(recorded)).path(), std::nullopt);
}

TEST_F(FileStatusTest, WithoutABookmarkThePathDecides) {
    existing = {recorded};
    FileRef plain = ref(recorded);
    plain.bookmark.reset();
    EXPECT_EQ(check(plain), FileStatus::available(recorded));
    plain.bookmark = QByteArray("unreadable");
    EXPECT_EQ(check(plain), FileStatus::available(recorded));
    bookmarks.lostPaths = {recorded};
    EXPECT_EQ(check(ref(recorded)), FileStatus::available(recorded));
}

TEST_F(FileStatusTest, AnUnpluggedDiskIsNamed) {
    const QString onStick = QStringLiteral("/run/media/someone/Stick/a.txt");
    bookmarks.lostPaths = {onStick};
    EXPECT_EQ(check(ref(onStick)), FileStatus::volumeUnavailable(QStringLiteral("Stick")));
    EXPECT_EQ(check(ref(onStick)).path(), std::nullopt);
    // The disk is there and the file is not.
    existing = {QStringLiteral("/run/media/someone/Stick")};
    EXPECT_EQ(check(ref(onStick)), FileStatus::missing());
}

TEST_F(FileStatusTest, TheDiskItselfAnswersByDefault) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.txt"));
    const FilePlaces places;
    const FileRef file{path, QStringLiteral("a.txt"), std::nullopt};
    EXPECT_EQ(FileStatus::check(file, bookmarks, places), FileStatus::missing());
    QFile created(path);
    ASSERT_TRUE(created.open(QIODevice::WriteOnly));
    EXPECT_EQ(FileStatus::check(file, bookmarks, places), FileStatus::available(path));
}

} // namespace
} // namespace vellumry
