// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/WatcherWorld.h"

namespace vellumry {
namespace {

class ClipboardWatcherTest : public WatcherWorld {};

TEST_F(ClipboardWatcherTest, ContentPresentAtLaunchIsNotCaptured) {
    watcher->tick(100);
    EXPECT_EQ(history(), QStringList());
    EXPECT_EQ(pasteboard.beginReadingRequests, 0);
    EXPECT_EQ(sourceRequests, 0);
}

TEST_F(ClipboardWatcherTest, ACopyIsCapturedOnce) {
    copyAndTick("one", 100);
    watcher->tick(101);
    EXPECT_EQ(history(), QStringList{QStringLiteral("one")});
    EXPECT_EQ(captured, QStringList{QStringLiteral("one")});
    EXPECT_EQ(readTitles, captured);
    ASSERT_EQ(stored.size(), 1u);
    EXPECT_EQ(stored[0], std::pair(store.clips().front()->id, pasteboard.changeCount()));
    EXPECT_EQ(store.clips().front()->lastUsedAt, 100);
    EXPECT_EQ(store.clips().front()->sourceAppName, source.name);
}

TEST_F(ClipboardWatcherTest, OfTwoCopiesWithinATickTheLaterCounts) {
    pasteboard.copyText(QStringLiteral("one"));
    copyAndTick("two", 100);
    EXPECT_EQ(history(), QStringList{QStringLiteral("two")});
}

TEST_F(ClipboardWatcherTest, ACountThatWentDownIsAChange) {
    pasteboard.setChangeCount(50);
    watcher->lastChangeCount = 50;
    pasteboard.copyText(QStringLiteral("one"));
    pasteboard.setChangeCount(3);
    watcher->tick(100);
    EXPECT_EQ(history(), QStringList{QStringLiteral("one")});
}

TEST_F(ClipboardWatcherTest, OwnWritesAreNotCaptured) {
    pasteboard.write({PasteboardItem{{{uniformtype::utf8PlainText, "ours"}, {uniformtype::ownMarker, ""}}, {}}});
    watcher->tick(100);
    EXPECT_EQ(history(), QStringList());
    EXPECT_TRUE(pasteboard.requests.empty());
}

TEST_F(ClipboardWatcherTest, APauseLosesItsCopiesForGood) {
    watcher->pause(300, 100);
    EXPECT_EQ(watcher->pausedUntil, 400);
    copyAndTick("paused", 399.9);
    watcher->tick(400);
    EXPECT_EQ(history(), QStringList());
    EXPECT_EQ(watcher->pausedUntil, 400); // cleared by the next change only
    copyAndTick("after", 400);
    EXPECT_EQ(watcher->pausedUntil, std::nullopt);
    EXPECT_EQ(history(), QStringList{QStringLiteral("after")});
    EXPECT_EQ(pasteboard.beginReadingRequests, 1);
}

TEST_F(ClipboardWatcherTest, APauseWithoutEndIsResumedByClearingIt) {
    watcher->pause(std::nullopt, 100);
    EXPECT_EQ(watcher->pausedUntil, distantFuture);
    copyAndTick("paused", 1e9);
    watcher->pausedUntil.reset();
    watcher->tick(1e9 + 1);
    EXPECT_EQ(history(), QStringList());
    copyAndTick("after", 1e9 + 2);
    EXPECT_EQ(history(), QStringList{QStringLiteral("after")});
}

TEST_F(ClipboardWatcherTest, TheNextCopyIsIgnoredTogetherWithWhatFollowsWithinASecond) {
    watcher->ignoreNextCopy = true;
    copyAndTick("secret", 100);
    EXPECT_FALSE(watcher->ignoreNextCopy);
    EXPECT_EQ(watcher->ignoringUntil, 101);
    copyAndTick("secret again", 100.9);
    EXPECT_EQ(ignoredCopies, 1);
    EXPECT_EQ(pasteboard.beginReadingRequests, 0);
    EXPECT_EQ(sourceRequests, 0);
    copyAndTick("boundary", 101);
    EXPECT_EQ(watcher->ignoringUntil, std::nullopt);
    EXPECT_EQ(history(), QStringList{QStringLiteral("boundary")});
}

TEST_F(ClipboardWatcherTest, APendingIgnoreSurvivesAPause) {
    watcher->ignoreNextCopy = true;
    watcher->pause(10, 100);
    copyAndTick("paused", 105);
    EXPECT_TRUE(watcher->ignoreNextCopy);
    copyAndTick("ignored", 111);
    copyAndTick("kept", 113);
    EXPECT_EQ(ignoredCopies, 1);
    EXPECT_EQ(history(), QStringList{QStringLiteral("kept")});
}

TEST_F(ClipboardWatcherTest, AWithdrawnIgnoreIgnoresNothing) {
    watcher->ignoreNextCopy = true;
    watcher->ignoreNextCopy = false;
    copyAndTick("kept", 100);
    EXPECT_EQ(history(), QStringList{QStringLiteral("kept")});
}

TEST_F(ClipboardWatcherTest, TheIgnoredApplicationsAreReadAtEachCopy) {
    copyAndTick("one", 100); // without a value nobody is ignored
    defaults.setObject(QStringLiteral("ignoredApps"), QStringList{QStringLiteral("org.example.Editor")});
    copyAndTick("two", 101);
    defaults.setObject(QStringLiteral("ignoredApps"), QStringList{QStringLiteral("org.example.Other")});
    copyAndTick("three", 102);
    EXPECT_EQ(history(), QStringList({QStringLiteral("three"), QStringLiteral("one")}));
}

TEST_F(ClipboardWatcherTest, TheOwnerOfThePasteboardIsIgnoredTooWhenItIsNotInFront) {
    defaults.setObject(QStringLiteral("ignoredApps"), QStringList{QStringLiteral("org.example.Vault")});
    SourceApp owner{QStringLiteral("org.example.Vault"), QStringLiteral("Vault")};
    watcher->pasteboardOwner = [&owner] { return owner; };
    copyAndTick("secret", 100);
    EXPECT_TRUE(pasteboard.requests.empty());
    owner = SourceApp();
    copyAndTick("words", 101);
    EXPECT_EQ(history(), QStringList{QStringLiteral("words")});
}

TEST_F(ClipboardWatcherTest, AFullDiskRefusesPicturesOnly) {
    watcher->hasRoomForImages = [] { return false; };
    pasteboard.copy(uniformtype::png, "png");
    watcher->tick(100);
    EXPECT_EQ(lowDiskCalls, 1);
    EXPECT_EQ(readTitles, QStringList());
    EXPECT_EQ(history(), QStringList());
    copyAndTick("text", 101);
    EXPECT_EQ(lowDiskCalls, 1);
    EXPECT_EQ(history(), QStringList{QStringLiteral("text")});
}

TEST_F(ClipboardWatcherTest, ASensitiveClipLivesAtLeastTenSeconds) {
    const std::pair<int, double> rows[] = {{0, 10}, {5, 10}, {10, 10}, {11, 11}, {600, 600}, {-3, 10}};
    Date now = 100;
    for (const auto& [seconds, lifetime] : rows) {
        defaults.setObject(QStringLiteral("sensitiveSeconds"), seconds);
        copyAndTick(("copy " + std::to_string(seconds)).c_str(), now += 1);
        EXPECT_EQ(store.sensitiveLifetime(), lifetime);
    }
}

TEST_F(ClipboardWatcherTest, ASecretExpiresAfterThePresentSetting) {
    defaults.setObject(QStringLiteral("sensitiveSeconds"), 30);
    copyAndTick("4111 1111 1111 1111", 100);
    ASSERT_EQ(store.clips().size(), 1u);
    EXPECT_EQ(store.clips().front()->expiresAt, 130);
}

TEST_F(ClipboardWatcherTest, ADuplicateIsReadAndFolded) {
    copyAndTick("same", 100);
    copyAndTick("other", 101);
    copyAndTick("same", 102);
    EXPECT_EQ(readTitles, QStringList({QStringLiteral("same"), QStringLiteral("other"), QStringLiteral("same")}));
    EXPECT_EQ(history(), QStringList({QStringLiteral("same"), QStringLiteral("other")}));
}

TEST_F(ClipboardWatcherTest, WorksWithoutAnyClosure) {
    watcher->onCapture = nullptr;
    watcher->onStored = nullptr;
    watcher->onRead = nullptr;
    watcher->onIgnoredCopy = nullptr;
    watcher->onLowDisk = nullptr;
    watcher->ignoreNextCopy = true;
    copyAndTick("ignored", 100);
    watcher->hasRoomForImages = [] { return false; };
    pasteboard.copy(uniformtype::png, "png");
    watcher->tick(102);
    copyAndTick("kept", 103);
    EXPECT_EQ(history(), QStringList{QStringLiteral("kept")});
}

} // namespace
} // namespace vellumry
