// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/update/AppImageUpdater.h"

#include "foundation/UserDefaults.h"
#include "linux/update/FeedServer.h"
#include "linux/update/SigningKey.h"
#include "support/Awaited.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

/// A program of one file that knows its version, as an AppImage does.
QByteArray program(const char* version) {
    return QByteArray("#!/bin/sh\n[ \"$1\" = --version ] && echo \"Vellumry ") + version + " (Qt 6)\"\n";
}

class AppImageUpdaterTest : public ::testing::Test {
protected:
    AppImageUpdaterTest() {
        write(program("1.0"));
        makeUpdater();
    }
    void makeUpdater(std::chrono::seconds limit = std::chrono::minutes(1)) {
        AppImageUpdater::Options options;
        options.program = path;
        options.version = QStringLiteral("1.0");
        options.feed = server.url(QStringLiteral("/feed.xml"));
        options.publicKey = key.publicKey;
        options.defaults = &defaults;
        options.endProgram = [this] { ++ends; };
        options.clock = [this] { return now; };
        options.feedLimit = limit;
        options.fileLimit = limit;
        updater = std::make_unique<AppImageUpdater>(std::move(options));
        updater->willInstallOnQuit = [this](const SoftwareUpdater::Item& item, std::function<void()> installNow) {
            offered.append(item.displayVersion);
            install = std::move(installNow);
            return keepsForLater;
        };
        updater->shouldHandleShowing = [](const SoftwareUpdater::Item& item, bool) { return item.isCritical; };
        updater->willHandleShowing = [this](bool isHandled, const SoftwareUpdater::Item& item) {
            shown.append((isHandled ? QStringLiteral("ours ") : QString()) + item.displayVersion);
        };
        updater->didFinishCycle = [this] { ++cycles; };
        updater->willFinishSession = [this] { ++sessions; };
        updater->onOutcome = [this](SoftwareUpdater::Outcome outcome) { outcomes.push_back(outcome); };
    }
    void write(const QByteArray& bytes) const {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    [[nodiscard]] QByteArray running() const {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// A feed of one version; its file is `bytes`, signed.
    [[nodiscard]] QByteArray feedOf(const char* version, const QByteArray& bytes, const char* more = "") const {
        return QByteArray("<rss><channel><item>") + more + "<version>" + version + "</version><enclosure url=\"" +
               server.url(QStringLiteral("/V.AppImage")).toEncoded() + "\" length=\"" +
               QByteArray::number(bytes.size()) + "\" edSignature=\"" + key.sign(bytes).toBase64() +
               "\"/></item></channel></rss>\n";
    }
    void publish(const char* version, const QByteArray& bytes, const char* more = "") {
        server.serve(QStringLiteral("/feed.xml"), key.signedFeed(feedOf(version, bytes, more)));
        server.serve(QStringLiteral("/V.AppImage"), bytes);
    }
    void publish(const char* version) { publish(version, program(version)); }
    /// The user asks; until an answer has come.
    void check() {
        const int before = cycles;
        updater->check();
        EXPECT_FALSE(updater->canCheck());
        runUntil([this, before] { return cycles > before; });
    }
    /// A check came to nothing, and nothing has changed.
    void expectRefused(const char* what) {
        check();
        EXPECT_EQ(outcomes, std::vector{SoftwareUpdater::Outcome::failed}) << what;
        EXPECT_EQ(running(), program("1.0")) << what;
        EXPECT_EQ(QDir(disk.path()).entryList(QDir::Files), QStringList{QStringLiteral("V.AppImage")}) << what;
        EXPECT_TRUE(offered.isEmpty()) << what;
        outcomes.clear();
    }

    QTemporaryDir disk;
    QString path = disk.filePath(QStringLiteral("V.AppImage"));
    FeedServer server;
    SigningKey key;
    UserDefaults defaults;
    Date now = 1'700'000'000;
    bool keepsForLater = true;
    std::unique_ptr<AppImageUpdater> updater;
    QStringList offered;
    QStringList shown;
    std::function<void()> install = [] {};
    std::vector<SoftwareUpdater::Outcome> outcomes;
    int cycles = 0;
    int sessions = 0;
    int ends = 0;
};

TEST_F(AppImageUpdaterTest, ANewerVersionIsFetchedVerifiedAndInstalledWhenTheTimeHasCome) {
    publish("2.0");
    check();
    runUntil([this] { return !offered.isEmpty(); });
    EXPECT_EQ(offered, QStringList{"2.0"});
    EXPECT_EQ(running(), program("1.0")) << "not before it is told to";
    install();
    EXPECT_EQ(running(), program("2.0"));
    EXPECT_EQ(ends, 1) << "so that the newer one starts";
    QFile before(path + QStringLiteral(".previous"));
    ASSERT_TRUE(before.open(QIODevice::ReadOnly));
    EXPECT_EQ(before.readAll(), program("1.0")) << "kept until the newer one has started";
    EXPECT_EQ(updater->lastCheck(), now);
    EXPECT_TRUE(outcomes.empty());
}

TEST_F(AppImageUpdaterTest, TheNewerOneThrowsTheOneBeforeAwayOnceItRuns) {
    QFile before(path + QStringLiteral(".previous"));
    ASSERT_TRUE(before.open(QIODevice::WriteOnly));
    AppImageUpdater::Options options;
    options.program = path;
    options.version = QStringLiteral("2.0");
    options.defaults = &defaults;
    options.provenAfter = std::chrono::milliseconds(1);
    options.firstCheck = std::chrono::hours(1);
    updater = std::make_unique<AppImageUpdater>(std::move(options));
    EXPECT_TRUE(before.exists());
    updater->start();
    runUntil([&before] { return !before.exists(); });
}

TEST_F(AppImageUpdaterTest, OneThatIsReadyIsInstalledAtTheEndOfTheProgram) {
    publish("2.0");
    check();
    runUntil([this] { return !offered.isEmpty(); });
    updater.reset();
    EXPECT_EQ(running(), program("2.0"));
    EXPECT_EQ(ends, 0);
}

TEST_F(AppImageUpdaterTest, ACriticalVersionThatIsNotKeptIsInstalledAtOnce) {
    keepsForLater = false;
    publish("2.0", program("2.0"), "<criticalUpdate/>");
    check();
    runUntil([this] { return ends == 1; });
    EXPECT_EQ(running(), program("2.0"));
}

TEST_F(AppImageUpdaterTest, TheSameVersionAndAnOlderOneAreNoNews) {
    for (const char* version : {"1.0", "1.0"}) {
        publish(version);
        check();
    }
    EXPECT_EQ(outcomes, (std::vector{SoftwareUpdater::Outcome::upToDate, SoftwareUpdater::Outcome::upToDate}));
    EXPECT_EQ(server.asked, 2) << "the file is not fetched";
    EXPECT_EQ(running(), program("1.0"));
}

TEST_F(AppImageUpdaterTest, AFileThatIsNotWhatWasSignedIsRefused) {
    const QByteArray good = program("2.0");
    publish("2.0");
    QByteArray bad = good;
    bad[bad.size() - 3] = 'x';
    server.serve(QStringLiteral("/V.AppImage"), bad);
    expectRefused("tampered");
    server.serve(QStringLiteral("/V.AppImage"), good.chopped(1));
    expectRefused("shorter");
    server.serve(QStringLiteral("/V.AppImage"), good + " ");
    expectRefused("longer");
    server.serveRaw(QStringLiteral("/V.AppImage"), "HTTP/1.1 200 OK\r\nContent-Length: " +
                                                       QByteArray::number(good.size()) + "\r\n\r\n" + good.first(10));
    expectRefused("cut off");
    server.serveRaw(QStringLiteral("/V.AppImage"), "HTTP/1.1 200 OK\r\n\r\n", QByteArray(4096, 'x'));
    expectRefused("endless");
    server.hang(QStringLiteral("/V.AppImage"));
    makeUpdater(std::chrono::seconds(3));
    expectRefused("silent");
    makeUpdater();
    server.serveRaw(QStringLiteral("/V.AppImage"), "HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: " +
                                                       server.url("/other").toEncoded() + "\r\n\r\n");
    server.serve(QStringLiteral("/other"), good);
    expectRefused("redirected");
    server.serve(QStringLiteral("/V.AppImage"), good);
    check();
    runUntil([this] { return !offered.isEmpty(); });
}

TEST_F(AppImageUpdaterTest, AFeedThatIsNotWhatWasSignedIsRefused) {
    publish("2.0");
    const QString feed = QStringLiteral("/feed.xml");
    const QByteArray good = key.signedFeed(feedOf("2.0", program("2.0")));
    server.serve(feed, QByteArray(good).replace("<version>2.0", "<version>3.0"));
    expectRefused("tampered");
    server.serve(feed, good.chopped(10));
    expectRefused("truncated");
    server.serve(feed, feedOf("2.0", program("2.0")));
    expectRefused("unsigned");
    server.serve(feed, SigningKey().signedFeed(feedOf("2.0", program("2.0"))));
    expectRefused("signed by somebody else");
    server.serveRaw(feed, "HTTP/1.1 200 OK\r\n\r\n", QByteArray(4096, 'x'));
    expectRefused("endless");
    server.hang(feed);
    makeUpdater(std::chrono::seconds(3));
    expectRefused("silent");
    makeUpdater();
    server.serveRaw(feed, "HTTP/1.1 301 Moved\r\nContent-Length: 0\r\nLocation: " + server.url("/other").toEncoded() +
                              "\r\n\r\n");
    server.serve(QStringLiteral("/other"), good);
    expectRefused("redirected");
    server.serveRaw(feed, "HTTP/1.1 500 No\r\nContent-Length: 0\r\n\r\n");
    expectRefused("an error of the server");
    server.serve(feed, "");
    expectRefused("empty");
}

TEST_F(AppImageUpdaterTest, AFeedFromBeforeIsRefusedOnceANewerOneWasSeen) {
    publish("3.0", program("not yet built"));
    expectRefused("its file is not that version");
    publish("2.0");
    expectRefused("replayed");
    publish("3.0");
    check();
    runUntil([this] { return !offered.isEmpty(); });
    EXPECT_EQ(offered, QStringList{"3.0"});
}

TEST_F(AppImageUpdaterTest, AnOldFileUnderANewNumberIsRefused) {
    publish("9.0", program("0.5"));
    expectRefused("a signed file of an older version");
}

TEST_F(AppImageUpdaterTest, AFileFromAnotherPlaceWithoutEncryptionIsRefused) {
    QByteArray feed = feedOf("2.0", program("2.0"));
    feed.replace("http://127.0.0.1", "http://192.0.2.1");
    server.serve(QStringLiteral("/feed.xml"), key.signedFeed(feed));
    expectRefused("over an open connection");
}

TEST_F(AppImageUpdaterTest, WhatTheUserAsksForIsFetchedWithoutTheGeneralLeave) {
    updater->setAutomaticallyDownloads(false);
    publish("2.0");
    check();
    runUntil([this] { return !offered.isEmpty(); });
    EXPECT_TRUE(shown.isEmpty());
    EXPECT_EQ(sessions, 1);
}

TEST_F(AppImageUpdaterTest, TheDailyCheckComesByItselfAndTellsWhatItMayNotFetch) {
    publish("2.0");
    AppImageUpdater::Options options;
    options.program = path;
    options.version = QStringLiteral("1.0");
    options.feed = server.url(QStringLiteral("/feed.xml"));
    options.publicKey = key.publicKey;
    options.defaults = &defaults;
    options.clock = [this] { return now; };
    options.firstCheck = std::chrono::milliseconds(1);
    auto daily = std::make_unique<AppImageUpdater>(std::move(options));
    daily->setAutomaticallyDownloads(false);
    daily->shouldHandleShowing = [](const SoftwareUpdater::Item&, bool) { return false; };
    daily->willHandleShowing = updater->willHandleShowing;
    daily->didFinishCycle = updater->didFinishCycle;
    daily->willFinishSession = updater->willFinishSession;
    daily->start();
    runUntil([this] { return cycles == 1; });
    EXPECT_EQ(shown, QStringList{"2.0"});
    EXPECT_EQ(sessions, 0) << "it lasts until the user has seen it";
    EXPECT_EQ(server.asked, 1);
    EXPECT_EQ(running(), program("1.0"));
}

} // namespace
} // namespace vellumry
