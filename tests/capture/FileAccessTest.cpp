// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/FileAccess.h"

#include "support/Awaited.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cerrno>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vellumry {
namespace {

class FileAccessTest : public ::testing::Test {
protected:
    /// Examines with a probe that refuses `blocked` and writes down what it was asked.
    FileAccess::Result examine(const QStringList& paths, const QStringList& blocked = {}) {
        return FileAccess::examine(paths, places, [this, blocked](const QString& path) {
            probed.append(path);
            return !blocked.contains(path);
        });
    }

    const QString home = QStringLiteral("/home/someone");
    FilePlaces places = FilePlaces::underHome(home, QStringLiteral("someone"));
    QStringList probed;
};

TEST_F(FileAccessTest, FilesElsewhereAreNotTried) {
    EXPECT_TRUE(examine({QStringLiteral("/tmp/a"), home + QStringLiteral("/project/b")}, {QStringLiteral("/tmp/a")})
                    .isAllowed());
    EXPECT_EQ(probed, QStringList());
    EXPECT_TRUE(examine({}).isAllowed());
}

TEST_F(FileAccessTest, ANameThatBeginsLikeAProtectedOneIsElsewhere) {
    EXPECT_TRUE(examine({home + QStringLiteral("/Desktopper/a")}).isAllowed());
    EXPECT_EQ(probed, QStringList());
}

TEST_F(FileAccessTest, ProtectedFoldersAndWhatLiesInThemAreTried) {
    const QStringList paths{home + QStringLiteral("/Desktop"), home + QStringLiteral("/Documents/a/b"),
                            home + QStringLiteral("/Downloads/../Downloads/c"),
                            home + QStringLiteral("/.local/share/Trash/files/d"), QStringLiteral("/mnt/disk/e")};
    EXPECT_TRUE(examine(paths).isAllowed());
    EXPECT_EQ(probed, paths);
}

TEST_F(FileAccessTest, TheFirstBlockedFileNamesThePlaceAndEndsTheTrying) {
    const QString onDesktop = home + QStringLiteral("/Desktop/a");
    const QString inDownloads = home + QStringLiteral("/Downloads/b");
    EXPECT_EQ(examine({onDesktop, inDownloads}, {onDesktop, inDownloads}).blocked, QStringLiteral("Desktop"));
    EXPECT_EQ(probed, QStringList{onDesktop});
    EXPECT_EQ(examine({onDesktop, inDownloads}, {inDownloads}).blocked, QStringLiteral("Downloads"));
}

TEST_F(FileAccessTest, PlacesHaveTheNamesTheUserKnows) {
    const auto name = [this](const QString& path) { return FileAccess::displayName(path, places); };
    EXPECT_EQ(name(home + QStringLiteral("/Desktop")), QStringLiteral("Desktop"));
    EXPECT_EQ(name(home + QStringLiteral("/Documents/x/y")), QStringLiteral("Documents"));
    EXPECT_EQ(name(QStringLiteral("/run/media/someone/Stick/a")), QStringLiteral("Stick"));
    EXPECT_EQ(name(home + QStringLiteral("/.local/share/Trash/files/a")), QStringLiteral("files"));
    EXPECT_EQ(name(home + QStringLiteral("/Desktop/../other/a")), QStringLiteral("other"));
}

TEST_F(FileAccessTest, SymbolicLinksAreFollowedOnBothSides) {
    const QTemporaryDir folder;
    const QString real = QDir(folder.path()).canonicalPath() + QStringLiteral("/real");
    ASSERT_TRUE(QDir().mkpath(real + QStringLiteral("/Desktop")));
    ASSERT_TRUE(QFile::link(real, folder.filePath(QStringLiteral("link"))));
    ASSERT_TRUE(QFile::link(real + QStringLiteral("/Desktop"), folder.filePath(QStringLiteral("shortcut"))));

    // The home folder is named through the link, the file by its real path.
    places = FilePlaces::underHome(folder.filePath(QStringLiteral("link")), QString());
    (void)examine({real + QStringLiteral("/Desktop/a")});
    EXPECT_EQ(probed.size(), 1);
    // The other way round, and through a link to the folder itself.
    places = FilePlaces::underHome(real, QString());
    (void)examine({folder.filePath(QStringLiteral("link/Desktop/a")), folder.filePath(QStringLiteral("shortcut/a"))});
    EXPECT_EQ(probed.size(), 3);
}

TEST_F(FileAccessTest, CheckAnswersFromAnotherThread) {
    EXPECT_TRUE(awaited(FileAccess::check({QStringLiteral("/mnt/nowhere/a")}, places)).isAllowed());
}

TEST(FileAccessProbe, OnlyPermissionFailuresAreProof) {
    EXPECT_TRUE(FileAccess::isPermissionError(EACCES));
    EXPECT_TRUE(FileAccess::isPermissionError(EPERM));
    for (const int error : {0, ENOENT, ENOTDIR, EIO, ELOOP, EMFILE, ESTALE})
        EXPECT_FALSE(FileAccess::isPermissionError(error)) << error;
}

TEST(FileAccessProbe, WhatIsMissingOrNoFileCountsAsReadable) {
    const QTemporaryDir folder;
    EXPECT_TRUE(FileAccess::canRead(folder.filePath(QStringLiteral("missing"))));
    EXPECT_TRUE(FileAccess::canRead(folder.path()));
    EXPECT_TRUE(FileAccess::canRead(QStringLiteral("/dev/null")));
    const QString pipe = folder.filePath(QStringLiteral("pipe"));
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_TRUE(FileAccess::canRead(pipe)); // and does not wait for a writer
    const QString loop = folder.filePath(QStringLiteral("loop"));
    ASSERT_TRUE(QFile::link(loop, loop));
    EXPECT_TRUE(FileAccess::canRead(loop));
}

/// `canRead` in a process of its own that is nobody in particular, so that the test means something for root as well.
bool canReadAsNobody(const QString& path) {
    const pid_t child = fork();
    if (child == 0) {
        constexpr uid_t nobody = 65534;
        if (geteuid() == 0 && (setgid(nobody) != 0 || setuid(nobody) != 0))
            _exit(2);
        _exit(FileAccess::canRead(path) ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_NE(WEXITSTATUS(status), 2);
    return WEXITSTATUS(status) == 0;
}

TEST(FileAccessProbe, ClosedFilesAndFoldersAreProof) {
    const QTemporaryDir folder;
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
    const QString path = folder.filePath(QStringLiteral("file"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    const QString inner = folder.filePath(QStringLiteral("inner"));
    ASSERT_TRUE(QDir().mkdir(inner));

    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), 0644), 0);
    ASSERT_EQ(chmod(QFile::encodeName(inner).constData(), 0755), 0);
    EXPECT_TRUE(canReadAsNobody(path));
    EXPECT_TRUE(canReadAsNobody(inner));

    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), 0), 0);
    ASSERT_EQ(chmod(QFile::encodeName(inner).constData(), 0), 0);
    EXPECT_FALSE(canReadAsNobody(path));
    EXPECT_FALSE(canReadAsNobody(inner));
    EXPECT_FALSE(canReadAsNobody(inner + QStringLiteral("/below")));
}

} // namespace
} // namespace vellumry
