// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/files/PosixFileBookmarks.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>
#include <gtest/gtest.h>
#include <unistd.h>

namespace vellumry {
namespace {

class PosixFileBookmarksTest : public testing::Test {
protected:
    void SetUp() override {
        for (const char* folder :
             {"data/Trash/files", "data/Trash/info", "home/Documents/deep/deeper", "home/Desktop", "elsewhere"})
            ASSERT_TRUE(QDir(root.path()).mkpath(QString::fromLatin1(folder)));
    }

    [[nodiscard]] QString path(const char* name) const { return root.filePath(QString::fromLatin1(name)); }

    void write(const QString& where, const QByteArray& content) {
        QFile file(where);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    [[nodiscard]] PosixFileBookmarks bookmarks(FileSearch::Bounds bounds = roomy) const {
        PosixFileBookmarks::Places places;
        places.dataHome = path("data");
        places.home = path("home");
        places.userFolders = {path("home/Desktop"), path("home/Documents")};
        places.mounts = [this] { return mounts; };
        return PosixFileBookmarks(places, bounds);
    }

    [[nodiscard]] QByteArray remember(const char* name) {
        write(path(name), "content");
        return bookmarks().make(path(name)).value_or(QByteArray());
    }

    static constexpr FileSearch::Bounds roomy{2'000, std::chrono::seconds(60)};
    QTemporaryDir root;
    MountTable mounts = MountTable::current();
};

TEST_F(PosixFileBookmarksTest, AFileThatStayedIsAtItsPath) {
    const QByteArray bookmark = remember("home/a.txt");
    EXPECT_EQ(bookmarks().resolve(bookmark), path("home/a.txt"));
}

TEST_F(PosixFileBookmarksTest, AFileThatGrewIsTheSame) {
    const QByteArray bookmark = remember("home/a.txt");
    QFile file(path("home/a.txt"));
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write("more");
    file.close();
    EXPECT_EQ(bookmarks().resolve(bookmark), path("home/a.txt"));
}

TEST_F(PosixFileBookmarksTest, ARenamedFileIsFoundInItsFolder) {
    const QByteArray bookmark = remember("elsewhere/a.txt");
    ASSERT_TRUE(QFile::rename(path("elsewhere/a.txt"), path("elsewhere/b.txt")));
    EXPECT_EQ(bookmarks().resolve(bookmark), path("elsewhere/b.txt"));
}

TEST_F(PosixFileBookmarksTest, AFileThatKeptItsNameWithinANewOneIsFound) {
    const QByteArray bookmark = remember("elsewhere/a.txt");
    ASSERT_TRUE(QFile::rename(path("elsewhere/a.txt"), path("elsewhere/my a.txt")));
    EXPECT_EQ(bookmarks().resolve(bookmark), path("elsewhere/my a.txt"));
}

TEST_F(PosixFileBookmarksTest, AMovedFileIsFoundInTheUsersFolders) {
    const QByteArray bookmark = remember("elsewhere/a.txt");
    ASSERT_TRUE(QFile::rename(path("elsewhere/a.txt"), path("home/Documents/deep/deeper/c.txt")));
    EXPECT_EQ(bookmarks().resolve(bookmark), path("home/Documents/deep/deeper/c.txt"));
}

TEST_F(PosixFileBookmarksTest, AFileMovedToTheHomeFolderIsFound) {
    const QByteArray bookmark = remember("elsewhere/a.txt");
    ASSERT_TRUE(QFile::rename(path("elsewhere/a.txt"), path("home/a.txt")));
    EXPECT_EQ(bookmarks().resolve(bookmark), path("home/a.txt"));
}

TEST_F(PosixFileBookmarksTest, AFileMovedOutOfSightIsNotFound) {
    const QByteArray bookmark = remember("home/a.txt");
    ASSERT_TRUE(QFile::rename(path("home/a.txt"), path("elsewhere/a.txt")));
    EXPECT_EQ(bookmarks().resolve(bookmark), std::nullopt);
}

TEST_F(PosixFileBookmarksTest, ADeletedFileIsNotFound) {
    const QByteArray bookmark = remember("home/a.txt");
    ASSERT_TRUE(QFile::remove(path("home/a.txt")));
    EXPECT_EQ(bookmarks().resolve(bookmark), std::nullopt);
}

TEST_F(PosixFileBookmarksTest, ATrashedFileIsFoundInTheTrash) {
    const QByteArray bookmark = remember("home/a.txt");
    ASSERT_TRUE(QFile::rename(path("home/a.txt"), path("data/Trash/files/a.2.txt")));
    EXPECT_EQ(bookmarks().resolve(bookmark), path("data/Trash/files/a.2.txt"));
}

TEST_F(PosixFileBookmarksTest, AFileIsFoundInAFolderThatWasTrashed) {
    ASSERT_TRUE(QDir(root.path()).mkpath(QStringLiteral("elsewhere/project/notes")));
    const QByteArray bookmark = remember("elsewhere/project/notes/a.txt");
    ASSERT_TRUE(QDir().rename(path("elsewhere/project"), path("data/Trash/files/project.2")));
    write(path("data/Trash/info/project.2.trashinfo"),
          "[Trash Info]\nPath=" + path("elsewhere/project").toUtf8() + "\n");
    write(path("data/Trash/info/project.trashinfo"), "[Trash Info]\nPath=" + path("elsewhere/other").toUtf8() + "\n");
    write(path("data/Trash/info/project.3.trashinfo"), "[Trash Info]\n");
    const auto found = bookmarks().resolve(bookmark);
    EXPECT_EQ(found, path("data/Trash/files/project.2/notes/a.txt"));
    EXPECT_TRUE(bookmarks().isInTrash(*found));
    ASSERT_TRUE(QFile::remove(*found));
    write(*found, "content");
    EXPECT_EQ(bookmarks().resolve(bookmark), std::nullopt) << "another file at the same place";
}

TEST_F(PosixFileBookmarksTest, AFileThatWasCopiedIntoTheTrashIsFoundByItsNote) {
    // As from another file system: the Trash holds a new file, and only the note says where it came from.
    const QByteArray bookmark = remember("home/\xC3\xA4 b.txt");
    auto foreign = FileBookmark::decode(bookmark);
    ASSERT_TRUE(foreign.has_value());
    foreign->identity.fileSystem = 0;
    foreign->identity.device ^= 0xFFFF;
    const QString origin = QFile::decodeName(foreign->path);
    ASSERT_TRUE(QFile::remove(origin));
    write(path("data/Trash/files/\xC3\xA4 b.txt.2"), "content");
    write(path("data/Trash/info/\xC3\xA4 b.txt.2.trashinfo"),
          "[Trash Info]\nPath=" + QUrl::toPercentEncoding(origin, "/") + "\nDeletionDate=2024-01-02T03:04:05\n");
    EXPECT_EQ(bookmarks().resolve(foreign->encode()),
              QString::fromUtf8(QFile::encodeName(path("data/Trash/files/\xC3\xA4 b.txt.2"))));
}

TEST_F(PosixFileBookmarksTest, ANewFileAtTheOldPathIsNotTheOldOne) {
    const QByteArray bookmark = remember("home/a.txt");
    ASSERT_TRUE(QFile::rename(path("home/a.txt"), path("home/Documents/a.txt")));
    write(path("home/a.txt"), "another");
    EXPECT_EQ(bookmarks().resolve(bookmark), path("home/Documents/a.txt"));
}

TEST_F(PosixFileBookmarksTest, TheBackupOfASavedFileIsNotTakenForIt) {
    const QByteArray bookmark = remember("home/a.txt");
    ASSERT_TRUE(QFile::rename(path("home/a.txt"), path("home/a.txt~")));
    write(path("home/a.txt"), "saved anew");
    EXPECT_EQ(bookmarks().resolve(bookmark), std::nullopt);
}

TEST_F(PosixFileBookmarksTest, TheLookIsBounded) {
    const QByteArray bookmark = remember("elsewhere/a.txt");
    for (int index = 0; index < 20; ++index)
        write(path("home/Desktop/") + QString::number(index), "x");
    ASSERT_TRUE(QFile::rename(path("elsewhere/a.txt"), path("home/Documents/a.txt")));
    EXPECT_EQ(bookmarks({5, std::chrono::seconds(60)}).resolve(bookmark), std::nullopt);
    EXPECT_EQ(bookmarks({2'000, std::chrono::milliseconds(0)}).resolve(bookmark), std::nullopt);
    EXPECT_EQ(bookmarks().resolve(bookmark), path("home/Documents/a.txt"));
}

TEST_F(PosixFileBookmarksTest, ANetworkFileSystemIsNeitherRememberedNorTouched) {
    const QByteArray bookmark = remember("home/a.txt");
    mounts = MountTable::parse("1 0 0:1 / / rw - ext4 x rw\n2 1 0:2 / " + QFile::encodeName(path("home")) +
                               " rw - nfs4 s:/ rw\n");
    EXPECT_EQ(bookmarks().make(path("home/a.txt")), std::nullopt);
    EXPECT_EQ(bookmarks().resolve(bookmark), std::nullopt);
}

TEST_F(PosixFileBookmarksTest, WhatIsNotThereIsNotRemembered) {
    EXPECT_EQ(bookmarks().make(path("home/nothing")), std::nullopt);
    EXPECT_EQ(bookmarks().make(QStringLiteral("relative")), std::nullopt);
    EXPECT_EQ(bookmarks().make(QString()), std::nullopt);
}

TEST_F(PosixFileBookmarksTest, AFolderIsRememberedToo) {
    const auto bookmark = bookmarks().make(path("elsewhere"));
    ASSERT_TRUE(bookmark.has_value());
    ASSERT_TRUE(QDir().rename(path("elsewhere"), path("home/Documents/moved")));
    EXPECT_EQ(bookmarks().resolve(*bookmark), path("home/Documents/moved"));
}

TEST_F(PosixFileBookmarksTest, ForeignBytesResolveToNothing) {
    const QByteArray bookmark = remember("home/a.txt");
    for (qsizetype length = 0; length < bookmark.size(); ++length)
        EXPECT_EQ(bookmarks().resolve(bookmark.first(length)), std::nullopt) << length;
    EXPECT_EQ(bookmarks().resolve(bookmark + 'x'), std::nullopt);
    EXPECT_EQ(bookmarks().resolve(QByteArray(200, '\xFF')), std::nullopt);
}

TEST_F(PosixFileBookmarksTest, KnowsEveryKindOfTrash) {
    const auto isInTrash = [this](const QString& file) { return bookmarks().isInTrash(file); };
    EXPECT_TRUE(isInTrash(path("data/Trash/files/a")));
    EXPECT_TRUE(isInTrash(path("data/Trash/files/folder/a")));
    EXPECT_TRUE(isInTrash(QStringLiteral("/media/ann/Disk/.Trash-1000/files/a")));
    EXPECT_TRUE(isInTrash(QStringLiteral("/media/ann/Disk/.Trash/1000/files/a")));
    EXPECT_FALSE(isInTrash(path("data/Trash/info/a.trashinfo")));
    EXPECT_FALSE(isInTrash(path("data/Trash/filesystem")));
    EXPECT_FALSE(isInTrash(QStringLiteral("/media/ann/Disk/.Trash-abc/files/a")));
    EXPECT_FALSE(isInTrash(QStringLiteral("/home/ann/Trash/files/a")));
}

TEST(FileIdentity, AnInodeGivenOutAgainIsAnotherFile) {
    const FileIdentity old{1, 2, 77, 1000, 5, true, 10};
    FileIdentity later = old;
    later.birthNanoseconds = 6;
    EXPECT_FALSE(old.isSameFile(later));
}

TEST(FileIdentity, WithoutBirthTimesTheSizeDecides) {
    const FileIdentity old{1, 2, 77, 0, 0, false, 10};
    FileIdentity other = old;
    EXPECT_TRUE(old.isSameFile(other));
    other.size = 11;
    EXPECT_FALSE(old.isSameFile(other));
}

TEST(FileIdentity, ADiskKeepsItsIdentityUnderANewDeviceNumber) {
    const FileIdentity before{8, 4711, 77, 1000, 5, true, 10};
    FileIdentity after = before;
    after.device = 9;
    EXPECT_TRUE(before.isSameFile(after));
    after.fileSystem = 4712;
    after.device = 8;
    EXPECT_FALSE(before.isSameFile(after)) << "another disk under the number of the first";
}

} // namespace
} // namespace vellumry
