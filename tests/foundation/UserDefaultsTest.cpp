// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/UserDefaults.h"

#include "support/FileSizeLimit.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace vellumry {

namespace {

class UserDefaultsFile : public testing::Test {
protected:
    QString path() const { return m_folder.filePath(QStringLiteral("Vellumry/Vellumry.conf")); }
    void writeByHand(const QByteArray& text) {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path()).path()));
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    QByteArray content() const {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
};

const QString key = QStringLiteral("key");

} // namespace

TEST_F(UserDefaultsFile, AFileThatDoesNotExistGivesTheRegisteredDefaults) {
    UserDefaults defaults(path());
    EXPECT_FALSE(defaults.object(key).isValid());
    defaults.registerDefaults({{key, 7}});
    defaults.registerDefaults({{QStringLiteral("other"), true}});
    EXPECT_EQ(defaults.integer(key), 7);
    EXPECT_TRUE(defaults.boolean(QStringLiteral("other")));
    EXPECT_FALSE(QFileInfo::exists(path())) << "reading writes nothing";
}

TEST_F(UserDefaultsFile, ValuesOfEachTypeSurviveANewProcess) {
    const QVariantMap positions{{QStringLiteral("37D8832A"), QVariantList{0.5, 1.0}}};
    const QStringList apps{QStringLiteral("org.keepassxc.keepassxc"), QStringLiteral("a,b")};
    {
        UserDefaults defaults(path());
        defaults.setObject(QStringLiteral("data"), QByteArray("{\"keyCode\":9}"));
        defaults.setObject(QStringLiteral("number"), 5);
        defaults.setObject(QStringLiteral("flag"), true);
        defaults.setObject(QStringLiteral("text"), QStringLiteral("5"));
        defaults.setObject(QStringLiteral("apps"), apps);
        defaults.setObject(QStringLiteral("none"), QStringList());
        defaults.setObject(QStringLiteral("panelPositions"), positions);
    }
    const UserDefaults defaults(path());
    EXPECT_EQ(defaults.object(QStringLiteral("data")).typeId(), QMetaType::QByteArray);
    EXPECT_EQ(defaults.object(QStringLiteral("data")).toByteArray(), "{\"keyCode\":9}");
    EXPECT_EQ(defaults.integer(QStringLiteral("number")), 5);
    EXPECT_TRUE(defaults.boolean(QStringLiteral("flag")));
    EXPECT_EQ(defaults.string(QStringLiteral("text")), QStringLiteral("5"));
    EXPECT_EQ(defaults.stringArray(QStringLiteral("apps")), apps);
    EXPECT_EQ(defaults.stringArray(QStringLiteral("none")), QStringList());
    EXPECT_EQ(defaults.object(QStringLiteral("panelPositions")).toMap(), positions);
}

TEST_F(UserDefaultsFile, AValueOfTheWrongTypeReadsAsAbsent) {
    UserDefaults defaults(path());
    defaults.setObject(key, QStringLiteral("blue"));
    EXPECT_EQ(defaults.integer(key), 0);
    EXPECT_FALSE(defaults.boolean(key));
    defaults.setObject(key, 5);
    EXPECT_FALSE(defaults.string(key));
    EXPECT_FALSE(defaults.stringArray(key));
    EXPECT_TRUE(defaults.boolean(key));
    defaults.setObject(key, QVariantMap{{key, 1}});
    EXPECT_EQ(defaults.integer(key), 0);
    EXPECT_FALSE(defaults.boolean(key));
    defaults.setObject(key, 1e300);
    EXPECT_EQ(defaults.integer(key), 0);
}

TEST_F(UserDefaultsFile, AValueThatCannotBeUsedIsTheRegisteredDefault) {
    UserDefaults defaults(path());
    const QString flag = QStringLiteral("flag");
    defaults.registerDefaults({{key, 7}, {flag, true}});
    for (const char* value : {"many", "-5", "101", "1e300", "a, b", ""}) {
        writeByHand("[General]\nkey=" + QByteArray(value) + "\nflag=perhaps\n");
        EXPECT_EQ(defaults.integer(key, 1, 100), 7) << value;
        EXPECT_TRUE(defaults.boolean(flag));
        EXPECT_EQ(defaults.refusedKeys(), QStringList({flag, key}));
    }
    writeByHand("[General]\nkey=\"100\"\nflag=off\n");
    EXPECT_EQ(defaults.integer(key, 1, 100), 100);
    EXPECT_FALSE(defaults.boolean(flag));
    EXPECT_EQ(defaults.refusedKeys(), QStringList());
}

TEST_F(UserDefaultsFile, EachRefusedValueIsNamedInTheLogOnceAndNeverQuoted) {
    UserDefaults defaults(path());
    writeByHand("[General]\nkey=my secret\n");
    testing::internal::CaptureStderr();
    for (int read = 0; read < 3; ++read)
        (void)defaults.integer(key);
    const std::string log = testing::internal::GetCapturedStderr();
    EXPECT_NE(log.find("the setting key"), std::string::npos) << log;
    EXPECT_EQ(log.find("the setting key"), log.rfind("the setting key")) << log;
    EXPECT_EQ(log.find("secret"), std::string::npos) << log;
}

TEST_F(UserDefaultsFile, APipeInItsPlaceIsNotWaitedFor) {
    UserDefaults defaults(path());
    defaults.setObject(key, 5);
    EXPECT_EQ(defaults.integer(key), 5);
    ASSERT_TRUE(QFile::remove(path()));
    ASSERT_EQ(mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
    EXPECT_EQ(defaults.integer(key), 5) << "what was known of it holds";
    EXPECT_EQ(UserDefaults(path()).integer(key), 0);
}

TEST_F(UserDefaultsFile, AnEndlessOrHugeFileIsNotRead) {
    UserDefaults defaults(path());
    ASSERT_TRUE(QDir().mkpath(QFileInfo(path()).path()));
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/zero"), path()));
    EXPECT_EQ(defaults.integer(key), 0);
    ASSERT_TRUE(QFile::remove(path()));
    writeByHand("[General]\nkey=5\n#" + QByteArray(1024 * 1024, 'x') + "\n");
    EXPECT_EQ(defaults.integer(key), 0);
    writeByHand("[General]\nkey=5\n#" + QByteArray(1024 * 1024 - 100, 'x') + "\n");
    EXPECT_EQ(defaults.integer(key), 5);
}

TEST_F(UserDefaultsFile, ARemovedValueFallsBackToTheDefault) {
    UserDefaults defaults(path());
    defaults.registerDefaults({{key, 7}});
    defaults.setObject(key, 9);
    EXPECT_EQ(defaults.integer(key), 9);
    defaults.removeObject(key);
    EXPECT_EQ(defaults.integer(key), 7);
    EXPECT_FALSE(content().contains("key"));
}

TEST_F(UserDefaultsFile, AChangeFromOutsideCountsAtTheNextRead) {
    UserDefaults defaults(path());
    defaults.setObject(key, 1);
    EXPECT_EQ(defaults.integer(key), 1);
    // Same length, same clock tick perhaps: the hardest change to see.
    for (int value = 2; value < 10; ++value) {
        writeByHand("[General]\nkey=" + QByteArray::number(value) + "\n");
        EXPECT_EQ(defaults.integer(key), value);
    }
    ASSERT_TRUE(QFile::remove(path()));
    EXPECT_EQ(defaults.integer(key), 0);
}

TEST_F(UserDefaultsFile, KeysWrittenByAnotherProcessAreKept) {
    UserDefaults defaults(path());
    defaults.setObject(key, 1);
    UserDefaults other(path());
    other.setObject(QStringLiteral("theirs"), 2);
    defaults.setObject(QStringLiteral("ours"), 3);
    EXPECT_EQ(other.integer(QStringLiteral("ours")), 3);
    EXPECT_EQ(defaults.integer(QStringLiteral("theirs")), 2);
    EXPECT_EQ(UserDefaults(path()).integer(key), 1);
}

TEST_F(UserDefaultsFile, AHandWrittenWordIsAListOfOne) {
    UserDefaults defaults(path());
    defaults.setObject(key, 1);
    writeByHand("[General]\nignoredApps=org.example.vault\nnone=\n");
    EXPECT_EQ(defaults.stringArray(QStringLiteral("ignoredApps")), QStringList{QStringLiteral("org.example.vault")});
    EXPECT_EQ(defaults.stringArray(QStringLiteral("none")), QStringList());
}

TEST_F(UserDefaultsFile, FolderAndFileAreTheUsersAlone) {
    UserDefaults defaults(path());
    defaults.setObject(key, 1);
    struct stat status {};
    ASSERT_EQ(stat(QFile::encodeName(path()).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
    ASSERT_EQ(stat(QFile::encodeName(QFileInfo(path()).path()).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700u);
}

TEST_F(UserDefaultsFile, AFileThatCannotBeWrittenKeepsItsContentAndTheValueHoldsForThisRun) {
    // A folder where the file should be stands for a disk that refuses; it refuses the superuser too.
    const QString blocked = m_folder.filePath(QStringLiteral("blocked"));
    ASSERT_TRUE(QDir().mkpath(blocked + QStringLiteral("/full")));
    UserDefaults defaults(blocked);
    defaults.registerDefaults({{key, 1}});
    defaults.setObject(key, 2);
    EXPECT_EQ(defaults.integer(key), 2);
    defaults.removeObject(key);
    EXPECT_EQ(defaults.integer(key), 1);
    EXPECT_TRUE(QFileInfo(blocked).isDir());
}

TEST_F(UserDefaultsFile, AFullDiskLeavesTheFileAsItWas) {
    const QByteArray before = "[General]\nkey=1\n";
    writeByHand(before);
    UserDefaults defaults(path());
    {
        const FileSizeLimit full(0);
        defaults.setObject(key, 2);
        EXPECT_EQ(defaults.integer(key), 2) << "until the end of the run";
        EXPECT_EQ(content(), before);
    }
    defaults.setObject(QStringLiteral("other"), 3);
    EXPECT_EQ(UserDefaults(path()).integer(key), 2) << "with the next change that finds room";
    EXPECT_EQ(QDir(QFileInfo(path()).path()).entryList(QDir::Files | QDir::Hidden).size(), 1)
        << "nothing lies beside it";
}

TEST_F(UserDefaultsFile, WhatCouldNotBeWrittenGoesOutWithTheNextChange) {
    UserDefaults defaults(path());
    ASSERT_TRUE(QDir().mkpath(path()));
    defaults.setObject(QStringLiteral("early"), 1);
    ASSERT_TRUE(QDir().rmdir(path()));
    defaults.setObject(QStringLiteral("late"), 2);
    EXPECT_EQ(UserDefaults(path()).integer(QStringLiteral("early")), 1);
    EXPECT_EQ(UserDefaults(path()).integer(QStringLiteral("late")), 2);
}

TEST(UserDefaults, AMemoryDomainWritesNothing) {
    UserDefaults defaults;
    defaults.registerDefaults({{key, 1}});
    EXPECT_EQ(defaults.integer(key), 1);
    defaults.setObject(key, QByteArray("x"));
    EXPECT_EQ(defaults.object(key), QByteArray("x"));
    defaults.removeObject(key);
    EXPECT_EQ(defaults.integer(key), 1);
}

} // namespace vellumry
