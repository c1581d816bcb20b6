// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/peers/LinuxPeerHistories.h"

#include "foundation/UniformType.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QTemporaryDir>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vellumry {
namespace {

void copyTree(const QString& from, const QString& to) {
    QDir().mkpath(to);
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString target = to + u'/' + QDir(from).relativeFilePath(file);
        QDir().mkpath(QFileInfo(target).path());
        ASSERT_TRUE(QFile::copy(file, target));
    }
}

/// What is in a folder, with the times that reading and writing leave.
QMap<QString, QByteArray> traces(const QString& folder) {
    QMap<QString, QByteArray> found;
    QDirIterator entries(folder, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        struct stat state {};
        ::stat(QFile::encodeName(path).constData(), &state);
        const auto time = [](const timespec& of) {
            return QByteArray::number(static_cast<qint64>(of.tv_sec)) + '.' +
                   QByteArray::number(static_cast<qint64>(of.tv_nsec)) + ' ';
        };
        QByteArray trace = time(state.st_mtim) + time(state.st_ctim);
        // Those of folders change when they are listed.
        if (S_ISREG(state.st_mode)) {
            trace += time(state.st_atim);
            found.insert(path, trace);
        }
    }
    for (auto trace = found.begin(); trace != found.end(); ++trace) {
        // Without a trace of its own.
        QFile file(trace.key());
        const int descriptor = ::open(QFile::encodeName(trace.key()).constData(), O_RDONLY | O_NOATIME);
        file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
        *trace += file.readAll();
    }
    return found;
}

class LinuxPeerHistoriesTest : public ::testing::Test {
protected:
    LinuxPeerHistoriesTest() {
        copyTree(QStringLiteral(VELLUMRY_PEER_FIXTURES), home.path());
        QDir().mkpath(folders.scratch);
    }
    [[nodiscard]] QString path(const char* name) const { return home.filePath(QString::fromUtf8(name)); }
    /// Klipper as it is since Plasma 6.3.
    void moveToPlasma6() const { copyTree(path("plasma6"), folders.data); }
    /// Klipper's database, changed by `sql`, as Klipper has it open: to be closed.
    [[nodiscard]] sqlite3* openKlipper(const char* sql) const {
        sqlite3* database = nullptr;
        const QString file = folders.data + QStringLiteral("/klipper/history3.sqlite");
        EXPECT_EQ(sqlite3_open(QFile::encodeName(file).constData(), &database), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(database, sql, nullptr, nullptr, nullptr), SQLITE_OK);
        return database;
    }
    static void write(const QString& path, const QByteArray& bytes) {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    static QByteArray read(const QString& path) {
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        return file.readAll();
    }
    [[nodiscard]] std::vector<PeerClip> clips(const char* identifier) {
        std::vector<PeerClip> result;
        const auto reading = histories.open(QString::fromUtf8(identifier));
        while (auto clip = reading ? reading->next() : std::nullopt)
            result.push_back(std::move(*clip));
        wasDamaged = reading && reading->isDamaged();
        return result;
    }
    [[nodiscard]] std::optional<PeerHistory> found(const char* identifier) {
        for (const PeerHistory& history : histories.find()) {
            if (history.identifier == QLatin1String(identifier))
                return history;
        }
        return std::nullopt;
    }
    static QByteArray textOf(const PeerClip& clip) {
        if (clip.items.empty())
            return "(nothing)";
        const auto& forms = clip.items.front().representations;
        const auto text = forms.find(uniformtype::utf8PlainText);
        return text == forms.end() ? QByteArray("(no text)") : text->second;
    }
    static QByteArrayList texts(const std::vector<PeerClip>& clips) {
        QByteArrayList result;
        for (const PeerClip& clip : clips)
            result.append(textOf(clip));
        return result;
    }

    QTemporaryDir home;
    LinuxPeerHistories::Folders folders{path("data"), path("config"), path("cache"), path("scratch")};
    LinuxPeerHistories histories{folders};
    bool wasDamaged = false;
};

const QByteArray png = "\x89PNG\r\n\x1a\n";

TEST_F(LinuxPeerHistoriesTest, EachProgramIsFoundWithWhatItHolds) {
    const std::vector<PeerHistory> expected{
        {QStringLiteral("copyq"), QStringLiteral("CopyQ"), PeerHistory::State::whole, 8, 1},
        {QStringLiteral("gpaste"), QStringLiteral("GPaste"), PeerHistory::State::whole, 5, 1},
        {QStringLiteral("klipper"), QStringLiteral("Klipper"), PeerHistory::State::whole, 6, 1},
        {QStringLiteral("xfce4-clipman"), QStringLiteral("Clipman (Xfce)"), PeerHistory::State::whole, 5, 1},
        {QStringLiteral("clipman"), QStringLiteral("clipman (Wayland)"), PeerHistory::State::whole, 3, 0},
    };
    EXPECT_EQ(histories.find(), expected);
}

TEST_F(LinuxPeerHistoriesTest, NothingOfTheirsIsChanged) {
    moveToPlasma6();
    const auto before = traces(home.path());
    (void)histories.find();
    for (const char* identifier : {"copyq", "gpaste", "klipper", "xfce4-clipman", "clipman"})
        EXPECT_FALSE(clips(identifier).empty()) << identifier;
    EXPECT_EQ(traces(home.path()), before);
}

TEST_F(LinuxPeerHistoriesTest, AHomeWithoutOtherProgramsHasNone) {
    const QTemporaryDir empty;
    LinuxPeerHistories none({empty.path(), empty.path(), empty.path(), empty.path()});
    EXPECT_TRUE(none.find().empty());
    for (const char* identifier : {"copyq", "gpaste", "klipper", "xfce4-clipman", "clipman", "unheard of", ""})
        EXPECT_EQ(none.open(QString::fromUtf8(identifier)), nullptr) << identifier;
}

TEST_F(LinuxPeerHistoriesTest, CopyQsItemsComeTabByTabWithAllTheirForms) {
    const auto items = clips("copyq");
    EXPECT_EQ(texts(items), (QByteArrayList{"(no text)", "(no text)", "rich words", "second copied", "first copied",
                                            "pinned one", "pinned thing", "in a tab"}));
    EXPECT_FALSE(wasDamaged);
    EXPECT_EQ(items[0].items.size(), 2U) << "a list of two files";
    EXPECT_EQ(items[0].items[1].representations.at(uniformtype::fileUrl), "file:///etc/hosts");
    EXPECT_TRUE(items[1].items[0].representations.at(uniformtype::png).startsWith(png));
    EXPECT_EQ(items[2].items[0].representations.at(uniformtype::html), "<b>rich</b> words");
    EXPECT_EQ(items[2].items[0].representations.size(), 2U);
    EXPECT_TRUE(items[5].isPinned);
    EXPECT_FALSE(items[6].isPinned) << "a note and a tag are no pin";
    EXPECT_EQ(items[6].items[0].representations.size(), 1U) << "what is CopyQ's own stays there";
}

QByteArray number(quint32 value) {
    QByteArray bytes(4, '\0');
    for (int i = 0; i < 4; ++i)
        bytes[i] = static_cast<char>(value >> (24 - 8 * i));
    return bytes;
}

QByteArray string(const QString& text) {
    QByteArray bytes = number(static_cast<quint32>(text.size() * 2));
    for (const QChar unit : text) {
        bytes += static_cast<char>(unit.unicode() >> 8);
        bytes += static_cast<char>(unit.unicode() & 0xff);
    }
    return bytes;
}

QByteArray copyQItem(const QString& codedType, const QByteArray& data, bool isCompressed = false) {
    return number(0xfffffffe) + number(1) + string(codedType) + char(isCompressed) +
           number(static_cast<quint32>(data.size())) + data;
}

TEST_F(LinuxPeerHistoriesTest, CopyQsOlderCodingsAreRead) {
    const QString tab = path("config/copyq/copyq_tab_JmNsaXBib2FyZA==.dat");
    QFile::remove(path("config/copyq/copyq_tab_d29yaw==.dat"));
    const QByteArray packed = qCompress(QByteArray("squeezed"));
    const QByteArray oldItem =
        number(1) + string(QStringLiteral("text/plain")) + number(static_cast<quint32>(packed.size())) + packed;
    write(tab, number(3) + oldItem + copyQItem(QStringLiteral("4"), packed, true) +
                   copyQItem(QStringLiteral("0text/plain;charset=utf-8"), "named"));
    EXPECT_EQ(texts(clips("copyq")), (QByteArrayList{"squeezed", "squeezed", "named"}));
    EXPECT_FALSE(wasDamaged);
}

TEST_F(LinuxPeerHistoriesTest, WhatCopyQEncryptsOrMarksAsSecretStaysThere) {
    const QString tab = path("config/copyq/copyq_tab_JmNsaXBib2FyZA==.dat");
    write(tab, number(2) + copyQItem(QStringLiteral("3encrypted"), "sealed") +
                   (number(0xfffffffe) + number(2) + string(QStringLiteral("8plain")) + '\0' + number(6) + "secret" +
                    string(QStringLiteral("0x-kde-passwordManagerHint")) + '\0' + number(6) + "secret"));
    const auto items = clips("copyq");
    EXPECT_TRUE(items[0].isLocked && items[0].items.empty());
    EXPECT_TRUE(items[1].isLocked && items[1].items.empty());
    write(tab, string(QStringLiteral("CopyQ_encrypted_tab v2")) + "sealed");
    QFile::remove(path("config/copyq/copyq_tab_d29yaw==.dat"));
    EXPECT_EQ(found("copyq")->state, PeerHistory::State::locked);
}

TEST_F(LinuxPeerHistoriesTest, ADamagedTabCostsWhatIsBehindTheDamageInIt) {
    const QString tab = path("config/copyq/copyq_tab_JmNsaXBib2FyZA==.dat");
    const QByteArray whole = read(tab);
    for (qsizetype length = 0; length < whole.size(); ++length) {
        write(tab, whole.first(length));
        const auto items = clips("copyq");
        EXPECT_TRUE(wasDamaged) << length;
        EXPECT_GE(items.size(), 3U) << "the other tab is whole";
    }
    write(tab, whole.first(300));
    const auto history = found("copyq");
    EXPECT_EQ(history->state, PeerHistory::State::damaged);
    EXPECT_GT(history->clips, 3);
}

TEST_F(LinuxPeerHistoriesTest, AbsurdNumbersInATabAreNotBelieved) {
    const QString tab = path("config/copyq/copyq_tab_JmNsaXBib2FyZA==.dat");
    for (const QByteArray& bytes :
         {number(0x7fffffff), number(0xffffffff), number(1) + number(0xfffffffe) + number(0x7fffffff),
          number(1) + number(0xfffffffe) + number(1) + number(0xfffffff0),
          number(1) + number(0xfffffffe) + number(1) + string(QStringLiteral("8plain")) + '\0' + number(0x7fffffff),
          number(1) + copyQItem(QStringLiteral("fplain"), "no such beginning"),
          number(1) + copyQItem(QStringLiteral("8plain"), number(0x7fffffff) + "no zlib", true),
          number(1) + copyQItem(QString(), "no type")}) {
        write(tab, bytes);
        EXPECT_EQ(clips("copyq").size(), 3U) << bytes.toHex().constData();
        EXPECT_TRUE(wasDamaged);
    }
}

TEST_F(LinuxPeerHistoriesTest, AFormThatWouldFillTheMemoryIsLeftOutAndTheRestOfItsTabIsRead) {
    const QString tab = path("config/copyq/copyq_tab_JmNsaXBib2FyZA==.dat");
    QFile::remove(path("config/copyq/copyq_tab_d29yaw==.dat"));
    QByteArray bomb = qCompress(QByteArray((100 << 20) + 1, 'a'));
    for (const QByteArray& said : {bomb.first(4), number(1)}) {
        bomb.replace(0, 4, said);
        write(tab, number(3) + copyQItem(QStringLiteral("4"), "before") + copyQItem(QStringLiteral("4"), bomb, true) +
                       copyQItem(QStringLiteral("4"), "behind"));
        EXPECT_EQ(texts(clips("copyq")), (QByteArrayList{"before", "(nothing)", "behind"}));
        EXPECT_FALSE(wasDamaged);
    }
    write(tab, number(1) + copyQItem(QStringLiteral("4"), qCompress(QByteArray(100 << 20, 'a')), true));
    EXPECT_EQ(textOf(clips("copyq").at(0)).size(), 100 << 20);
    write(tab, number(1) + copyQItem(QStringLiteral("4"), qCompress(QByteArray()), true));
    EXPECT_EQ(clips("copyq").size(), 1U);
    EXPECT_FALSE(wasDamaged) << "nothing, packed";
}

TEST_F(LinuxPeerHistoriesTest, GPastesTextsArePutBackAsTheyWere) {
    const auto items = clips("gpaste");
    ASSERT_EQ(items.size(), 5U);
    EXPECT_EQ(textOf(items[0]), "Umlaute äöü 日本語 👋");
    EXPECT_TRUE(items[1].items[0].representations.at(uniformtype::png).startsWith(png));
    EXPECT_EQ(items[1].copiedAt, 1795340002.0);
    EXPECT_EQ(textOf(items[3]), "two <lines> & \"quotes\" ]]> end \\ back\nsecond line &gt; &amp;");
    EXPECT_EQ(textOf(items[4]), "first copied");
}

TEST_F(LinuxPeerHistoriesTest, GPastesFileMayHoldWhatNoXmlMay) {
    const QString file = path("data/gpaste/history.xml");
    write(file, "<?xml version=\"1.0\"?>\n<history version=\"1.0\">\n"
                "<item kind=\"Text\"><![CDATA[bell\x07 and \xff]]></item>\n"
                "<item kind=\"Password\" name=\"p\"><value><![CDATA[hunter2]]></value></item>\n"
                "<item kind=\"Uris\"><value><![CDATA[/etc/hostname\nfile:///etc/hosts]]></value></item>\n"
                "<item kind=\"Image\" date=\"no date\"><value><![CDATA[../../../../etc/passwd]]></value></item>\n"
                "</history>\n");
    const auto items = clips("gpaste");
    ASSERT_EQ(items.size(), 4U);
    EXPECT_EQ(textOf(items[0]), "bell\x07 and \xff");
    EXPECT_TRUE(items[1].isLocked && items[1].items.empty());
    EXPECT_EQ(items[2].items.size(), 2U);
    EXPECT_TRUE(items[3].items.empty()) << "no file outside of its folder is opened";
    EXPECT_FALSE(items[3].copiedAt);
    EXPECT_FALSE(wasDamaged);
    const QByteArray whole = read(file);
    for (qsizetype length = 0; length + 12 < whole.size(); ++length) {
        write(file, whole.first(length));
        (void)clips("gpaste");
        EXPECT_TRUE(wasDamaged) << length;
    }
}

TEST_F(LinuxPeerHistoriesTest, AMillionEmptyItemsOfGPasteHoldNobodyUp) {
    QByteArray items = "<history>";
    constexpr int count = 500'000;
    for (int i = 0; i < count; ++i)
        items += "<item ></item>";
    write(path("data/gpaste/history.xml"), items + "<item kind=\"Text\"><![CDATA[last]]></item></history>");
    const Date began = currentDate();
    EXPECT_EQ(textOf(clips("gpaste").back()), "last");
    EXPECT_LT(currentDate() - began, 60) << "each would be looked for to the end of the file";
    EXPECT_FALSE(wasDamaged);
}

TEST_F(LinuxPeerHistoriesTest, KlippersListIsReadWithItsPicture) {
    const auto items = clips("klipper");
    EXPECT_FALSE(wasDamaged);
    EXPECT_EQ(texts(items), (QByteArrayList{"last", "(no text)", "(no text)", "Umlaute äöü 日本語 👋",
                                            "two <lines> & \"quotes\"\nsecond line", "first copied"}));
    EXPECT_EQ(items[1].items.size(), 2U);
    const QByteArray picture = items[2].items[0].representations.at(uniformtype::png);
    EXPECT_TRUE(picture.startsWith(png) && picture.endsWith("IEND\xae\x42\x60\x82"));
}

TEST_F(LinuxPeerHistoriesTest, ADamagedListOfKlippersGivesWhatIsBeforeTheDamage) {
    const QString file = path("data/klipper/history2.lst");
    const QByteArray whole = read(file);
    for (qsizetype length = 0; length < whole.size(); ++length) {
        write(file, whole.first(length));
        (void)clips("klipper");
        EXPECT_TRUE(wasDamaged) << length;
    }
    QByteArray flipped = whole;
    flipped[whole.size() - 1] = 'D';
    write(file, flipped);
    EXPECT_EQ(clips("klipper").size(), 6U);
    EXPECT_TRUE(wasDamaged) << "its check sum tells";
    EXPECT_EQ(found("klipper")->state, PeerHistory::State::damaged);
}

TEST_F(LinuxPeerHistoriesTest, KlippersDatabaseIsPreferredAndKnowsTimes) {
    moveToPlasma6();
    const auto items = clips("klipper");
    EXPECT_FALSE(wasDamaged);
    ASSERT_EQ(items.size(), 6U);
    EXPECT_EQ(textOf(items[0]), "used again 日本語");
    EXPECT_EQ(items[0].copiedAt, 1795000009.25);
    EXPECT_TRUE(items[0].isPinned);
    EXPECT_TRUE(items[1].isLocked && items[1].items.empty()) << "a password manager's";
    EXPECT_EQ(items[2].items.size(), 2U);
    EXPECT_TRUE(items[3].items[0].representations.contains(uniformtype::png));
    EXPECT_EQ(items[4].items[0].representations.at(uniformtype::html), "<b>rich</b> words");
    EXPECT_EQ(textOf(items[5]), "first copied");
    EXPECT_EQ(items[5].items[0].representations.size(), 1U) << "the same text under two names";
    EXPECT_TRUE(QDir(folders.scratch).isEmpty()) << "the copy has gone";
}

TEST_F(LinuxPeerHistoriesTest, WhatKlipperHasOnlyInItsLogIsSeen) {
    moveToPlasma6();
    sqlite3* database =
        openKlipper("INSERT INTO main VALUES('00ff', 1795000020, 1795000020, 'text/plain', 'logged', 0)");
    const auto before = traces(folders.data);
    EXPECT_EQ(textOf(clips("klipper").front()), "logged") << "without files its column counts";
    EXPECT_EQ(traces(folders.data), before) << "while Klipper has it open";
    sqlite3_close(database);
}

TEST_F(LinuxPeerHistoriesTest, AColumnThatIsWorkedOutIsNotBelieved) {
    moveToPlasma6();
    sqlite3* database = openKlipper("ALTER TABLE main RENAME COLUMN text TO plain;"
                                    "ALTER TABLE main ADD COLUMN text TEXT AS (hex(zeroblob(90000000)))");
    sqlite3_close(database);
    EXPECT_TRUE(clips("klipper").empty());
    EXPECT_TRUE(wasDamaged);
}

/// What other programs keep in the open is copied for a moment, for the user alone.
TEST(LinuxPeerHistoriesFolders, CopiesLieInMemoryWhereTheSessionHasAFolderThere) {
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", "/run/user/1");
    EXPECT_EQ(LinuxPeerHistories::Folders::ofUser().scratch, QStringLiteral("/run/user/1"));
    qunsetenv("XDG_RUNTIME_DIR");
    EXPECT_EQ(LinuxPeerHistories::Folders::ofUser().scratch, QDir::tempPath());
    if (!before.isNull())
        qputenv("XDG_RUNTIME_DIR", before);
}

TEST_F(LinuxPeerHistoriesTest, ADatabaseThatIsNoneIsDamagedAndNoNameLeadsOutOfItsFolder) {
    moveToPlasma6();
    const QString file = folders.data + QStringLiteral("/klipper/history3.sqlite");
    sqlite3* database = nullptr;
    ASSERT_EQ(sqlite3_open(QFile::encodeName(file).constData(), &database), SQLITE_OK);
    sqlite3_exec(database,
                 "DELETE FROM main; DELETE FROM aux;"
                 "INSERT INTO main VALUES('../../../../etc', 5, 5, 'text/plain', '', 0);"
                 "INSERT INTO aux VALUES('../../../../etc', 'text/plain', 'passwd')",
                 nullptr, nullptr, nullptr);
    sqlite3_close(database);
    EXPECT_TRUE(clips("klipper").front().items.empty());
    for (const QByteArray& bytes : {QByteArray(), QByteArray("no database"), read(file).first(5000)}) {
        write(file, bytes);
        EXPECT_TRUE(clips("klipper").empty());
        EXPECT_TRUE(wasDamaged);
        EXPECT_EQ(found("klipper")->state, PeerHistory::State::damaged);
    }
}

TEST_F(LinuxPeerHistoriesTest, ClipmansTextsComeNewestFirstAndItsPicturesBehindThem) {
    EXPECT_EQ(texts(clips("xfce4-clipman")),
              (QByteArrayList{"after picture", "Umlaute äöü 日本語", "with; semi and = signs\nsecond line\ttab",
                              "first copied", "(no text)"}));
    write(path("cache/xfce4/clipman/textsrc"), "[other]\ntexts=x;\n[texts]\ntexts=a\\\\b;c\\\n");
    EXPECT_EQ(clips("xfce4-clipman").size(), 1U);
    EXPECT_TRUE(wasDamaged) << "a backslash with nothing behind it";
    EXPECT_EQ(texts(clips("clipman")), (QByteArrayList{"three\nlines ä 日本", "two \"quoted\" & <b> \\ ", "one"}));
    write(path("data/clipman.json"), "[\"half");
    EXPECT_TRUE(clips("clipman").empty());
    EXPECT_TRUE(wasDamaged);
}

TEST_F(LinuxPeerHistoriesTest, WhatIsNoFileOrTooLargeIsSaidAndHoldsNobody) {
    QFile::remove(path("data/clipman.json"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(path("data/clipman.json")).constData(), 0600), 0);
    EXPECT_EQ(found("clipman")->state, PeerHistory::State::unreadable);
    QFile::remove(path("data/gpaste/history.xml"));
    QDir().mkpath(path("data/gpaste/history.xml"));
    EXPECT_EQ(found("gpaste")->state, PeerHistory::State::unreadable);
    QFile huge(path("data/klipper/history2.lst"));
    ASSERT_TRUE(huge.resize(qint64{300} << 20));
    EXPECT_EQ(found("klipper")->state, PeerHistory::State::tooLarge);
}

} // namespace
} // namespace vellumry
