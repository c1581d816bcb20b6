// SPDX-License-Identifier: GPL-3.0-or-later

// A store whose file is read while it is worked with: the latest clips first, and the verdict on the file last.

#include "foundation/OneShot.h"
#include "history/clips/PersistentStoreTest.h"
#include "history/file/ClipRows.h"

#include <QTimer>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

QCoro::Task<bool> answerOf(OneShot<bool> verdict) {
    co_return co_await verdict;
}

class ClipStoreLoading : public PersistentStoreTest {
protected:
    static constexpr int manyRows = 250;

    void SetUp() override {
        PersistentStoreTest::SetUp();
        oldest = add(drafts::text(u"oldest"_s), 1);
        pinned = add(drafts::text(u"pinned"_s), 2);
        awaited(m_store->setPinned(pinned->id, true, 3));
        m_store.reset();
        // The others in one change of the file: one by one takes seconds.
        const ClipCrypto crypto(m_history.key());
        SQLiteDatabase file = m_history.connect();
        file.execute("BEGIN;");
        for (int number = 2; number < manyRows; ++number)
            cliprows::write(file, crypto, *someClip(10 + number, u"row %1"_s.arg(number)), ClipPayload());
        file.execute("COMMIT;");
        m_store = std::make_unique<ClipStore>(RetentionPolicy());
        m_store->setClock([] { return 1000.0; });
        m_store->setOpening(true);
    }

    /// Begins to attach; what `meanwhile` does happens when the latest clips are there and no others.
    void beginToAttach(const std::function<void()>& meanwhile = [] {}) {
        QObject::connect(m_store.get(), &ClipStore::storageChanged, m_store.get(), [this, meanwhile] {
            seen.push_back({m_store->clips().size(), m_store->isLoading()});
            // Queued before the rest is even asked for.
            if (m_store->isLoading())
                QTimer::singleShot(0, m_store.get(), meanwhile);
        });
        std::shared_ptr<ClipDatabase> database = m_history.open().database;
        weak = database;
        attaching.emplace(m_store->attach(std::move(database), false, [this] { return answerOf(verdict); }));
        runUntil([this] { return seen.size() == 2; });
    }
    [[nodiscard]] bool decide(bool isSound) {
        verdict.deliver(isSound);
        return awaited(*std::exchange(attaching, std::nullopt));
    }
    void expectAfterReopening(const std::function<void()>& what) {
        what();
        reopen();
        what();
    }
    [[nodiscard]] ClipRef byTitle(const QString& title) const {
        for (const ClipRef& clip : m_store->clips()) {
            if (clip->title == title)
                return clip;
        }
        return nullptr;
    }

    ClipRef oldest;
    ClipRef pinned;
    OneShot<bool> verdict;
    std::weak_ptr<ClipDatabase> weak;
    std::optional<QCoro::Task<bool>> attaching;
    std::vector<std::pair<std::size_t, bool>> seen; ///< clips, and whether more were on their way
};

TEST_F(ClipStoreLoading, TheLatestClipsAreThereBeforeTheOthers) {
    std::size_t found = 0;
    beginToAttach([&] { found = m_store->search(u"row"_s, ClipFilter::all).size(); });
    const std::vector<std::pair<std::size_t, bool>> expected{{100, true}, {manyRows, false}};
    EXPECT_EQ(seen, expected);
    EXPECT_EQ(found, 100U);
    EXPECT_EQ(m_store->clips().front()->title, u"row 249"_s);
    EXPECT_EQ(m_store->clips().back()->title, u"oldest"_s);
    EXPECT_EQ(m_store->search(u"row"_s, ClipFilter::all).size(), manyRows - 2U);
    EXPECT_TRUE(decide(true));
}

TEST_F(ClipStoreLoading, NothingIsWrittenBeforeTheVerdict) {
    beginToAttach();
    const ClipRef captured = add(drafts::text(u"captured"_s), 900);
    awaited(m_store->markUsed(oldest->id, 901));
    awaited(m_store->remove({pinned->id}, true));
    EXPECT_EQ(rowCount(), manyRows);
    EXPECT_EQ(awaited(m_store->payload(captured->id)), drafts::text(u"captured"_s).payload);
    EXPECT_EQ(awaited(m_store->payload(oldest->id)), drafts::text(u"oldest"_s).payload) << "the file can be read";
    EXPECT_TRUE(decide(true));
    EXPECT_EQ(rowCount(), manyRows);
    expectAfterReopening([&] {
        EXPECT_EQ(m_store->clips()[0]->id, oldest->id);
        EXPECT_EQ(m_store->clips()[1]->id, captured->id);
        EXPECT_FALSE(m_store->find(pinned->id));
    });
}

TEST_F(ClipStoreLoading, ACopyOfContentThatIsNotThereYetTakesItsRowsPlace) {
    beginToAttach([this] {
        m_store->add(drafts::text(u"pinned"_s), 900);
        m_store->add(drafts::text(u"oldest"_s), 901);
    });
    EXPECT_TRUE(decide(true));
    EXPECT_EQ(m_store->clips().size(), static_cast<std::size_t>(manyRows));
    EXPECT_EQ(rowCount(), manyRows);
    expectAfterReopening([&] {
        EXPECT_EQ(m_store->clips()[0]->title, u"oldest"_s);
        EXPECT_EQ(m_store->clips()[0]->createdAt, 1);
        EXPECT_EQ(m_store->clips()[1]->title, u"pinned"_s);
        EXPECT_TRUE(m_store->clips()[1]->isPinned);
        EXPECT_EQ(m_store->clips()[1]->pinOrder, 3000);
    });
}

TEST_F(ClipStoreLoading, WhatBecomesOfAClipMeanwhileHolds) {
    beginToAttach([this] {
        m_store->remove({byTitle(u"row 249"_s)->id}, false);
        m_store->setPinned(byTitle(u"row 248"_s)->id, true, 900);
        m_store->markUsed(byTitle(u"row 200"_s)->id, 901);
    });
    EXPECT_TRUE(decide(true));
    expectAfterReopening([&] {
        EXPECT_EQ(m_store->clips().size(), manyRows - 1U);
        EXPECT_FALSE(byTitle(u"row 249"_s));
        EXPECT_TRUE(byTitle(u"row 248"_s)->isPinned);
        EXPECT_EQ(m_store->clips()[0]->title, u"row 200"_s);
    });
}

TEST_F(ClipStoreLoading, WhatIsClearedMeanwhileDoesNotComeBack) {
    beginToAttach([this] {
        m_store->clearHistory(true);
        m_store->add(drafts::text(u"captured"_s), 900);
    });
    EXPECT_TRUE(decide(true));
    EXPECT_EQ(rowCount(), 2);
    expectAfterReopening([&] {
        ASSERT_EQ(m_store->clips().size(), 2U);
        EXPECT_EQ(m_store->clips()[0]->title, u"captured"_s);
        EXPECT_EQ(m_store->clips()[1]->id, pinned->id);
    });
}

TEST_F(ClipStoreLoading, ADamagedFileIsLetGoAndWhatWasCapturedGoesIntoTheNext) {
    beginToAttach([this] {
        m_store->add(drafts::text(u"captured"_s), 900);
        m_store->add(drafts::text(u"oldest"_s), 901);
        m_store->markUsed(byTitle(u"row 200"_s)->id, 902);
    });
    EXPECT_FALSE(decide(false));
    EXPECT_TRUE(weak.expired()) << "its files are about to be moved";
    ASSERT_EQ(m_store->clips().size(), 2U);
    EXPECT_EQ(m_store->clips()[0]->title, u"oldest"_s);
    EXPECT_FALSE(m_store->isMemoryOnly()) << "another file is on its way";

    historyfile::moveAside(m_history.path(), 1);
    EXPECT_TRUE(awaited(m_store->attach(m_history.open().database, true)));
    EXPECT_EQ(rowCount(), 2);
    expectAfterReopening([&] {
        ASSERT_EQ(m_store->clips().size(), 2U);
        EXPECT_EQ(awaited(m_store->payload(m_store->clips()[1]->id)), drafts::text(u"captured"_s).payload);
    });
}

TEST_F(ClipStoreLoading, ASearchFindsWhatIsThereHoweverItsTextsWereFolded) {
    beginToAttach();
    EXPECT_TRUE(decide(true));
    // While the texts are folded beside, and behind it.
    for (int round = 0; round < 60; ++round) {
        const QString text = u"changing %1"_s.arg(round);
        const ClipRef added = add(drafts::text(text), 900 + round);
        ASSERT_EQ(m_store->search(text, ClipFilter::all).size(), 1U) << round;
        ASSERT_EQ(m_store->search(u"oldest"_s, ClipFilter::all).size(), 1U) << round;
        awaited(m_store->remove({added->id}, false));
        ASSERT_TRUE(m_store->search(text, ClipFilter::all).empty()) << round;
    }
    awaited(m_store->remove({oldest->id}, false));
    EXPECT_TRUE(m_store->search(u"oldest"_s, ClipFilter::all).empty());
    awaited(m_store->clearHistory(false));
    EXPECT_TRUE(m_store->search(u"row"_s, ClipFilter::all).empty());
}

TEST_F(ClipStoreLoading, AFileThatCannotBeLoadedIsJudgedByTheVerdict) {
    const auto attach = [&](bool isSound) {
        const OpenedHistory history = m_history.open();
        execute("ALTER TABLE clips RENAME TO others;");
        const OneShot<bool> answer;
        answer.deliver(isSound);
        auto attached = m_store->attach(history.database, false, [answer] { return answerOf(answer); });
        const auto restored = qScopeGuard([this] { execute("ALTER TABLE others RENAME TO clips;"); });
        return awaited(std::move(attached));
    };
    EXPECT_FALSE(attach(false));
    EXPECT_THROW((void)attach(true), SQLiteError);
    EXPECT_TRUE(m_store->clips().empty());
}

TEST_F(ClipStoreLoading, AStoreMayGoWhileItLoads) {
    auto going = m_store->attach(m_history.open().database, false, [this] { return answerOf(verdict); });
    runUntil([this] { return m_store->isLoading(); });
    m_store.reset();
    verdict.deliver(true);
    EXPECT_FALSE(awaited(std::move(going)));
}

} // namespace
} // namespace vellumry
