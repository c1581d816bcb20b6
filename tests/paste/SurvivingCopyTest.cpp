// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/SurvivingCopy.h"

#include "foundation/UniformType.h"
#include "history/clips/ClipStore.h"
#include "support/Awaited.h"
#include "support/Drafts.h"
#include "support/FakePasteboard.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

constexpr Date start = 1'700'000'000;

class SurvivingCopyTest : public testing::Test {
protected:
    /// Another program copies `text`, and the history takes it.
    ClipRef copied(const char* text, bool isSensitive) {
        pasteboard.copyText(QString::fromUtf8(text));
        const ClipRef clip = stored(text, isSensitive);
        surviving.noteStored(clip, pasteboard.changeCount());
        return clip;
    }
    ClipRef stored(const char* text, bool isSensitive) {
        ClipDraft draft = drafts::text(QString::fromUtf8(text));
        draft.isSensitive = isSensitive;
        return awaited(store.add(std::move(draft), start));
    }
    ClipRef secretOfADeadProgram() {
        const ClipRef clip = copied("4242", true);
        pasteboard.ownerGoes();
        return clip;
    }
    [[nodiscard]] QByteArray onBoard() const {
        if (pasteboard.items().empty())
            return {};
        const auto& representations = pasteboard.items().front().representations;
        const auto found = representations.find(uniformtype::utf8PlainText);
        return found == representations.end() ? QByteArray() : found->second;
    }

    ClipStore store{RetentionPolicy{}};
    FakePasteboard pasteboard;
    SurvivingCopy surviving{store, pasteboard};
};

} // namespace

TEST_F(SurvivingCopyTest, WhatWasCapturedIsPutBackWithTheMarkerWhenItsOwnerEnds) {
    copied("words", false);
    EXPECT_TRUE(pasteboard.writes.empty());
    pasteboard.ownerGoes();
    EXPECT_EQ(onBoard(), "words");
    EXPECT_TRUE(pasteboard.isOurs());
    EXPECT_TRUE(pasteboard.items().front().representations.contains(uniformtype::ownMarker));
}

TEST_F(SurvivingCopyTest, ACopyThatTheHistoryDidNotTakeIsNotPutBack) {
    copied("words", false);
    pasteboard.copyText(QStringLiteral("refused"));
    pasteboard.ownerGoes();
    EXPECT_EQ(onBoard(), "");
    EXPECT_TRUE(pasteboard.writes.empty());
}

TEST_F(SurvivingCopyTest, ACopyWhoseOwnerEndsBeforeItIsStoredIsPutBackAfterwards) {
    pasteboard.copyText(QStringLiteral("quick"));
    const qint64 changeCount = pasteboard.changeCount();
    pasteboard.ownerGoes();
    surviving.noteStored(stored("quick", false), changeCount);
    EXPECT_EQ(onBoard(), "quick");
}

TEST_F(SurvivingCopyTest, ACopyThatIsStoredLateDoesNotReplaceANewOne) {
    pasteboard.copyText(QStringLiteral("quick"));
    const qint64 changeCount = pasteboard.changeCount();
    pasteboard.ownerGoes();
    pasteboard.copyText(QStringLiteral("new"));
    surviving.noteStored(stored("quick", false), changeCount);
    EXPECT_EQ(onBoard(), "new");
}

TEST_F(SurvivingCopyTest, WhatWasDeletedBeforeItsOwnerEndedIsNotPutBack) {
    const ClipRef clip = copied("words", false);
    awaited(store.remove({clip->id}, false));
    pasteboard.ownerGoes();
    EXPECT_TRUE(pasteboard.writes.empty());
}

TEST_F(SurvivingCopyTest, ASecretGoesFromThePasteboardAtItsTime) {
    secretOfADeadProgram();
    EXPECT_EQ(onBoard(), "4242");
    awaited(store.enforceRetention(start + store.sensitiveLifetime() - 1));
    EXPECT_EQ(onBoard(), "4242");
    awaited(store.enforceRetention(start + store.sensitiveLifetime()));
    EXPECT_TRUE(pasteboard.items().empty());
}

TEST_F(SurvivingCopyTest, ASecretThatTheUserDeletesGoesFromThePasteboardToo) {
    const ClipRef clip = secretOfADeadProgram();
    awaited(store.remove({clip->id}, false));
    EXPECT_TRUE(pasteboard.items().empty());
}

TEST_F(SurvivingCopyTest, ASecretGoesFromThePasteboardWhenTheHistoryIsCleared) {
    secretOfADeadProgram();
    awaited(store.clearHistory(true));
    EXPECT_TRUE(pasteboard.items().empty());
}

TEST_F(SurvivingCopyTest, ASecretThatWasPinnedIsNoneAnyMoreAndStays) {
    const ClipRef clip = secretOfADeadProgram();
    awaited(store.setPinned(clip->id, true, start + 1));
    awaited(store.remove({clip->id}, false));
    EXPECT_EQ(onBoard(), "4242");
}

TEST_F(SurvivingCopyTest, AnOrdinaryCopyStaysWhenItIsDeleted) {
    const ClipRef clip = copied("words", false);
    pasteboard.ownerGoes();
    awaited(store.remove({clip->id}, false));
    EXPECT_EQ(onBoard(), "words");
}

TEST_F(SurvivingCopyTest, ASecretWhoseOwnerLivesIsItsOwners) {
    const ClipRef clip = copied("4242", true);
    awaited(store.remove({clip->id}, false));
    EXPECT_EQ(onBoard(), "4242");
}

TEST_F(SurvivingCopyTest, WhatTheUserPastedSinceThenStays) {
    const ClipRef clip = secretOfADeadProgram();
    EXPECT_TRUE(pasteboard.write({PasteboardItem{{{uniformtype::utf8PlainText, "4242"}}, {}}}));
    awaited(store.remove({clip->id}, false));
    EXPECT_EQ(onBoard(), "4242");
}

TEST_F(SurvivingCopyTest, WhatAnotherProgramCopiedSinceThenStays) {
    const ClipRef clip = secretOfADeadProgram();
    pasteboard.copyText(QStringLiteral("new"));
    awaited(store.remove({clip->id}, false));
    EXPECT_EQ(onBoard(), "new");
}

TEST_F(SurvivingCopyTest, ChangesOfOtherClipsLeaveASecretWhereItIs) {
    secretOfADeadProgram();
    const ClipRef other = stored("other", true);
    awaited(store.remove({other->id}, false));
    EXPECT_EQ(onBoard(), "4242");
}

TEST_F(SurvivingCopyTest, APastedSecretGoesWithItsClip) {
    const ClipRef clip = stored("4242", true);
    pasteboard.write({PasteboardItem{{{uniformtype::utf8PlainText, "4242"}}, {}}});
    surviving.noteWritten(clip->id, true);
    EXPECT_EQ(pasteboard.secrets, std::vector<qint64>{pasteboard.changeCount()});
    EXPECT_EQ(onBoard(), "4242");
    awaited(store.remove({clip->id}, false));
    EXPECT_EQ(onBoard(), "");
}

TEST_F(SurvivingCopyTest, APastedSecretThatIsNoClipGoesAtItsTime) {
    store.setSensitiveLifetime(0.01);
    pasteboard.write({PasteboardItem{{{uniformtype::utf8PlainText, "4242"}}, {}}});
    surviving.noteWritten(std::nullopt, true);
    EXPECT_EQ(pasteboard.secrets.size(), 1u);
    runUntil([this] { return onBoard().isEmpty(); });
}

TEST_F(SurvivingCopyTest, WhatIsPastedAndNoSecretStays) {
    const ClipRef clip = stored("words", false);
    pasteboard.write({PasteboardItem{{{uniformtype::utf8PlainText, "words"}}, {}}});
    surviving.noteWritten(clip->id, false);
    awaited(store.remove({clip->id}, false));
    EXPECT_EQ(onBoard(), "words");
    EXPECT_TRUE(pasteboard.secrets.empty());
}

} // namespace vellumry
