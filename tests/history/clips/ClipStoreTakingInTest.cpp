// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/ClipStore.h"

#include "support/Drafts.h"
#include "support/TemporaryHistory.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

constexpr Date now = 1795000000;

class ClipStoreTakingInTest : public ::testing::Test {
protected:
    ClipStoreTakingInTest() {
        store->setClock([] { return now; });
    }
    TakenIn takeIn(const char* text, Provenance provenance) {
        return awaited(store->takeIn(drafts::text(QString::fromUtf8(text)), provenance));
    }
    [[nodiscard]] QStringList titles() const {
        QStringList titles;
        for (const ClipRef& clip : store->clips())
            titles.append(clip->title.toString());
        return titles;
    }

    TemporaryHistory history;
    std::unique_ptr<ClipStore> store = history.openStore();
};

TEST_F(ClipStoreTakingInTest, AClipFromElsewhereStandsWhereItsTimesPutItAndStays) {
    awaited(store->add(drafts::text(QStringLiteral("new")), now));
    awaited(store->add(drafts::text(QStringLiteral("old")), now - 100));
    const TakenIn taken = takeIn("between", {now - 70, now - 50});
    EXPECT_EQ(taken.outcome, TakenIn::Outcome::added);
    EXPECT_EQ(titles(), (QStringList{QStringLiteral("new"), QStringLiteral("between"), QStringLiteral("old")}));
    store.reset();
    store = history.openStore();
    const ClipRef clip = store->find(taken.id);
    ASSERT_NE(clip, nullptr);
    EXPECT_EQ(clip->createdAt, now - 70);
    EXPECT_EQ(clip->lastUsedAt, now - 50);
    EXPECT_FALSE(clip->isPinned);
    const auto payload = awaited(store->payload(taken.id));
    EXPECT_EQ(payload, drafts::text(QStringLiteral("between")).payload);
}

TEST_F(ClipStoreTakingInTest, WhatIsThereAlreadyStaysAsItIs) {
    const ClipRef before = awaited(store->add(drafts::text(QStringLiteral("known")), now - 10));
    EXPECT_EQ(takeIn("known", {now - 500, now - 1, true, 7}).outcome, TakenIn::Outcome::isThere);
    ASSERT_EQ(store->clips().size(), 1U);
    EXPECT_EQ(*store->clips().front(), *before);
}

TEST_F(ClipStoreTakingInTest, APinComesWithItsPlace) {
    (void)takeIn("third", {now - 1, now - 1, true, 30});
    (void)takeIn("first", {now - 2, now - 2, true, 10});
    (void)takeIn("behind", {now - 3, now - 3, true});
    QStringList pinned;
    for (const ClipRef& clip : store->pinnedClips())
        pinned.append(clip->title.toString());
    EXPECT_EQ(pinned, (QStringList{QStringLiteral("first"), QStringLiteral("third"), QStringLiteral("behind")}));
}

TEST_F(ClipStoreTakingInTest, WhatTheLimitsWouldTakeAtOnceNeverComes) {
    store->setPolicy({.maxAge = 1000, .maxCount = 2, .maxMediaBytes = 10});
    EXPECT_EQ(takeIn("too old", {now - 2000, now - 2000}).outcome, TakenIn::Outcome::beyondLimits);
    EXPECT_EQ(takeIn("a", {now - 1, now - 1}).outcome, TakenIn::Outcome::added);
    EXPECT_EQ(takeIn("b", {now - 3, now - 3}).outcome, TakenIn::Outcome::added);
    EXPECT_EQ(takeIn("older than both", {now - 4, now - 4}).outcome, TakenIn::Outcome::beyondLimits);
    const qint64 revision = store->revision();
    EXPECT_EQ(awaited(store->takeIn(drafts::image(QByteArray(11, 'x')), {now - 1, now - 1})).outcome,
              TakenIn::Outcome::beyondLimits);
    EXPECT_EQ(store->revision(), revision) << "nobody heard of it";
    EXPECT_EQ(titles(), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    EXPECT_EQ(takeIn("younger", {now - 2, now - 2}).outcome, TakenIn::Outcome::added);
    EXPECT_EQ(titles(), (QStringList{QStringLiteral("a"), QStringLiteral("younger")}));
    EXPECT_EQ(takeIn("pinned", {now - 5000, now - 5000, true}).outcome, TakenIn::Outcome::added);
}

} // namespace
} // namespace vellumry
