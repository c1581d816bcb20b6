// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/MemoryStoreTest.h"

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

class ClipStoreTest : public MemoryStoreTest {};

TEST_F(ClipStoreTest, BeginsEmptyAndInMemory) {
    EXPECT_TRUE(m_store.clips().empty());
    EXPECT_TRUE(m_store.isMemoryOnly());
    EXPECT_FALSE(m_store.recoveredFromDamage());
    EXPECT_EQ(m_store.sensitiveLifetime(), 60);
    EXPECT_FALSE(m_store.autoExpire());
    EXPECT_EQ(m_store.revision(), 0);
    EXPECT_EQ(m_store.nextExpiry(), std::nullopt);
}

TEST_F(ClipStoreTest, ADraftBecomesAClip) {
    ClipDraft draft = drafts::files({u"/a/b.png"_s});
    draft.sourceBundleID = u"org.example"_s;
    draft.sourceAppName = u"Example"_s;
    draft.thumbnail = QByteArray("thumb");
    draft.isScreenshot = true;
    const ClipRef clip = add(draft, 100.5);
    ASSERT_TRUE(clip);
    EXPECT_FALSE(clip->id.isNull());
    EXPECT_EQ(clip->kind, ClipKind::file);
    EXPECT_EQ(clip->title, draft.title);
    EXPECT_EQ(clip->searchText, StoredText(draft.searchText));
    EXPECT_EQ(clip->sourceBundleID, draft.sourceBundleID);
    EXPECT_EQ(clip->sourceAppName, draft.sourceAppName);
    EXPECT_EQ(clip->createdAt, 100.5);
    EXPECT_EQ(clip->lastUsedAt, 100.5);
    EXPECT_FALSE(clip->isPinned);
    EXPECT_EQ(clip->expiresAt, std::nullopt);
    EXPECT_EQ(clip->fingerprint.toString().size(), 64);
    EXPECT_EQ(clip->byteSize, draft.payload.byteCount());
    EXPECT_EQ(clip->files, draft.files);
    EXPECT_EQ(clip->thumbnail, draft.thumbnail);
    EXPECT_EQ(clip->imageText, std::nullopt);
    EXPECT_TRUE(clip->isScreenshot);
    EXPECT_EQ(awaited(m_store.payload(clip->id)), draft.payload);
}

TEST_F(ClipStoreTest, RecopyKeepsIdentityAndComesFirst) {
    const ClipRef first = addText(u"one"_s, 1);
    addText(u"two"_s, 2);
    const qint64 before = m_store.revision();
    const ClipRef again = addText(u"one"_s, 3);
    EXPECT_EQ(again->id, first->id);
    EXPECT_EQ(again->createdAt, 1);
    EXPECT_EQ(again->lastUsedAt, 3);
    EXPECT_EQ(titles(), (QStringList{u"one"_s, u"two"_s}));
    EXPECT_GT(m_store.revision(), before);
}

TEST_F(ClipStoreTest, ACopyWithAnOlderDateGoesWhereItBelongs) {
    addText(u"one"_s, 10);
    addText(u"two"_s, 20);
    addText(u"three"_s, 15);
    addText(u"four"_s, 15);
    EXPECT_EQ(titles(), (QStringList{u"two"_s, u"four"_s, u"three"_s, u"one"_s}));
}

TEST_F(ClipStoreTest, RecopyOfAPinnedClipKeepsThePin) {
    const ClipRef clip = addText(u"one"_s, 1);
    addText(u"two"_s, 2);
    pin(clip, true, 5);
    const ClipRef again = addText(u"one"_s, 6);
    EXPECT_TRUE(again->isPinned);
    EXPECT_EQ(again->pinOrder, 5000);
    EXPECT_EQ(m_store.clips().front()->id, clip->id);
}

TEST_F(ClipStoreTest, StyledTextReplacesPlainTextOfTheSameWords) {
    const ClipRef plain = addText(u"words"_s, 1);
    ClipDraft rich = drafts::text(u"words"_s);
    rich.kind = ClipKind::richText;
    rich.payload.items[0].representations.emplace(uniformtype::html, "<b>words</b>");
    const ClipRef clip = add(rich, 2);
    EXPECT_EQ(clip->id, plain->id);
    EXPECT_EQ(clip->kind, ClipKind::richText);
    EXPECT_EQ(m_store.clips().size(), 1U);
    EXPECT_EQ(awaited(m_store.payload(clip->id)), rich.payload);
}

TEST_F(ClipStoreTest, TheSameFilesInAnotherOrderAreOneClip) {
    const ClipRef one = add(drafts::files({u"/a"_s, u"/b"_s}), 1);
    const ClipRef two = add(drafts::files({u"/b"_s, u"/a"_s}), 2);
    EXPECT_EQ(one->id, two->id);
    EXPECT_EQ(m_store.clips().size(), 1U);
}

TEST_F(ClipStoreTest, AnUnchangedPictureIsNotReadAgain) {
    const ClipRef clip = add(drafts::image("png"), 1);
    awaited(m_store.setImageText(clip->id, u"read"_s, true));
    const ClipRef again = add(drafts::image("png"), 2);
    EXPECT_EQ(again->imageText, u"read"_s);
    EXPECT_TRUE(again->imageTextIsAccurate);
}

TEST_F(ClipStoreTest, TextThatReplacesALinkKeepsNoImageText) {
    ClipDraft link = drafts::text(u"http://x"_s);
    link.kind = ClipKind::link;
    const ClipRef clip = add(link, 1);
    awaited(m_store.setImageText(clip->id, u"read"_s, true));
    const ClipRef again = addText(u"http://x"_s, 2);
    EXPECT_EQ(again->id, clip->id);
    EXPECT_EQ(again->imageText, std::nullopt);
    EXPECT_FALSE(again->imageTextIsAccurate);
}

TEST_F(ClipStoreTest, BeingAScreenshotSticksToImagesOnly) {
    ClipDraft shot = drafts::image("png");
    shot.isScreenshot = true;
    add(shot, 1);
    EXPECT_TRUE(add(drafts::image("png"), 2)->isScreenshot);
    ClipDraft file = drafts::files({u"/shot.png"_s});
    file.isScreenshot = true;
    add(file, 3);
    EXPECT_FALSE(add(drafts::files({u"/shot.png"_s}), 4)->isScreenshot);
}

TEST_F(ClipStoreTest, WithoutRoomForClipsOneIsStoredAndGoneAgain) {
    m_store.setPolicy({.maxCount = 0});
    EXPECT_FALSE(addText(u"one"_s, 1));
    EXPECT_TRUE(m_store.clips().empty());
}

TEST_F(ClipStoreTest, AddingHoldsTheHistoryToItsLimits) {
    m_store.setPolicy({.maxCount = 2});
    const ClipRef oldest = addText(u"one"_s, 1);
    addText(u"two"_s, 2);
    addText(u"three"_s, 3);
    EXPECT_EQ(titles(), (QStringList{u"three"_s, u"two"_s}));
    EXPECT_EQ(awaited(m_store.payload(oldest->id)), std::nullopt);
}

TEST_F(ClipStoreTest, SettingThePolicyRemovesNothingByItself) {
    addText(u"one"_s, 1);
    m_store.setPolicy({.maxCount = 0});
    EXPECT_EQ(m_store.clips().size(), 1U);
    EXPECT_EQ(m_store.policy().maxCount, 0);
}

TEST_F(ClipStoreTest, UseMovesAClipAndNothingElse) {
    const ClipRef clip = add(drafts::secret(u"one"_s), 1);
    addText(u"two"_s, 2);
    awaited(m_store.markUsed(clip->id, 3));
    EXPECT_EQ(titles(), (QStringList{u"one"_s, u"two"_s}));
    EXPECT_EQ(current(clip)->lastUsedAt, 3);
    EXPECT_EQ(current(clip)->createdAt, 1);
    EXPECT_EQ(current(clip)->expiresAt, clip->expiresAt);
    const qint64 before = m_store.revision();
    awaited(m_store.markUsed(QUuid::createUuid(), 9));
    EXPECT_EQ(m_store.revision(), before);
}

TEST_F(ClipStoreTest, TextOfAPictureIsFoundAtOnce) {
    const ClipRef clip = add(drafts::image("png"), 1);
    EXPECT_TRUE(m_store.search(u"invoice"_s, ClipFilter::all).empty());
    awaited(m_store.setImageText(clip->id, u"Invoice 2026"_s, false));
    ASSERT_EQ(m_store.search(u"invoice"_s, ClipFilter::all).size(), 1U);
    awaited(m_store.setImageText(clip->id, std::nullopt, true));
    EXPECT_TRUE(m_store.search(u"invoice"_s, ClipFilter::all).empty());
}

TEST_F(ClipStoreTest, SearchFollowsWhatBecomesOfAClip) {
    ClipDraft draft = drafts::text(u"words"_s);
    draft.searchText = u"before"_s;
    const ClipRef clip = add(draft, 1);
    EXPECT_EQ(m_store.search(u"before"_s, ClipFilter::all).size(), 1U);
    draft.searchText = u"after"_s;
    add(draft, 2);
    EXPECT_TRUE(m_store.search(u"before"_s, ClipFilter::all).empty());
    EXPECT_EQ(m_store.search(u"after"_s, ClipFilter::text).size(), 1U);
    EXPECT_TRUE(m_store.search(u"after"_s, ClipFilter::links).empty());
    awaited(m_store.remove({clip->id}, false));
    EXPECT_TRUE(m_store.search(u"after"_s, ClipFilter::all).empty());
}

TEST_F(ClipStoreTest, KnowsWhichPicturesWaitForAReader) {
    const ClipRef unread = add(drafts::image("1"), 1);
    const ClipRef rough = add(drafts::image("2"), 2);
    const ClipRef done = add(drafts::image("3"), 3);
    const ClipRef file = add(drafts::files({u"/a.png"_s}), 4);
    add(drafts::files({u"/a.txt"_s}), 5);
    addText(u"text"_s, 6);
    awaited(m_store.setImageText(rough->id, u"r"_s, false));
    awaited(m_store.setImageText(done->id, u""_s, true));
    EXPECT_EQ(m_store.clipsWithoutText(), (std::vector<QUuid>{file->id, unread->id}));
    EXPECT_EQ(m_store.clipsWithRoughText(), std::vector<QUuid>{rough->id});
}

TEST_F(ClipStoreTest, RecentClipsAreTheFirstUnpinned) {
    addText(u"one"_s, 1);
    const ClipRef two = addText(u"two"_s, 2);
    addText(u"three"_s, 3);
    pin(two, true, 4);
    EXPECT_EQ(m_store.recentClips(2, false).back()->title, u"one"_s);
    EXPECT_EQ(m_store.recentClips(2, true).back()->title, u"two"_s);
    EXPECT_EQ(m_store.recentClips(99, true).size(), 3U);
    EXPECT_TRUE(m_store.recentClips(0, true).empty());
    EXPECT_TRUE(m_store.recentClips(-1, true).empty());
}

TEST_F(ClipStoreTest, RemovingNothingChangesNothing) {
    addText(u"one"_s, 1);
    const qint64 before = m_store.revision();
    awaited(m_store.remove({}, true));
    EXPECT_EQ(m_store.revision(), before);
}

TEST_F(ClipStoreTest, RemovingPassesOverWhatIsNotThere) {
    const ClipRef one = addText(u"one"_s, 1);
    addText(u"two"_s, 2);
    awaited(m_store.remove({one->id, QUuid::createUuid()}, false));
    EXPECT_EQ(titles(), QStringList{u"two"_s});
    EXPECT_EQ(awaited(m_store.payload(one->id)), std::nullopt);
}

TEST_F(ClipStoreTest, ClearingMaySpareThePins) {
    const ClipRef one = addText(u"one"_s, 1);
    const ClipRef two = addText(u"two"_s, 2);
    addText(u"three"_s, 3);
    pin(one, true, 5);
    pin(two, true, 4);
    const ClipRef before = current(one);
    awaited(m_store.clearHistory(true));
    EXPECT_EQ(titles(), (QStringList{u"two"_s, u"one"_s}));
    EXPECT_EQ(*current(one), *before);
    awaited(m_store.clearHistory(false));
    EXPECT_TRUE(m_store.clips().empty());
}

TEST_F(ClipStoreTest, WhatWasFoldedGoesWhenNothingIsSearchedForAndComesBack) {
    const ClipRef one = addText(u"one"_s, 1);
    EXPECT_EQ(m_store.search(u"ONE"_s, ClipFilter::all), std::vector<ClipRef>{one});
    EXPECT_GT(m_store.searchCapacity(), 0U);
    m_store.forgetSearch();
    EXPECT_EQ(m_store.searchCapacity(), 0U);
    const ClipRef two = addText(u"two"_s, 2);
    (void)m_store.search(u" "_s, ClipFilter::all);
    EXPECT_EQ(m_store.searchCapacity(), 0U);
    m_store.wakeSearch();
    runUntil([this] { return m_store.searchCapacity() > 0; });
    m_store.forgetSearch();
    EXPECT_EQ(m_store.search(u"TWO"_s, ClipFilter::all), std::vector<ClipRef>{two});
    EXPECT_GT(m_store.searchCapacity(), 0U);
}

TEST_F(ClipStoreTest, EveryChangeIsAnnouncedOnceItIsTrue) {
    QStringList seen;
    QObject::connect(&m_store, &ClipStore::clipsChanged, &m_store, [&] { seen.append(titles().join(u'+')); });
    const ClipRef one = addText(u"one"_s, 1);
    addText(u"two"_s, 2);
    awaited(m_store.markUsed(one->id, 3));
    awaited(m_store.remove({one->id}, false));
    EXPECT_EQ(seen, (QStringList{u"one"_s, u"two+one"_s, u"one+two"_s, u"two"_s}));
}

} // namespace
} // namespace vellumry
