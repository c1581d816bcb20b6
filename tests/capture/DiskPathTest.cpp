// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/DiskPath.h"

#include "capture/FileAccess.h"
#include "foundation/FileUrl.h"

#include <QFile>
#include <QTemporaryDir>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vellumry {
namespace {

class DiskPathTest : public ::testing::Test {
protected:
    [[nodiscard]] QByteArray path(const QByteArray& name) const { return QFile::encodeName(root.path()) + '/' + name; }
    void create(const QByteArray& name) const {
        const int file = open(path(name).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        ASSERT_GE(file, 0);
        close(file);
    }

    QTemporaryDir root;
};

TEST_F(DiskPathTest, ANameInUtf8IsItself) {
    EXPECT_EQ(diskPathOf(QStringLiteral("/a/ü b")), "/a/\xc3\xbc b");
    EXPECT_FALSE(existsOnDisk(root.filePath(QStringLiteral("ü"))));
    create("\xc3\xbc");
    EXPECT_TRUE(existsOnDisk(root.filePath(QStringLiteral("ü"))));
}

TEST_F(DiskPathTest, ANameInAnotherEncodingIsFoundInItsFolder) {
    ASSERT_EQ(mkdir(path("f\xfcr").constData(), 0700), 0);
    create("f\xfcr/caf\xe9.txt");
    const auto decoded = fileurl::pathOf("file://" + path("f%FCr/caf%E9.txt"));
    ASSERT_TRUE(decoded);
    EXPECT_EQ(diskPathOf(*decoded), path("f\xfcr/caf\xe9.txt"));
    EXPECT_TRUE(existsOnDisk(*decoded));
    EXPECT_TRUE(FileAccess::canRead(*decoded));
    ASSERT_EQ(unlink(path("f\xfcr/caf\xe9.txt").constData()), 0);
    EXPECT_FALSE(existsOnDisk(*decoded));
    EXPECT_EQ(rmdir(path("f\xfcr").constData()), 0); // Qt cannot remove what it cannot name
}

TEST_F(DiskPathTest, ALinkToNothingIsNothing) {
    ASSERT_EQ(symlink("nowhere", path("link").constData()), 0);
    EXPECT_FALSE(existsOnDisk(root.filePath(QStringLiteral("link"))));
    create("nowhere");
    EXPECT_TRUE(existsOnDisk(root.filePath(QStringLiteral("link"))));
}

} // namespace
} // namespace vellumry
