// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/text/PictureFiles.h"

#include <QFile>
#include <QTemporaryDir>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vellumry {
namespace {

class PictureFilesTest : public testing::Test {
protected:
    QString write(const QString& name, const QByteArray& bytes) {
        const QString path = folder.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        files.push_back({path, name, std::nullopt});
        return path;
    }
    PictureFiles collect(bool isAsked = false) {
        const auto status = [](const FileRef& file) {
            return QFile::exists(file.path) ? FileStatus::available(file.path) : FileStatus::missing();
        };
        return PictureFiles::collect(files, isAsked, status,
                                     [this](const QString& path) { return !path.startsWith(protectedFolder); });
    }

    QTemporaryDir folder;
    QString protectedFolder = QStringLiteral("/nowhere");
    std::vector<FileRef> files;
};

using Bytes = std::vector<QByteArray>;

TEST_F(PictureFilesTest, ReadsPicturesInTheirOrder) {
    write(QStringLiteral("b.png"), "first");
    write(QStringLiteral("a.JPG"), "second");
    EXPECT_EQ(collect().pictures, (Bytes{"first", "second"}));
}

TEST_F(PictureFilesTest, LooksAtFiveFilesAtMost) {
    for (int number = 1; number <= 6; ++number)
        write(QStringLiteral("%1.png").arg(number), QByteArray::number(number));
    EXPECT_EQ(collect().pictures, (Bytes{"1", "2", "3", "4", "5"}));
}

TEST_F(PictureFilesTest, LeavesOutWhatIsNoPictureOrGone) {
    write(QStringLiteral("a.txt"), "text");
    write(QStringLiteral("png"), "no extension");
    QFile::remove(write(QStringLiteral("gone.png"), "gone"));
    write(QStringLiteral("there.png"), "there");
    EXPECT_EQ(collect().pictures, Bytes{"there"});
}

TEST_F(PictureFilesTest, ReadsWhereTheFileIsNow) {
    write(QStringLiteral("moved.png"), "moved");
    const QString now = files.front().path;
    files.front().path = QStringLiteral("/where/it/was.png");
    const auto found = PictureFiles::collect(
        files, false, [&now](const FileRef&) { return FileStatus::inTrash(now); }, [](const QString&) { return true; });
    EXPECT_EQ(found.pictures, Bytes{"moved"});
}

TEST_F(PictureFilesTest, AProtectedFileLeavesTheWholeClipToTheUser) {
    write(QStringLiteral("a.png"), "a");
    protectedFolder = folder.path();
    EXPECT_TRUE(collect().isLeftForUser);
    EXPECT_TRUE(collect().pictures.empty());
    EXPECT_FALSE(collect(true).isLeftForUser);
    EXPECT_EQ(collect(true).pictures, Bytes{"a"});
}

TEST_F(PictureFilesTest, AFileOf200MebibytesIsSkipped) {
    QFile large(write(QStringLiteral("large.png"), "x"));
    ASSERT_TRUE(large.resize(qint64{200} * 1024 * 1024));
    write(QStringLiteral("small.png"), "small");
    EXPECT_EQ(collect().pictures, Bytes{"small"});
}

TEST_F(PictureFilesTest, AFileOfExactlyTheLimitIsRead) {
    QFile large(write(QStringLiteral("large.png"), "x"));
    ASSERT_TRUE(large.resize(PictureFiles::maxFileBytes));
    ASSERT_EQ(collect().pictures.size(), 1U);
    EXPECT_EQ(collect().pictures.front().size(), PictureFiles::maxFileBytes);
}

TEST_F(PictureFilesTest, PipesAndFoldersAreNotRead) {
    const QString pipe = folder.filePath(QStringLiteral("pipe.png"));
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QString directory = folder.filePath(QStringLiteral("folder.png"));
    ASSERT_TRUE(QDir().mkdir(directory));
    files = {{pipe, QStringLiteral("pipe.png"), std::nullopt}, {directory, QStringLiteral("folder.png"), std::nullopt}};
    EXPECT_TRUE(collect().pictures.empty());
}

TEST_F(PictureFilesTest, ANameInAnotherEncodingIsRead) {
    const QByteArray name = QFile::encodeName(folder.path()) + "/caf\xe9.png";
    const int file = open(name.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_GE(file, 0);
    ASSERT_EQ(::write(file, "latin", 5), 5);
    close(file);
    const QString path = QString::fromUtf8(name);
    files = {{path, QStringLiteral("caf\uFFFD.png"), std::nullopt}};
    const auto found = PictureFiles::collect(
        files, false, [](const FileRef& ref) { return FileStatus::available(ref.path); },
        [](const QString&) { return true; });
    EXPECT_EQ(found.pictures, Bytes{"latin"});
    EXPECT_EQ(unlink(name.constData()), 0); // Qt cannot remove what it cannot name
}

TEST_F(PictureFilesTest, ALinkIsReadForWhatItLeadsTo) {
    const QString target = write(QStringLiteral("a.png"), "a");
    const QString link = folder.filePath(QStringLiteral("link.png"));
    ASSERT_TRUE(QFile::link(target, link));
    files = {{link, QStringLiteral("link.png"), std::nullopt}};
    EXPECT_EQ(collect().pictures, Bytes{"a"});
}

TEST_F(PictureFilesTest, OnlyATryTellsWhetherAFileCanBeOpened) {
    EXPECT_TRUE(PictureFiles::opens(write(QStringLiteral("a.png"), "a")));
    EXPECT_FALSE(PictureFiles::opens(folder.filePath(QStringLiteral("nowhere.png"))));
}

TEST(PictureFilesPlaces, PersonalFoldersAndVolumesAreInside) {
    const FilePlaces places = FilePlaces::underHome(QStringLiteral("/home/ada"), QStringLiteral("ada"));
    for (const char* path : {"/home/ada/Desktop/a.png", "/home/ada/Documents/deep/a.png", "/run/media/ada/STICK/a.png"})
        EXPECT_FALSE(PictureFiles::isOutside(places, QString::fromUtf8(path))) << path;
    for (const char* path : {"/home/ada/project/a.png", "/home/ada/Pictures/a.png", "/tmp/a.png"})
        EXPECT_TRUE(PictureFiles::isOutside(places, QString::fromUtf8(path))) << path;
}

} // namespace
} // namespace vellumry
