// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/PersistentStoreTest.h"

#include "support/Eventually.h"

#include <QFile>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

class ClipStoreUndoing : public PersistentStoreTest {
protected:
    [[nodiscard]] QStringList titles() const {
        QStringList titles;
        for (const ClipRef& clip : m_store->clips())
            titles.append(clip->title.toString());
        return titles;
    }
    [[nodiscard]] QByteArray bytesOfFile(const QString& suffix) const {
        QFile file(m_history.path() + suffix);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

TEST_F(ClipStoreUndoing, WhatIsTakenOutIsGoneFromMemoryAndFileAndComesBackAsItWas) {
    add(drafts::text(u"old"_s), 1);
    const ClipRef pin = add(drafts::text(u"pin"_s), 2);
    const ClipRef plain = add(drafts::text(u"plain"_s), 3);
    add(drafts::text(u"new"_s), 4);
    awaited(m_store->setPinned(pin->id, true, 5));
    const Clip before = *m_store->find(pin->id);
    const auto payload = awaited(m_store->payload(plain->id));

    auto removed = awaited(m_store->takeOut({pin->id, plain->id, QUuid::createUuid()}));
    EXPECT_EQ(removed.entries->size(), 2U);
    EXPECT_EQ(titles(), (QStringList{u"new"_s, u"old"_s}));
    EXPECT_EQ(rowCount(), 2) << "a program that is killed now has deleted them";

    awaited(m_store->putBack(std::move(removed)));
    const QStringList all{u"new"_s, u"plain"_s, u"pin"_s, u"old"_s};
    EXPECT_EQ(titles(), all);
    EXPECT_EQ(*m_store->find(pin->id), before);
    reopen();
    EXPECT_EQ(titles(), all);
    EXPECT_EQ(*m_store->find(pin->id), before);
    EXPECT_EQ(awaited(m_store->payload(plain->id)), payload);
    EXPECT_EQ(m_store->search(u"plain"_s, ClipFilter::all).size(), 1U);
}

TEST_F(ClipStoreUndoing, TheListChangesBeforeAnyWait) {
    const ClipRef clip = add(drafts::text(u"one"_s), 1);
    auto taking = m_store->takeOut({clip->id});
    EXPECT_TRUE(m_store->clips().empty());
    auto removed = awaited(std::move(taking));
    auto putting = m_store->putBack(std::move(removed));
    EXPECT_EQ(titles(), QStringList{u"one"_s});
    awaited(std::move(putting));
}

TEST_F(ClipStoreUndoing, WhatWasClearedSinceStaysAway) {
    const ClipRef clip = add(drafts::text(u"one"_s), 1);
    auto removed = awaited(m_store->takeOut({clip->id}));
    awaited(m_store->clearHistory(false));
    awaited(m_store->putBack(std::move(removed)));
    EXPECT_TRUE(m_store->clips().empty());
    EXPECT_EQ(rowCount(), 0);
}

TEST_F(ClipStoreUndoing, AContentThatWasCopiedAgainIsNotDoubledAndGetsItsPinBack) {
    const ClipRef clip = add(drafts::text(u"one"_s), 1);
    awaited(m_store->setPinned(clip->id, true, 2));
    const qint64 order = m_store->find(clip->id)->pinOrder;
    auto removed = awaited(m_store->takeOut({clip->id}));
    const ClipRef again = add(drafts::text(u"one"_s), 3);
    awaited(m_store->putBack(std::move(removed)));
    EXPECT_EQ(titles(), QStringList{u"one"_s});
    reopen();
    ASSERT_TRUE(m_store->find(again->id));
    EXPECT_TRUE(m_store->find(again->id)->isPinned);
    EXPECT_EQ(m_store->find(again->id)->pinOrder, order);
}

TEST_F(ClipStoreUndoing, LettingGoLeavesNothingInTheFileOrItsLog) {
    const ClipRef clip = add(drafts::text(u"one"_s), 1);
    const QByteArray id = clip->id.toString(QUuid::WithoutBraces).toUpper().toLatin1();
    auto removed = awaited(m_store->takeOut({clip->id}));
    awaited(m_store->letGo(std::move(removed)));
    EXPECT_FALSE((bytesOfFile(QString()) + bytesOfFile(u"-wal"_s)).contains(id));
    EXPECT_TRUE(bytesOfFile(u"-wal"_s).isEmpty());
}

TEST_F(ClipStoreUndoing, ARowThatCouldNotBeDeletedIsNotDeletedAfterItWasPutBack) {
    const ClipRef clip = add(drafts::text(u"one"_s), 1);
    refuseWrites();
    auto removed = awaited(m_store->takeOut({clip->id}));
    allowWrites();
    awaited(m_store->putBack(std::move(removed)));
    add(drafts::text(u"two"_s), 2); // the file takes changes again, and what waits is tried
    EXPECT_TRUE(eventually([&] { return !m_store->isBehind(); }));
    reopen();
    EXPECT_EQ(titles(), (QStringList{u"two"_s, u"one"_s}));
}

TEST_F(ClipStoreUndoing, WithoutAFileItComesBackToo) {
    ClipStore store{RetentionPolicy{}};
    const ClipRef clip = awaited(store.add(drafts::text(u"one"_s), 1));
    auto removed = awaited(store.takeOut({clip->id}));
    EXPECT_TRUE(store.clips().empty());
    awaited(store.putBack(std::move(removed)));
    ASSERT_TRUE(store.find(clip->id));
    EXPECT_TRUE(awaited(store.payload(clip->id)).has_value());
}

} // namespace
} // namespace vellumry
