// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/PasteWorld.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

using Paste = PasteOutcome;

PasteOutcome paste(PasteWorld& world, const ClipRef& clip, std::optional<bool> isPlain = {},
                   std::optional<TextTransform> transform = {}) {
    return awaited(world.engine->paste(clip, isPlain, transform));
}

ClipDraft styled(ClipKind kind) {
    auto draft = drafts::text(QStringLiteral("words"));
    draft.kind = kind;
    draft.payload.items.front().representations[uniformtype::html] = "<b>words</b>";
    return draft;
}

bool hasHtml(const PasteWorld& world) {
    return world.pasteboard.items().front().representations.contains(uniformtype::html);
}

} // namespace

TEST(PasteEngine, WritesThenWaitsThenPressesTheKeys) {
    PasteWorld world;
    const auto clip = world.addText("hello");
    EXPECT_EQ(paste(world, clip), Paste::pasted());
    EXPECT_EQ(world.pastedText(), QStringLiteral("hello"));
    EXPECT_TRUE(world.pasteboard.items().front().representations.contains(uniformtype::ownMarker));
    EXPECT_EQ(world.log, (QStringList{QStringLiteral("sleep 70"), QStringLiteral("focus"), QStringLiteral("press")}));
    EXPECT_EQ(world.pastedCount, 1);
}

TEST(PasteEngine, HasWrittenBeforeItPresses) {
    PasteWorld world;
    const auto clip = world.addText("hello");
    QString seen;
    world.target.onPress = [&] { seen = world.pastedText(); };
    paste(world, clip);
    EXPECT_EQ(seen, QStringLiteral("hello"));
}

TEST(PasteEngine, RecordsTheUse) {
    PasteWorld world;
    const auto older = world.addText("older");
    world.addText("newer");
    world.now += 100;
    paste(world, older);
    EXPECT_EQ(world.store.clips().front()->id, older->id);
    EXPECT_EQ(world.store.find(older->id)->lastUsedAt, world.now);
}

TEST(PasteEngine, CopiesOnlyWhenTheUserWantsNoDirectPasteWhateverElseHolds) {
    PasteWorld world;
    world.defaults.setObject(QStringLiteral("pasteDirectly"), false);
    world.target.trusted = false;
    world.target.secureInput = true;
    const auto clip = world.addText("hello");
    EXPECT_EQ(paste(world, clip), Paste::copiedOnly(PasteReason::directPasteOff));
    EXPECT_EQ(world.pastedText(), QStringLiteral("hello"));
    EXPECT_TRUE(world.log.isEmpty());
    EXPECT_EQ(world.pastedCount, 0);
}

TEST(PasteEngine, CopiesOnlyWhereItMayPressNoKeys) {
    PasteWorld world;
    world.target.trusted = false;
    world.target.secureInput = true;
    EXPECT_EQ(paste(world, world.addText("hello")), Paste::copiedOnly(PasteReason::notTrusted));
    EXPECT_EQ(world.target.presses, 0);
}

TEST(PasteEngine, CopiesOnlyInFrontOfAPasswordField) {
    PasteWorld world;
    world.target.secureInput = true;
    EXPECT_EQ(paste(world, world.addText("hello")), Paste::copiedOnly(PasteReason::secureInput));
    EXPECT_EQ(world.target.presses, 0);
}

TEST(PasteEngine, PressesNothingIntoAWindowThatIsNotTheTarget) {
    PasteWorld world;
    world.target.focusComesBack = false;
    const auto clip = world.addText("hello");
    EXPECT_EQ(paste(world, clip), Paste::copiedOnly(PasteReason::targetGone));
    EXPECT_EQ(world.pastedText(), QStringLiteral("hello"));
    EXPECT_EQ(world.target.presses, 0);
    EXPECT_EQ(world.pastedCount, 0);
}

TEST(PasteEngine, FollowsAChangedSettingAtTheNextPaste) {
    PasteWorld world;
    const auto clip = world.addText("hello");
    EXPECT_EQ(paste(world, clip), Paste::pasted());
    world.defaults.setObject(QStringLiteral("pasteDirectly"), false);
    EXPECT_EQ(paste(world, clip), Paste::copiedOnly(PasteReason::directPasteOff));
}

TEST(PasteEngine, PlainByDefaultCountsForTextRichTextAndLinksOnly) {
    PasteWorld world;
    world.defaults.setObject(QStringLiteral("plainTextByDefault"), true);
    for (const auto kind : {ClipKind::text, ClipKind::richText, ClipKind::link}) {
        paste(world, world.add(styled(kind)));
        EXPECT_FALSE(hasHtml(world)) << int(kind);
    }
    for (const auto kind : {ClipKind::image, ClipKind::color}) {
        paste(world, world.add(styled(kind)));
        EXPECT_TRUE(hasHtml(world)) << int(kind);
    }
}

TEST(PasteEngine, AnExplicitChoiceBeatsTheDefault) {
    PasteWorld world;
    const auto clip = world.add(styled(ClipKind::richText));
    paste(world, clip, true);
    EXPECT_FALSE(hasHtml(world));
    world.defaults.setObject(QStringLiteral("plainTextByDefault"), true);
    paste(world, clip, false);
    EXPECT_TRUE(hasHtml(world));
}

TEST(PasteEngine, ImageGoesOutAsImageWithPlainByDefault) {
    PasteWorld world;
    world.defaults.setObject(QStringLiteral("plainTextByDefault"), true);
    EXPECT_EQ(paste(world, world.add(drafts::image("png bytes"))), Paste::pasted());
    EXPECT_EQ(world.pasteboard.items().front().representations.at(uniformtype::png), "png bytes");
}

TEST(PasteEngine, WritesTheTransformedText) {
    PasteWorld world;
    EXPECT_EQ(paste(world, world.add(styled(ClipKind::richText)), true, TextTransform::uppercase), Paste::pasted());
    EXPECT_EQ(world.pastedText(), QStringLiteral("WORDS"));
    EXPECT_FALSE(hasHtml(world));
}

TEST(PasteEngine, WritesTheClipAsItIsWhenThereIsNoTextToTransform) {
    PasteWorld world;
    EXPECT_EQ(paste(world, world.add(drafts::image("png bytes")), {}, TextTransform::uppercase), Paste::pasted());
    EXPECT_EQ(world.pasteboard.items().front().representations.at(uniformtype::png), "png bytes");
}

TEST(PasteEngine, FailsWithoutATraceWhenThePayloadIsGone) {
    PasteWorld world;
    const auto clip = world.addText("hello");
    awaited(world.store.remove({clip->id}, false));
    EXPECT_EQ(paste(world, clip), Paste::failed());
    EXPECT_EQ(awaited(world.engine->copy(clip)), CopyOutcome::failed());
    EXPECT_TRUE(world.pasteboard.writes.empty());
    EXPECT_TRUE(world.log.isEmpty());
}

TEST(PasteEngine, RecordsNoUseWhenThePasteboardRefuses) {
    PasteWorld world;
    const auto clip = world.addText("hello");
    world.pasteboard.refusesWrites = true;
    world.now += 100;
    EXPECT_EQ(paste(world, clip), Paste::failed());
    EXPECT_EQ(paste(world, clip, true), Paste::failed());
    EXPECT_EQ(paste(world, clip, true, TextTransform::uppercase), Paste::failed());
    EXPECT_EQ(awaited(world.engine->copy(clip)), CopyOutcome::failed());
    EXPECT_EQ(world.store.find(clip->id)->lastUsedAt, clip->lastUsedAt);
    EXPECT_TRUE(world.log.isEmpty());
}

TEST(PasteEngine, CopyWritesAndRecordsAndPressesNothing) {
    PasteWorld world;
    const auto clip = world.add(styled(ClipKind::richText));
    world.defaults.setObject(QStringLiteral("plainTextByDefault"), true);
    world.now += 100;
    EXPECT_EQ(awaited(world.engine->copy(clip)), CopyOutcome::copied());
    EXPECT_TRUE(hasHtml(world));
    EXPECT_EQ(world.store.find(clip->id)->lastUsedAt, world.now);
    EXPECT_TRUE(world.log.isEmpty());
}

TEST(PasteEngine, PastesATextThatIsNoClip) {
    PasteWorld world;
    EXPECT_EQ(awaited(world.engine->pasteText(QStringLiteral("loose"))), Paste::pasted());
    EXPECT_EQ(world.pastedText(), QStringLiteral("loose"));
    world.pasteboard.refusesWrites = true;
    EXPECT_EQ(awaited(world.engine->pasteText(QStringLiteral("loose"))), Paste::failed());
    EXPECT_EQ(world.target.presses, 1);
}

TEST(PasteEngine, PressesNothingWhenItWentWhileWaiting) {
    PasteWorld world;
    world.holdsSleep = true;
    const auto clip = world.addText("hello");
    const auto pasting = world.engine->paste(clip, {}, {});
    ASSERT_EQ(world.sleepers.size(), 1u);
    world.engine.reset();
    world.wakeSleepers();
    ASSERT_TRUE(pasting.isReady());
    EXPECT_EQ(world.target.presses, 0);
    EXPECT_EQ(world.target.focusRequests, 0);
}

TEST(PasteEngine, TouchesNothingWhenItWentWhileAFieldWasAskedForSecrets) {
    PasteWorld world;
    const auto clip = world.addText("hello");
    world.target.holdsAnswer = true;
    const auto pasting = world.engine->paste(clip, {}, {});
    ASSERT_FALSE(pasting.isReady());
    world.engine.reset();
    world.target.answer();
    ASSERT_TRUE(pasting.isReady());
    EXPECT_EQ(world.log, QStringList{QStringLiteral("sleep 70")});
    EXPECT_EQ(world.pastedCount, 0);
}

TEST(PasteEngine, AsksForPasswordFieldsWhileThePanelGoes) {
    PasteWorld world;
    world.holdsSleep = true;
    world.target.holdsAnswer = true;
    const auto pasting = world.engine->paste(world.addText("hello"), {}, {});
    EXPECT_EQ(world.log, QStringList{QStringLiteral("sleep 70")});
    // Whichever of the two comes first waits for the other.
    world.wakeSleepers();
    EXPECT_EQ(world.target.presses, 0);
    world.target.answer();
    ASSERT_TRUE(pasting.isReady());
    EXPECT_EQ(world.target.presses, 1);
}

TEST(PasteEngine, WaitsForThePanelToGoWhenTheAnswerCameFirst) {
    PasteWorld world;
    world.holdsSleep = true;
    const auto pasting = world.engine->paste(world.addText("hello"), {}, {});
    ASSERT_FALSE(pasting.isReady());
    EXPECT_EQ(world.target.presses, 0);
    world.wakeSleepers();
    ASSERT_TRUE(pasting.isReady());
    EXPECT_EQ(world.target.presses, 1);
}

TEST(PasteEngine, TellsOfAPasswordFieldAtOnceAndPressesNothingLater) {
    PasteWorld world;
    world.holdsSleep = true;
    world.target.secureInput = true;
    EXPECT_EQ(paste(world, world.addText("hello")), Paste::copiedOnly(PasteReason::secureInput));
    world.wakeSleepers();
    EXPECT_EQ(world.target.presses, 0);
    EXPECT_EQ(world.log, QStringList{QStringLiteral("sleep 70")});
}

TEST(PasteEngine, TwoPastesAtOnceLeaveTheLastOnThePasteboard) {
    PasteWorld world;
    world.holdsSleep = true;
    const auto one = world.addText("one");
    const auto two = world.addText("two");
    const auto first = world.engine->paste(one, {}, {});
    const auto second = world.engine->paste(two, {}, {});
    world.wakeSleepers();
    EXPECT_TRUE(first.isReady());
    EXPECT_TRUE(second.isReady());
    EXPECT_EQ(world.pastedText(), QStringLiteral("two"));
    EXPECT_EQ(world.target.presses, 2);
}

} // namespace vellumry
