// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/screenshots/ScreenshotFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

class ScreenshotFoldersTest : public ::testing::Test {
protected:
    ScreenshotFoldersTest() {
        folders.home = root.path();
        folders.configHome = path("config");
        folders.pictures = path("Pictures");
    }
    [[nodiscard]] QString path(const char* name) const { return root.filePath(QString::fromUtf8(name)); }
    void makeFolder(const char* name) { ASSERT_TRUE(QDir(root.path()).mkpath(QString::fromUtf8(name))); }
    void write(const char* name, const QByteArray& content) {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path(name)).path()));
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QTemporaryDir root;
    ScreenshotFolders folders;
};

TEST_F(ScreenshotFoldersTest, WithoutSettingsThePicturesAndTheirScreenshots) {
    EXPECT_EQ(folders.list(), (QStringList{path("Pictures/Screenshots"), path("Pictures")}));
}

TEST_F(ScreenshotFoldersTest, TheFolderInTheUsersLanguageCounts) {
    makeFolder("Pictures/Bildschirmfotos");
    makeFolder("Pictures/Urlaub");
    EXPECT_EQ(folders.list(),
              (QStringList{path("Pictures/Screenshots"), path("Pictures"), path("Pictures/Bildschirmfotos")}));
}

TEST_F(ScreenshotFoldersTest, SettingsOfEachDesktopsToolComeFirst) {
    for (const char* folder : {"kde shots", "older kde", "xfce", "flame", "variable", "userdirs"})
        makeFolder(folder);
    folders.variable = path("variable");
    write("config/user-dirs.dirs", "XDG_SCREENSHOTS_DIR=\"$HOME/userdirs\"\n");
    write("config/spectaclerc", "[ImageSave]\nimageSaveLocation[$e]=file:///" + path("kde%20shots").mid(1).toUtf8() +
                                    "/\n[Save]\ndefaultSaveLocation=file://" + path("older%20kde").toUtf8() + "\n");
    write("config/xfce4/xfce4-screenshooter", "screenshot_dir=file://" + path("xfce").toUtf8() + "\n");
    write("config/flameshot/flameshot.ini", "[General]\nsavePath=~/flame\n");
    EXPECT_EQ(folders.list(),
              (QStringList{path("variable"), path("userdirs"), path("kde shots"), path("older kde"), path("xfce"),
                           path("flame"), path("Pictures/Screenshots"), path("Pictures")}));
}

TEST_F(ScreenshotFoldersTest, AFolderThatIsNotThereOrIsAFileIsLeftOut) {
    write("file", "no folder");
    folders.variable = path("file");
    write("config/flameshot/flameshot.ini", "savePath=/no/such/folder\n");
    EXPECT_EQ(folders.list(), (QStringList{path("Pictures/Screenshots"), path("Pictures")}));
}

TEST_F(ScreenshotFoldersTest, TheHomeFolderItselfIsNeverWatched) {
    folders.pictures = folders.home;
    folders.variable = QStringLiteral("~");
    EXPECT_EQ(folders.list(), QStringList{path("Pictures/Screenshots")});
}

TEST_F(ScreenshotFoldersTest, FoldersAreNamedOnceAndAtMostEight) {
    makeFolder("Pictures/Screenshots");
    folders.variable = path("Pictures/Screenshots/");
    EXPECT_EQ(folders.list(), (QStringList{path("Pictures/Screenshots"), path("Pictures")}));
    for (int i = 0; i < 20; ++i)
        makeFolder(("Pictures/Screenshots " + QByteArray::number(i)).constData());
    EXPECT_EQ(folders.list().size(), 8);
}

} // namespace
} // namespace vellumry
