// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/PersistentStoreTest.h"

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

class ClipStoreForgetting : public PersistentStoreTest {};

TEST_F(ClipStoreForgetting, ClearingTakesEverythingButThePinsFromMemoryAndFile) {
    const ClipRef pin = add(drafts::text(u"pinned"_s), 1);
    awaited(m_store->setPinned(pin->id, true, 2));
    add(drafts::text(u"one"_s), 3);
    add(drafts::secret(u"two"_s), 4);
    m_store->setAutoExpire(true);
    const Clip before = *m_store->find(pin->id);
    EXPECT_EQ(m_store->search(u"one"_s, ClipFilter::all).size(), 1U);
    const qint64 revision = m_store->revision();
    awaited(m_store->clearHistory(true));
    EXPECT_EQ(m_store->clips().size(), 1U);
    EXPECT_EQ(*m_store->find(pin->id), before);
    EXPECT_GT(m_store->revision(), revision);
    EXPECT_FALSE(m_store->isExpiryScheduled());
    EXPECT_TRUE(m_store->search(u"one"_s, ClipFilter::all).empty());
    EXPECT_EQ(m_store->search(u"pinned"_s, ClipFilter::all).size(), 1U);
    EXPECT_EQ(rowCount(), 1);
    EXPECT_EQ(add(drafts::text(u"pinned"_s), 5)->id, pin->id);
    EXPECT_NE(add(drafts::text(u"one"_s), 6)->createdAt, 3);
    awaited(m_store->clearHistory(false));
    EXPECT_TRUE(m_store->clips().empty());
    EXPECT_EQ(rowCount(), 0);
    EXPECT_EQ(QFile(m_history.path() + u"-wal"_s).size(), 0);
    reopen();
    EXPECT_TRUE(m_store->clips().empty());
}

TEST_F(ClipStoreForgetting, ClearingWhatIsEmptyOrAllPinnedChangesNothing) {
    awaited(m_store->clearHistory(false));
    EXPECT_EQ(m_store->revision(), 0);
    const ClipRef pin = add(drafts::text(u"pinned"_s), 1);
    awaited(m_store->setPinned(pin->id, true, 2));
    const qint64 revision = m_store->revision();
    awaited(m_store->clearHistory(true));
    EXPECT_EQ(m_store->revision(), revision);
    EXPECT_EQ(rowCount(), 1);
}

TEST_F(ClipStoreForgetting, ASecretThatCouldNotBeDeletedIsBackAfterTheStartAndGoesThen) {
    const ClipRef clip = add(drafts::secret(u"one"_s), 1);
    refuseWrites();
    awaited(m_store->enforceRetention(100));
    EXPECT_TRUE(m_store->clips().empty());
    reopen();
    ASSERT_TRUE(m_store->find(clip->id));
    allowWrites();
    awaited(m_store->enforceRetention(100));
    EXPECT_EQ(rowCount(), 0);
    EXPECT_FALSE(allBytes().contains(clip->fingerprint.toString().toLatin1()));
}

TEST_F(ClipStoreForgetting, AnExpiredSecretLeavesNoTraceInTheFiles) {
    const ClipRef clip = add(drafts::secret(u"one"_s), 1);
    const QByteArray id = clip->id.toString(QUuid::WithoutBraces).toUpper().toLatin1();
    ASSERT_TRUE(allBytes().contains(id));
    awaited(m_store->enforceRetention(61));
    EXPECT_FALSE(allBytes().contains(id));
    EXPECT_FALSE(allBytes().contains(clip->fingerprint.toString().toLatin1()));
}

struct ReclaimCase {
    const char* name;
    int clips;
    qint64 bytesEach;
    bool isThorough;
    int strangers;
    bool reclaims;
};
class ClipStoreReclaim : public ClipStoreForgetting, public testing::WithParamInterface<ReclaimCase> {};

TEST_P(ClipStoreReclaim, SpaceIsGivenBackWhenItIsWorthIt) {
    QSet<QUuid> ids;
    for (int i = 0; i < GetParam().clips; ++i) {
        ClipDraft draft = drafts::text(QString::number(i));
        draft.payload.items[0].representations[u"x"_s] = QByteArray(GetParam().bytesEach - 1, 'x');
        ids.insert(add(draft, i)->id);
    }
    for (int i = 0; i < GetParam().strangers; ++i)
        ids.insert(QUuid::createUuid());
    awaited(m_store->remove(ids, GetParam().isThorough));
    EXPECT_EQ(rowCount(), 0);
    EXPECT_EQ(QFile(m_history.path() + u"-wal"_s).size() == 0, GetParam().reclaims);
}

INSTANTIATE_TEST_SUITE_P(Removals, ClipStoreReclaim,
                         testing::Values(ReclaimCase{"Little", 1, 100, false, 0, false},
                                         ReclaimCase{"LittleButThorough", 1, 100, true, 0, true},
                                         ReclaimCase{"AMegabyte", 1, 1 << 20, false, 0, false},
                                         ReclaimCase{"MoreThanAMegabyte", 1, (1 << 20) + 1, false, 0, true},
                                         ReclaimCase{"FortyNine", 49, 10, false, 0, false},
                                         ReclaimCase{"Fifty", 50, 10, false, 0, true},
                                         ReclaimCase{"FiftyWithStrangers", 1, 10, false, 49, true}),
                         [](const auto& row) { return row.param.name; });

} // namespace
} // namespace vellumry
