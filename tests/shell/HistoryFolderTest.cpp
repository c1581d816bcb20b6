// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/HistoryFolder.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <stdexcept>
#include <utility>

using namespace vellumry;

TEST(HistoryFolder, IsMadeWithAllFoldersAboveItForTheUserAlone) {
    QTemporaryDir home;
    const QString folder = historyFolder(home.path() + QStringLiteral("/a/b"));
    EXPECT_EQ(folder, home.path() + QStringLiteral("/a/b/Vellumry"));
    EXPECT_EQ(QFile::permissions(folder) & (QFile::ReadGroup | QFile::ReadOther | QFile::ExeGroup | QFile::ExeOther),
              QFile::Permissions());
}

TEST(HistoryFolder, LoosePermissionsAreTightenedAtEachStart) {
    QTemporaryDir home;
    const QString folder = historyFolder(home.path());
    QFile::setPermissions(folder,
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    (void)historyFolder(home.path());
    EXPECT_FALSE(QFile::permissions(folder).testFlag(QFile::ReadOther));
}

TEST(HistoryFolder, AFileInTheWayIsAnError) {
    QTemporaryDir home;
    QFile file(home.path() + QStringLiteral("/Vellumry"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_THROW((void)historyFolder(home.path()), std::runtime_error);
}

TEST(HistoryFolder, ExactlyOneGibibyteIsRoom) {
    EXPECT_TRUE(isRoomForImages(1'073'741'824));
    EXPECT_FALSE(isRoomForImages(1'073'741'823));
    EXPECT_TRUE(isRoomForImages(-1));
}

TEST(HistoryFolder, SizesReadAsInAFileManager) {
    QLocale::setDefault(QLocale::c());
    const std::pair<qint64, const char*> sizes[] = {{0, "Zero KB"},
                                                    {1, "1 byte"},
                                                    {999, "999 bytes"},
                                                    {1'000, "1 KB"},
                                                    {1'499, "1 KB"},
                                                    {999'499, "999 KB"},
                                                    {999'500, "1 MB"},
                                                    {1'250'000, "1.3 MB"},
                                                    {12'000'000, "12 MB"},
                                                    {999'949'999, "999.9 MB"},
                                                    {999'950'000, "1 GB"},
                                                    {1'234'000'000, "1.23 GB"},
                                                    {2'500'000'000, "2.5 GB"},
                                                    {1'073'741'824'000'000, "1,073.74 TB"}};
    for (const auto& [bytes, text] : sizes)
        EXPECT_EQ(fileSizeText(bytes), QString::fromUtf8(text)) << bytes;
}

TEST(HistoryFolder, CountsTheFileAndItsLog) {
    QTemporaryDir home;
    EXPECT_EQ(historyBytes(home.path()), 0);
    for (const char* name : {"/History.sqlite", "/History.sqlite-wal", "/History.sqlite-shm"}) {
        QFile file(home.path() + QLatin1String(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(100, 'x'));
    }
    EXPECT_EQ(historyBytes(home.path()), 200);
}
