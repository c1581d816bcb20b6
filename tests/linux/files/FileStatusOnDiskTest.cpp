// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/FileStatus.h"
#include "linux/files/PosixFileBookmarks.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

/// What became of a file, with the real disk underneath. A volume is a folder that comes and goes.
class FileStatusOnDisk : public testing::Test {
protected:
    void SetUp() override {
        for (const char* folder : {"home/Documents", "data/Trash/files", "data/Trash/info", "media/Stick"})
            ASSERT_TRUE(QDir(root.path()).mkpath(QString::fromLatin1(folder)));
        places.volumeRoots = {path("media")};
    }
    [[nodiscard]] QString path(const char* name) const { return root.filePath(QString::fromLatin1(name)); }
    [[nodiscard]] PosixFileBookmarks bookmarks() const {
        PosixFileBookmarks::Places known;
        known.dataHome = path("data");
        known.home = path("home");
        known.userFolders = {path("home/Documents")};
        known.mounts = [this] { return mounts; };
        return PosixFileBookmarks(known, {2'000, std::chrono::seconds(60)});
    }
    FileRef copied(const char* name) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("content");
        file.close();
        return {path(name), QString::fromLatin1(name), bookmarks().make(path(name))};
    }
    [[nodiscard]] FileStatus statusOf(const FileRef& file) const {
        return FileStatus::check(file, bookmarks(), places);
    }

    QTemporaryDir root;
    FilePlaces places;
    MountTable mounts = MountTable::current();
};

TEST_F(FileStatusOnDisk, ARenamedFileHasMoved) {
    const FileRef file = copied("home/a.txt");
    EXPECT_EQ(statusOf(file), FileStatus::available(path("home/a.txt")));
    ASSERT_TRUE(QFile::rename(path("home/a.txt"), path("home/b.txt")));
    EXPECT_EQ(statusOf(file), FileStatus::moved(path("home/b.txt")));
}

TEST_F(FileStatusOnDisk, AFileInAnotherFolderHasMoved) {
    const FileRef file = copied("home/a.txt");
    ASSERT_TRUE(QFile::rename(path("home/a.txt"), path("home/Documents/a.txt")));
    EXPECT_EQ(statusOf(file), FileStatus::moved(path("home/Documents/a.txt")));
}

TEST_F(FileStatusOnDisk, ATrashedFileIsInTheTrashUntilThatIsEmptied) {
    const FileRef file = copied("home/a.txt");
    ASSERT_TRUE(QFile::rename(path("home/a.txt"), path("data/Trash/files/a.txt")));
    EXPECT_EQ(statusOf(file), FileStatus::inTrash(path("data/Trash/files/a.txt")));
    ASSERT_TRUE(QFile::remove(path("data/Trash/files/a.txt")));
    EXPECT_EQ(statusOf(file), FileStatus::missing());
}

TEST_F(FileStatusOnDisk, AFileOnAnUnpluggedDiskNamesTheDisk) {
    const FileRef file = copied("media/Stick/a.txt");
    ASSERT_TRUE(QDir().rename(path("media/Stick"), path("unplugged")));
    EXPECT_EQ(statusOf(file), FileStatus::volumeUnavailable(QStringLiteral("Stick")));
    ASSERT_TRUE(QDir().rename(path("unplugged"), path("media/Stick")));
    EXPECT_EQ(statusOf(file), FileStatus::available(path("media/Stick/a.txt")));
    ASSERT_TRUE(QFile::remove(path("media/Stick/a.txt")));
    EXPECT_EQ(statusOf(file), FileStatus::missing());
}

TEST_F(FileStatusOnDisk, AFileOnAServerIsNotLookedForElsewhere) {
    const FileRef file = copied("home/a.txt");
    ASSERT_TRUE(QFile::rename(path("home/a.txt"), path("home/b.txt")));
    mounts = MountTable::parse("1 0 0:1 / / rw - ext4 x rw\n2 1 0:2 / " + QFile::encodeName(path("home")) +
                               " rw - nfs4 server:/ rw\n");
    EXPECT_EQ(statusOf(file), FileStatus::missing());
}

} // namespace
} // namespace vellumry
