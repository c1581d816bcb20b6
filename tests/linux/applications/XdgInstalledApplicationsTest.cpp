// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/applications/XdgInstalledApplications.h"

#include "linux/applications/DesktopEntries.h"
#include "support/Awaited.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

class XdgInstalledApplicationsTest : public ::testing::Test {
protected:
    QString write(const QString& path, const QByteArray& contents = {}) {
        const QString full = disk.filePath(path);
        QDir().mkpath(QFileInfo(full).path());
        QFile file(full);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
        return full;
    }
    void entry(const char* id, const QByteArray& lines) {
        write(QStringLiteral("applications/%1.desktop").arg(QLatin1String(id)),
              "[Desktop Entry]\nType=Application\nExec=true\n" + lines);
    }
    [[nodiscard]] std::vector<InstalledApplication> found() const {
        return installedApplications(DesktopEntryIndex::read({disk.filePath(QStringLiteral("applications"))}, {}),
                                     iconFolders());
    }
    [[nodiscard]] QStringList iconFolders() const {
        return {disk.filePath(QStringLiteral("hicolor")), disk.filePath(QStringLiteral("pixmaps"))};
    }
    QTemporaryDir disk;
};

TEST_F(XdgInstalledApplicationsTest, AreThoseOfTheMenusByName) {
    entry("org.example.Zebra", "Name=zebra\n");
    entry("org.example.Ant", "Name=Ant\n");
    entry("org.example.Helper", "Name=Helper\nNoDisplay=true\n");
    const auto applications = found();
    ASSERT_EQ(applications.size(), 2U);
    EXPECT_EQ(applications[0].name, QStringLiteral("Ant"));
    EXPECT_EQ(applications[0].identifier, QStringLiteral("org.example.Ant"));
    EXPECT_EQ(applications[1].name, QStringLiteral("zebra"));
}

TEST_F(XdgInstalledApplicationsTest, HaveTheIdentifierOfTheProgramsListsOnce) {
    entry("keepassxc", "Name=KeePassXC\n");
    entry("org.keepassxc.KeePassXC", "Name=KeePassXC\n");
    const auto applications = found();
    ASSERT_EQ(applications.size(), 1U);
    EXPECT_EQ(applications[0].identifier, QStringLiteral("org.keepassxc.keepassxc"));
}

TEST_F(XdgInstalledApplicationsTest, TellTheirWindowsName) {
    entry("org.example.Terminal", "Name=A\n");
    entry("other", "Name=B\nStartupWMClass=Other-bin\n");
    EXPECT_EQ(found()[0].windowClass, QStringLiteral("Terminal"));
    EXPECT_EQ(found()[1].windowClass, QStringLiteral("Other-bin"));
}

TEST_F(XdgInstalledApplicationsTest, HaveTheirIconWhereverItLies) {
    const QString small = write(QStringLiteral("hicolor/16x16/apps/editor.png"));
    EXPECT_EQ(iconPath(QStringLiteral("editor"), iconFolders()), small);
    const QString scalable = write(QStringLiteral("hicolor/scalable/apps/editor.svg"));
    EXPECT_EQ(iconPath(QStringLiteral("editor"), iconFolders()), scalable);
    const QString fitting = write(QStringLiteral("hicolor/48x48/apps/editor.png"));
    EXPECT_EQ(iconPath(QStringLiteral("editor"), iconFolders()), fitting);
    const QString loose = write(QStringLiteral("pixmaps/old.xpm"));
    EXPECT_EQ(iconPath(QStringLiteral("old"), iconFolders()), loose);
    EXPECT_EQ(iconPath(QStringLiteral("old.xpm"), iconFolders()), loose);
    EXPECT_EQ(iconPath(loose, {}), loose);
    EXPECT_EQ(iconPath(QStringLiteral("unknown"), iconFolders()), QString());
    EXPECT_EQ(iconPath(QString(), iconFolders()), QString());
}

TEST_F(XdgInstalledApplicationsTest, AreReadAwayFromTheMainThread) {
    entry("org.example.Ant", "Name=Ant\n");
    XdgInstalledApplications applications(
        std::make_shared<DesktopEntries>(QStringList{disk.filePath(QStringLiteral("applications"))}, QStringList()),
        iconFolders());
    EXPECT_EQ(awaited(applications.list()).size(), 1U);
}

} // namespace
} // namespace vellumry
