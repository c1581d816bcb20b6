// SPDX-License-Identifier: GPL-3.0-or-later

// A store that captures before its file is there, and is joined with it later.

#include "history/clips/PersistentStoreTest.h"

#include <QSignalSpy>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

class ClipStoreJoining : public PersistentStoreTest {
protected:
    /// The file is left as it is; captures go to a store without it.
    void leaveTheFile() {
        m_store.reset();
        m_store = std::make_unique<ClipStore>(RetentionPolicy());
        m_store->setClock([] { return 100.0; });
        m_store->setOpening(true);
    }
    void attach() {
        const OpenedHistory history = m_history.open();
        EXPECT_TRUE(awaited(m_store->attach(history.database, false)));
    }
    [[nodiscard]] QStringList titles() const {
        QStringList list;
        for (const ClipRef& clip : m_store->clips())
            list.append(clip->title.toString());
        return list;
    }
};

TEST_F(ClipStoreJoining, WhatWasCapturedAndWhatWasKeptComeTogetherInTheirOrder) {
    add(drafts::text(u"kept first"_s), 1);
    add(drafts::text(u"kept last"_s), 50);
    leaveTheFile();
    EXPECT_FALSE(m_store->isMemoryOnly()) << "the file is on its way";
    add(drafts::text(u"captured first"_s), 40);
    const ClipRef last = add(drafts::text(u"captured last"_s), 60);
    QSignalSpy storage(m_store.get(), &ClipStore::storageChanged);
    QSignalSpy clips(m_store.get(), &ClipStore::clipsChanged);
    attach();
    const QStringList all{u"captured last"_s, u"kept last"_s, u"captured first"_s, u"kept first"_s};
    EXPECT_EQ(titles(), all);
    EXPECT_EQ(storage.size(), 1);
    EXPECT_EQ(clips.size(), 1);
    EXPECT_EQ(rowCount(), 4);
    EXPECT_EQ(m_store->search(u"captured"_s, ClipFilter::all).size(), 2U);
    reopen();
    EXPECT_EQ(titles(), all);
    EXPECT_EQ(awaited(m_store->payload(last->id)), drafts::text(u"captured last"_s).payload);
}

TEST_F(ClipStoreJoining, ACaptureOfKnownContentTakesItsRowsPlace) {
    const ClipRef kept = add(drafts::text(u"words"_s), 1);
    awaited(m_store->setPinned(kept->id, true, 2));
    leaveTheFile();
    const ClipRef captured = add(drafts::text(u"words"_s), 60);
    attach();
    ASSERT_EQ(m_store->clips().size(), 1U);
    const ClipRef joined = m_store->find(captured->id);
    ASSERT_TRUE(joined) << "who knows the clip by its identity finds it";
    EXPECT_EQ(joined->createdAt, 1);
    EXPECT_EQ(joined->lastUsedAt, 60);
    EXPECT_TRUE(joined->isPinned);
    EXPECT_EQ(joined->pinOrder, 2000);
    EXPECT_EQ(rowCount(), 1);
    add(drafts::text(u"words"_s), 70);
    EXPECT_EQ(rowCount(), 1) << "the fingerprint is of the file's key now";
    reopen();
    EXPECT_EQ(m_store->clips().size(), 1U);
    EXPECT_TRUE(m_store->find(captured->id)->isPinned);
}

TEST_F(ClipStoreJoining, AnUnchangedPictureKeepsItsText) {
    const ClipRef kept = add(drafts::image("png"), 1);
    awaited(m_store->setImageText(kept->id, u"read"_s, true));
    leaveTheFile();
    const ClipRef captured = add(drafts::image("png"), 60);
    attach();
    EXPECT_EQ(m_store->find(captured->id)->imageText, u"read"_s);
    EXPECT_TRUE(m_store->find(captured->id)->imageTextIsAccurate);
}

TEST_F(ClipStoreJoining, PinsAndExpiriesOfTheMeantimeHold) {
    leaveTheFile();
    const ClipRef pinned = add(drafts::text(u"pinned"_s), 90);
    awaited(m_store->setPinned(pinned->id, true, 91));
    const ClipRef secret = add(drafts::secret(u"secret"_s), 95);
    attach();
    EXPECT_TRUE(m_store->find(pinned->id)->isPinned);
    EXPECT_EQ(m_store->find(secret->id)->expiresAt, 155);
    reopen();
    EXPECT_TRUE(m_store->find(pinned->id)->isPinned);
    EXPECT_EQ(m_store->find(secret->id)->expiresAt, 155);
}

TEST_F(ClipStoreJoining, ASecretThatExpiredIsNotWritten) {
    leaveTheFile();
    const ClipRef secret = add(drafts::secret(u"secret"_s), 10);
    attach();
    EXPECT_FALSE(m_store->find(secret->id));
    EXPECT_EQ(rowCount(), 0);
}

TEST_F(ClipStoreJoining, WhatWasClearedMeanwhileDoesNotComeBack) {
    const ClipRef pinned = add(drafts::text(u"pinned"_s), 1);
    awaited(m_store->setPinned(pinned->id, true, 2));
    add(drafts::text(u"kept"_s), 3);
    leaveTheFile();
    awaited(m_store->clearHistory(true));
    add(drafts::text(u"captured"_s), 60);
    attach();
    EXPECT_EQ(titles(), (QStringList{u"captured"_s, u"pinned"_s}));
    EXPECT_EQ(rowCount(), 2);
    leaveTheFile();
    awaited(m_store->clearHistory(false));
    awaited(m_store->clearHistory(true));
    attach();
    EXPECT_TRUE(m_store->clips().empty());
    EXPECT_EQ(rowCount(), 0);
}

TEST_F(ClipStoreJoining, ALargeCopyWhoseHashIsUnderWayIsJoinedToo) {
    const QByteArray bytes(2'000'000, 'p');
    add(drafts::image(bytes), 1);
    leaveTheFile();
    auto adding = m_store->add(drafts::image(bytes), 60);
    attach();
    EXPECT_TRUE(awaited(std::move(adding)));
    EXPECT_EQ(m_store->clips().size(), 1U);
    EXPECT_EQ(rowCount(), 1);
}

TEST_F(ClipStoreJoining, LoadingThatFailsLeavesTheStoreAsItWas) {
    leaveTheFile();
    add(drafts::text(u"captured"_s), 60);
    const OpenedHistory history = m_history.open();
    execute("DROP TABLE clips;");
    EXPECT_THROW((void)awaited(m_store->attach(history.database, false)), SQLiteError);
    EXPECT_EQ(titles(), QStringList(u"captured"_s));
    m_store->setOpening(false);
    EXPECT_TRUE(m_store->isMemoryOnly());
    add(drafts::text(u"more"_s), 70);
    EXPECT_EQ(m_store->clips().size(), 2U);
}

TEST_F(ClipStoreJoining, AStoreMayGoWhileItJoins) {
    leaveTheFile();
    add(drafts::text(u"captured"_s), 60);
    const OpenedHistory history = m_history.open();
    auto attaching = m_store->attach(history.database, false);
    m_store.reset();
    EXPECT_FALSE(awaited(std::move(attaching)));
}

} // namespace
} // namespace vellumry
