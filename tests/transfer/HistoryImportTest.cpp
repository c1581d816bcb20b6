// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/HistoryImport.h"

#include "transfer/TransferWorld.h"

namespace vellumry {
namespace {

using HistoryImportTest = TransferWorld;

TEST_F(HistoryImportTest, EntriesKeepTheirOrderAndTheTimesThatAreKnown) {
    awaited(store->add(drafts::text(QStringLiteral("mine")), now - 10));
    peers.add(QStringLiteral("peer"), {entry("newest"), entry("dated", now - 500), entry("undated"), entry("oldest")},
              now - 100);
    const ImportOutcome outcome = importPeer("peer");
    EXPECT_EQ(outcome.added, 4);
    EXPECT_EQ(titles(), (QStringList{QStringLiteral("mine"), QStringLiteral("newest"), QStringLiteral("dated"),
                                     QStringLiteral("undated"), QStringLiteral("oldest")}));
    EXPECT_EQ(store->clips()[1]->createdAt, now - 100);
    EXPECT_EQ(store->clips()[2]->lastUsedAt, now - 500);
    EXPECT_LT(store->clips()[3]->lastUsedAt, now - 500);
    EXPECT_FALSE(store->clips()[1]->sourceAppName) << "nobody knows where it was copied";
}

TEST_F(HistoryImportTest, ATimeToComeIsNotBelieved) {
    peers.add(QStringLiteral("peer"), {entry("a", now + 1e6), entry("b", -5.0)}, now + 1e9);
    (void)importPeer("peer");
    EXPECT_EQ(store->clips()[0]->lastUsedAt, now);
}

TEST_F(HistoryImportTest, WhatIsThereOrComesTwiceIsOneClip) {
    awaited(store->add(drafts::text(QStringLiteral("known")), now - 10));
    peers.add(QStringLiteral("peer"), {entry("once"), entry("known"), entry("once")}, now - 100);
    const ImportOutcome outcome = importPeer("peer");
    EXPECT_EQ(outcome.added, 1);
    EXPECT_EQ(outcome.alreadyThere, 2);
    EXPECT_EQ(importPeer("peer").added, 0) << "a second import brings nothing twice";
    EXPECT_EQ(store->clips().size(), 2U);
}

TEST_F(HistoryImportTest, SecretsAreLeftOutUnlessSomebodyPinnedThem) {
    PeerClip locked;
    locked.isLocked = true;
    PeerClip pinned = entry("4111 1111 1111 1111");
    pinned.isPinned = true;
    peers.add(QStringLiteral("peer"), {entry("5500 0000 0000 0004"), locked, pinned, entry("plain")}, now - 100);
    const ImportOutcome outcome = importPeer("peer");
    EXPECT_EQ(outcome.secrets, 2);
    EXPECT_EQ(outcome.added, 2);
    ASSERT_EQ(store->pinnedClips().size(), 1U);
    EXPECT_FALSE(store->pinnedClips().front()->isSensitive());
}

TEST_F(HistoryImportTest, LimitsHoldAsForACopy) {
    store->setPolicy({.maxAge = 1000, .maxCount = 3, .maxMediaBytes = 1 << 20});
    std::vector<PeerClip> clips;
    for (int i = 0; i < 6; ++i)
        clips.push_back(entry(QByteArray::number(i)));
    clips.push_back(entry("ancient", now - 5000));
    PeerClip large = entry("with a large private form");
    large.items.front().representations.emplace(QStringLiteral("application/x-large"), QByteArray((2 << 20) + 1, 'x'));
    clips.insert(clips.begin(), large);
    peers.add(QStringLiteral("peer"), clips, now - 100);
    const ImportOutcome outcome = importPeer("peer");
    EXPECT_EQ(outcome.added, 3);
    EXPECT_EQ(outcome.beyondLimits, 5);
    const auto payload = awaited(store->payload(store->clips().front()->id));
    EXPECT_EQ(payload->items.front().representations.size(), 1U) << "a copy would not have kept it either";
}

TEST_F(HistoryImportTest, WhatCannotBeKeptIsCounted) {
    PeerClip picture;
    picture.items = {{{{uniformtype::png, "picture"}}, QStringList{uniformtype::png}}};
    peers.add(QStringLiteral("peer"), {entry("   "), PeerClip(), picture, entry("good")}, now - 100).isDamaged = true;
    hasRoom = false;
    const ImportOutcome outcome = importPeer("peer");
    EXPECT_EQ(outcome.unusable, 2);
    EXPECT_EQ(outcome.withoutRoom, 1);
    EXPECT_EQ(outcome.added, 1);
    EXPECT_TRUE(outcome.isDamaged);
    EXPECT_EQ(outcome.looked(), 4);
}

TEST_F(HistoryImportTest, AHistoryThatHasGoneMeanwhileIsSaid) {
    EXPECT_TRUE(importPeer("peer").isMissing);
    EXPECT_EQ(importPeer("peer").text(), QStringLiteral("There is nothing to import here any more."));
}

TEST_F(HistoryImportTest, TheUserMayStopItAndTakeItBack) {
    awaited(store->add(drafts::text(QStringLiteral("mine")), now - 10));
    std::vector<PeerClip> clips;
    for (int i = 0; i < 50; ++i)
        clips.push_back(entry("clip " + QByteArray::number(i)));
    peers.add(QStringLiteral("peer"), clips, now - 100);
    import->onProgress = [this](const ImportOutcome& soFar) {
        if (soFar.added == 3)
            import->stop();
    };
    const ImportOutcome outcome = importPeer("peer");
    EXPECT_TRUE(outcome.isStopped);
    EXPECT_EQ(outcome.added, 3);
    EXPECT_EQ(store->clips().size(), 4U);
    awaited(import->undo(outcome));
    EXPECT_EQ(titles(), QStringList{QStringLiteral("mine")});
    store.reset();
    store = history.openStore();
    EXPECT_EQ(titles(), QStringList{QStringLiteral("mine")}) << "on the disk too";
}

TEST_F(HistoryImportTest, TheMainThreadGoesOnBetweenTwoEntries) {
    std::vector<PeerClip> clips;
    for (int i = 0; i < 200; ++i)
        clips.push_back(entry("clip " + QByteArray::number(i)));
    peers.add(QStringLiteral("peer"), clips, now - 100);
    int turns = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&turns] { ++turns; });
    timer.start(0);
    int seenAt = 0;
    int most = 0;
    import->onProgress = [&](const ImportOutcome&) {
        most = turns == seenAt ? most + 1 : 0;
        EXPECT_LT(most, 20) << "other events wait";
        seenAt = turns;
    };
    EXPECT_EQ(importPeer("peer").added, 200);
}

TEST_F(HistoryImportTest, ItMayEndWhileItImports) {
    peers.add(QStringLiteral("peer"), {entry("a"), entry("b"), entry("c")}, now - 100);
    auto importing = import->importPeer(QStringLiteral("peer"));
    import.reset();
    EXPECT_LE(awaited(std::move(importing)).added, 3);
}

TEST(ImportOutcomeTest, TellsOnlyWhatHappened) {
    ImportOutcome outcome;
    outcome.added = 3;
    EXPECT_EQ(outcome.text(), QStringLiteral("3 clips were imported."));
    outcome.secrets = 2;
    outcome.isDamaged = true;
    EXPECT_EQ(outcome.text(), QStringLiteral("3 clips were imported. 2 passwords, codes or keys were left out. It is "
                                             "damaged: what could be read was looked at."));
}

} // namespace
} // namespace vellumry
