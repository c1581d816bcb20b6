// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/process/XdgLoginItem.h"

#include "support/FileSizeLimit.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace vellumry {
namespace {

class XdgLoginItemTest : public ::testing::Test {
protected:
    [[nodiscard]] XdgLoginItem::Places places(const QString& program) const {
        return {.userFolder = disk.filePath(QStringLiteral("config/autostart")),
                .systemFolders = {disk.filePath(QStringLiteral("etc/autostart"))},
                .program = program};
    }
    [[nodiscard]] static QByteArray read(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static void write(const QString& path, const QByteArray& text) {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    /// A program that can be started, at a path that makes trouble where it can.
    [[nodiscard]] QString program(const QString& name) const {
        const QString path = disk.filePath(name);
        write(path, "#!/bin/sh\n");
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path;
    }

    QTemporaryDir disk;
    QString entry = disk.filePath(QStringLiteral("config/autostart/com.vellumry.Vellumry.desktop"));
    QString systemEntry = disk.filePath(QStringLiteral("etc/autostart/com.vellumry.Vellumry.desktop"));
};

TEST_F(XdgLoginItemTest, ItIsOffUntilItIsSwitchedOnAndLeavesNothingBehind) {
    XdgLoginItem item(places(QStringLiteral("/usr/bin/vellumry")));
    EXPECT_FALSE(item.isEnabled());
    EXPECT_TRUE(item.setEnabled(false));
    EXPECT_FALSE(QFile::exists(disk.filePath(QStringLiteral("config"))));
    EXPECT_TRUE(item.setEnabled(true));
    EXPECT_TRUE(item.isEnabled());
    EXPECT_TRUE(read(entry).contains("\nExec=\"/usr/bin/vellumry\"\n"));
    EXPECT_TRUE(item.setEnabled(false));
    EXPECT_FALSE(QFile::exists(entry));
}

TEST_F(XdgLoginItemTest, AnyPathIsWrittenAsTheCheckerOfDesktopEntriesWantsIt) {
    XdgLoginItem item(places(program(QStringLiteral("my \"apps\" $HOME 100% `x` \\ back.AppImage"))));
    ASSERT_TRUE(item.setEnabled(true));
    QProcess checker;
    checker.start(QStringLiteral("desktop-file-validate"), {entry});
    ASSERT_TRUE(checker.waitForFinished(60'000));
    EXPECT_EQ(checker.exitCode(), 0) << checker.readAll().constData();
    EXPECT_TRUE(read(entry).contains("my \\\\\"apps\\\\\" \\\\$HOME 100%% \\\\`x\\\\` \\\\\\\\ back.AppImage\""))
        << read(entry).constData();
}

TEST_F(XdgLoginItemTest, WhatTheUserSwitchedOffElsewhereIsOff) {
    XdgLoginItem item(places(QStringLiteral("/usr/bin/vellumry")));
    for (const char* line : {"Hidden=true", "X-GNOME-Autostart-enabled=false", "hidden is no key\nHidden = True"}) {
        write(entry, QByteArray("[Desktop Entry]\nType=Application\nExec=vellumry\n") + line + "\n");
        EXPECT_FALSE(item.isEnabled()) << line;
        EXPECT_TRUE(item.setEnabled(true));
        EXPECT_TRUE(item.isEnabled()) << line;
    }
}

TEST_F(XdgLoginItemTest, AnEntryOfTheSystemIsCoveredAndUncovered) {
    write(systemEntry, "[Desktop Entry]\nType=Application\nName=Vellumry\nExec=vellumry\n");
    XdgLoginItem item(places(QStringLiteral("/usr/bin/vellumry")));
    EXPECT_TRUE(item.isEnabled());
    EXPECT_TRUE(item.setEnabled(false));
    EXPECT_FALSE(item.isEnabled());
    EXPECT_TRUE(read(entry).contains("Hidden=true"));
    EXPECT_TRUE(item.setEnabled(true));
    EXPECT_TRUE(item.isEnabled());
}

TEST_F(XdgLoginItemTest, ADamagedEntryIsOffAndIsReplaced) {
    for (const QByteArray& damaged :
         {QByteArray(), QByteArray("\0\xff\xfe", 3), QByteArray("Exec=x\n"), QByteArray(200'000, 'x')}) {
        write(entry, damaged);
        XdgLoginItem item(places(QStringLiteral("/usr/bin/vellumry")));
        EXPECT_FALSE(item.isEnabled());
        EXPECT_TRUE(item.setEnabled(true));
        EXPECT_TRUE(item.isEnabled());
    }
}

TEST_F(XdgLoginItemTest, APipeInItsPlaceHoldsNothingUp) {
    ASSERT_TRUE(QDir().mkpath(QFileInfo(entry).path()));
    ASSERT_EQ(mkfifo(entry.toUtf8().constData(), 0600), 0);
    const XdgLoginItem item(places(QStringLiteral("/usr/bin/vellumry")));
    EXPECT_FALSE(item.isEnabled());
}

TEST_F(XdgLoginItemTest, AFolderThatCannotBeMadeIsARefusal) {
    write(disk.filePath(QStringLiteral("config")), "a file where the folder would be");
    XdgLoginItem item(places(QStringLiteral("/usr/bin/vellumry")));
    EXPECT_FALSE(item.setEnabled(true));
    EXPECT_FALSE(item.isEnabled());
}

TEST_F(XdgLoginItemTest, AFullDiskIsARefusalAndLeavesNoHalfEntry) {
    XdgLoginItem item(places(QStringLiteral("/usr/bin/vellumry")));
    {
        const FileSizeLimit full(0);
        EXPECT_FALSE(item.setEnabled(true));
    }
    EXPECT_FALSE(QFile::exists(entry));
    EXPECT_TRUE(item.setEnabled(true));
}

TEST_F(XdgLoginItemTest, AnEntryFollowsAnAppImageThatWasMoved) {
    const QString old = program(QStringLiteral("old.AppImage"));
    ASSERT_TRUE(XdgLoginItem(places(old)).setEnabled(true));
    XdgLoginItem item(places(program(QStringLiteral("new.AppImage"))));
    item.follow();
    EXPECT_TRUE(read(entry).contains("old.AppImage")) << "both are there: the user chose";
    ASSERT_TRUE(QFile::remove(old));
    item.follow();
    EXPECT_TRUE(read(entry).contains("new.AppImage"));
}

} // namespace
} // namespace vellumry
