// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/update/ProgramFile.h"

#include "support/Awaited.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vellumry {
namespace {

class ProgramFileTest : public ::testing::Test {
protected:
    static void write(const QString& path, const QByteArray& text) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    [[nodiscard]] static QByteArray read(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// Returns when the only child of this process blocks in read(2) on its standard input, or has ended: one that does
    /// not wait for us never reads.
    static void awaitReadingChild() {
        const QByteArray own = QByteArray::number(getpid());
        const pid_t child = read("/proc/" + own + "/task/" + own + "/children").trimmed().toInt();
        const QByteArray reading = QByteArray::number(SYS_read) + " 0x0 ";
        while (waitpid(child, nullptr, WNOHANG) == 0 &&
               !read("/proc/" + QByteArray::number(child) + "/syscall").startsWith(reading))
            sched_yield();
    }

    QTemporaryDir disk;
    ProgramFile file{disk.filePath(QStringLiteral("V.AppImage"))};
};

TEST_F(ProgramFileTest, TheNewerTakesThePlaceInOneStepAndTheOneBeforeIsKept) {
    write(file.path(), "old");
    write(file.staged(), "new");
    QFile running(file.path());
    ASSERT_TRUE(running.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.replace(), std::nullopt);
    EXPECT_EQ(read(file.path()), "new");
    EXPECT_EQ(read(file.previous()), "old");
    EXPECT_FALSE(QFile::exists(file.staged()));
    EXPECT_EQ(running.readAll(), "old") << "what runs goes on from its own file";
    EXPECT_TRUE(QFileInfo(file.path()).isExecutable());
    file.discardPrevious();
    EXPECT_FALSE(QFile::exists(file.previous()));
}

TEST_F(ProgramFileTest, WithoutANewerOneNothingChanges) {
    write(file.path(), "old");
    EXPECT_NE(file.replace(), std::nullopt);
    EXPECT_EQ(read(file.path()), "old");
    EXPECT_FALSE(QFile::exists(file.previous()));
}

TEST_F(ProgramFileTest, OnlyAFileOfTheUsersOwnIsReplaced) {
    EXPECT_FALSE(ProgramFile(QString()).isReplaceable());
    EXPECT_FALSE(file.isReplaceable()) << "it is not there";
    write(file.path(), "old");
    EXPECT_TRUE(file.isReplaceable());
    const QString link = disk.filePath(QStringLiteral("link"));
    ASSERT_TRUE(QFile::link(file.path(), link));
    EXPECT_FALSE(ProgramFile(link).isReplaceable());
    EXPECT_FALSE(ProgramFile(QStringLiteral("/usr/bin/env")).isReplaceable());
}

TEST_F(ProgramFileTest, TheNewerSaysItsVersionItself) {
    EXPECT_EQ(file.stagedVersion(), std::nullopt);
    write(file.staged(), "#!/bin/sh\necho \"Vellumry 2.5 (Qt 6)\"\n");
    EXPECT_EQ(file.stagedVersion(), QStringLiteral("2.5"));
    write(file.staged(), "#!/bin/sh\necho Vellumry 2.5\nexit 3\n");
    EXPECT_EQ(file.stagedVersion(), std::nullopt);
    write(file.staged(), "no program at all");
    EXPECT_EQ(file.stagedVersion(), std::nullopt);
}

TEST_F(ProgramFileTest, TheNewerStartsWhenThisProcessHasEnded) {
    const QString sign = disk.filePath(QStringLiteral("started"));
    const QString ending = disk.filePath(QStringLiteral("ending"));
    write(file.path(), "#!/bin/sh\n[ -e '" + ending.toUtf8() + "' ] && echo \"$APPIMAGE-\" >'" + sign.toUtf8() +
                           "' || echo too soon >'" + sign.toUtf8() + "'\n");
    const pid_t old = fork();
    ASSERT_GE(old, 0);
    if (old == 0) {
        qputenv("APPIMAGE", "/old");
        const bool isArranged = file.startAfterThisProcess();
        awaitReadingChild();
        write(ending, "now");
        _exit(isArranged ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(old, &status, 0), old);
    EXPECT_EQ(WEXITSTATUS(status), 0);
    runUntil([&sign] { return QFileInfo(sign).size() > 0; });
    EXPECT_EQ(read(sign), "-\n") << "and without the environment of the one before";
}

} // namespace
} // namespace vellumry
