// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/files/InotifyFolderWatching.h"

#include "support/Awaited.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

class InotifyFolderWatchingTest : public testing::Test {
protected:
    [[nodiscard]] QString path(const char* name) const { return root.filePath(QString::fromLatin1(name)); }
    void makeFolder(const char* name) { ASSERT_TRUE(QDir(root.path()).mkpath(QString::fromLatin1(name))); }
    void write(const char* name) {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("content");
    }
    /// Watches, and returns when watching has begun: the first file that is noticed says so.
    void watch(const QStringList& folders, const char* probeFolder) {
        watching = system.watch(folders, [this] { ++notices; });
        ASSERT_TRUE(watching);
        int probe = 0;
        QTimer knock;
        const QString folder = path(probeFolder);
        QObject::connect(&knock, &QTimer::timeout, &knock, [&probe, folder] {
            QFile file(folder + QStringLiteral("/probe%1").arg(++probe));
            (void)file.open(QIODevice::WriteOnly);
        });
        knock.start(20);
        EXPECT_NO_THROW(runUntil([this] { return notices > 0; }));
        knock.stop();
        settleNotices();
    }
    void expectNotice() {
        EXPECT_NO_THROW(runUntil([this] { return notices > 0; }));
        settleNotices();
    }
    /// Lets what was told already arrive, so that the next notice is of the next change.
    void settleNotices() {
        int quiet = 0;
        QTimer tick;
        QObject::connect(&tick, &QTimer::timeout, &tick,
                         [&] { quiet = std::exchange(notices, 0) == 0 ? quiet + 1 : 0; });
        tick.start(10);
        EXPECT_NO_THROW(runUntil([&quiet] { return quiet > 4; }));
    }

    QTemporaryDir root;
    InotifyFolderWatching system;
    std::unique_ptr<FolderWatch> watching;
    int notices = 0;
};

TEST_F(InotifyFolderWatchingTest, ItsBeginningIsTold) {
    makeFolder("shots");
    watching = system.watch({path("shots")}, [this] { ++notices; });
    expectNotice();
}

TEST_F(InotifyFolderWatchingTest, NewAndRenamedFilesAreNoticed) {
    makeFolder("shots");
    watch({path("shots")}, "shots");
    write("shots/a.png");
    expectNotice();
    ASSERT_TRUE(QFile::rename(path("shots/a.png"), path("shots/b.png")));
    expectNotice();
}

TEST_F(InotifyFolderWatchingTest, AFileThatIsWrittenToItsEndIsNoticed) {
    makeFolder("shots");
    write("shots/a.png");
    watch({path("shots")}, "shots");
    QFile file(path("shots/a.png"));
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write("more");
    file.close();
    expectNotice();
}

TEST_F(InotifyFolderWatchingTest, SeveralFoldersAreWatchedTogether) {
    makeFolder("one");
    makeFolder("two");
    watch({path("one"), path("two")}, "one");
    write("two/a.png");
    expectNotice();
}

TEST_F(InotifyFolderWatchingTest, AFolderThatIsDeletedIsWatchedAgainWhenItIsBack) {
    makeFolder("up/shots");
    watch({path("up/shots")}, "up/shots");
    ASSERT_TRUE(QDir(path("up")).removeRecursively());
    settleNotices();
    makeFolder("up/shots");
    expectNotice();
    write("up/shots/a.png");
    expectNotice();
}

TEST_F(InotifyFolderWatchingTest, AFolderThatIsMovedAwayIsNotFollowed) {
    makeFolder("shots");
    watch({path("shots")}, "shots");
    ASSERT_TRUE(QDir().rename(path("shots"), path("aside")));
    settleNotices();
    write("aside/a.png");
    settleNotices();
    ASSERT_TRUE(QDir().rename(path("aside"), path("shots")));
    expectNotice();
    write("shots/b.png");
    expectNotice();
}

TEST_F(InotifyFolderWatchingTest, AFolderThatIsYetToComeIsNoticed) {
    makeFolder("there");
    watch({path("there"), path("deep/deeper/shots")}, "there");
    makeFolder("deep/deeper/shots");
    expectNotice();
    write("deep/deeper/shots/a.png");
    expectNotice();
}

TEST_F(InotifyFolderWatchingTest, AfterItsEndNothingIsTold) {
    makeFolder("shots");
    watch({path("shots")}, "shots");
    write("shots/a.png");
    watching.reset();
    notices = 0;
    const auto other = system.watch({path("shots")}, [] {});
    write("shots/b.png");
    int ticks = 0;
    QTimer tick;
    QObject::connect(&tick, &QTimer::timeout, &tick, [&ticks] { ++ticks; });
    tick.start(10);
    EXPECT_NO_THROW(runUntil([&ticks] { return ticks > 5; }));
    EXPECT_EQ(notices, 0);
}

} // namespace
} // namespace vellumry
