// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/FilePlaces.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

const QString home = QStringLiteral("/home/someone");

TEST(FilePlaces, ListsTheUsersOwnFolders) {
    const FilePlaces places = FilePlaces::underHome(home, QStringLiteral("someone"));
    ASSERT_EQ(places.personal.size(), 3u);
    EXPECT_EQ(places.personal[0], (FilePlaces::Folder{home + QStringLiteral("/Desktop"), QStringLiteral("Desktop")}));
    EXPECT_EQ(places.personal[1].path, home + QStringLiteral("/Documents"));
    EXPECT_EQ(places.personal[2].path, home + QStringLiteral("/Downloads"));
}

TEST(FilePlaces, FindsTheVolumeOfAPath) {
    const FilePlaces places = FilePlaces::underHome(home, QStringLiteral("someone"));
    EXPECT_EQ(places.volumeOf(QStringLiteral("/media/someone/Stick/a/b")), QStringLiteral("/media/someone/Stick"));
    EXPECT_EQ(places.volumeOf(QStringLiteral("/run/media/someone/Stick")), QStringLiteral("/run/media/someone/Stick"));
    EXPECT_EQ(places.volumeOf(QStringLiteral("/mnt/backup/a")), QStringLiteral("/mnt/backup"));
    for (const char* path :
         {"/media/someone", "/media/someone/", "/media/other/Stick/a", "/mnt", "/mntx/a", "/home/a", "/"})
        EXPECT_EQ(places.volumeOf(QString::fromUtf8(path)), std::nullopt) << path;
}

TEST(FilePlaces, AnUnknownUserHasNoVolumesOfTheirOwn) {
    EXPECT_EQ(FilePlaces::underHome(home, QString()).volumeRoots, QStringList{QStringLiteral("/mnt")});
}

TEST(FilePlaces, AFolderIsNotUnderANameThatBeginsLikeIt) {
    EXPECT_TRUE(isAtOrUnder(QStringLiteral("/a/Desktop"), QStringLiteral("/a/Desktop")));
    EXPECT_TRUE(isAtOrUnder(QStringLiteral("/a/Desktop/b"), QStringLiteral("/a/Desktop")));
    EXPECT_FALSE(isAtOrUnder(QStringLiteral("/a/Desktopper/b"), QStringLiteral("/a/Desktop")));
}

/// Sets an environment variable for the length of a test.
class Environment {
public:
    Environment(const char* name, const QByteArray& value)
        : m_name(name)
        , m_old(qgetenv(name))
        , m_wasSet(qEnvironmentVariableIsSet(name)) {
        qputenv(name, value);
    }
    ~Environment() {
        if (m_wasSet)
            qputenv(m_name, m_old);
        else
            qunsetenv(m_name);
    }

private:
    const char* m_name;
    QByteArray m_old;
    bool m_wasSet;
};

TEST(FilePlaces, FollowsTheUsersFolderSettings) {
    const QTemporaryDir folder;
    QFile settings(folder.filePath(QStringLiteral("user-dirs.dirs")));
    ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
    settings.write("XDG_DESKTOP_DIR=\"/srv/Schreibtisch\"\nXDG_DOCUMENTS_DIR=\"$HOME/\"\n");
    settings.close();
    const Environment config("XDG_CONFIG_HOME", folder.path().toUtf8());
    const Environment homeFolder("HOME", folder.path().toUtf8());
    const FilePlaces places = FilePlaces::ofUser(folder.path());
    EXPECT_EQ(places.personal[0], (FilePlaces::Folder{QStringLiteral("/srv/Schreibtisch"), QStringLiteral("Desktop")}));
    // Switched off: the home folder as a whole is no protected place.
    EXPECT_EQ(places.personal[1].path, folder.path() + QStringLiteral("/Documents"));
    EXPECT_EQ(places.personal[2].path, folder.path() + QStringLiteral("/Downloads"));
}

} // namespace
} // namespace vellumry
