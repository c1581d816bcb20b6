// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/PasteStack.h"

#include "foundation/UniformType.h"
#include "support/Drafts.h"
#include "support/FakePasteboard.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

PasteStack::Item itemOf(const ClipDraft& draft) {
    PasteStack::Item item;
    item.kind = draft.kind;
    item.payload = draft.payload;
    item.files = draft.files;
    return item;
}

PasteStack::Item textItem(const char* string) {
    return itemOf(drafts::text(QString::fromUtf8(string)));
}

PasteStack::Item fileItem(const char* path) {
    return itemOf(drafts::files({QString::fromUtf8(path)}));
}

PasteStack::Item styledItem(ClipKind kind) {
    PasteStack::Item item = textItem("words");
    item.kind = kind;
    item.payload.items.front().representations.insert_or_assign(uniformtype::html, QByteArray("<b>words</b>"));
    item.payload.items.front().order->append(uniformtype::html);
    return item;
}

struct StackWorld {
    StackWorld() {
        stack.onFinish = [this] {
            ++finishCount;
            wasActiveAtFinish = wasActiveAtFinish || stack.isActive();
        };
        stack.onSkip = [this](const PasteStack::Item& item) { skipped.push_back(item.id); };
        QObject::connect(&stack, &PasteStack::changed, &stack, [this] { ++changes; });
    }
    [[nodiscard]] QString onBoard() const {
        return board.items().empty() ? QString() : plainText(board.items()).value_or(QString());
    }
    [[nodiscard]] bool hasHtml() const { return board.items().front().representations.contains(uniformtype::html); }

    FakePasteboard board;
    bool wantsPlainText = false;
    QSet<QString> goneFiles;
    PasteStack stack{board, [this] { return wantsPlainText; },
                     [this](std::vector<PasteboardItem> items,
                            const std::vector<FileRef>& files) -> std::optional<std::vector<PasteboardItem>> {
                         return goneFiles.contains(files.front().path) ? std::nullopt : std::optional(items);
                     }};
    int finishCount = 0;
    bool wasActiveAtFinish = false;
    std::vector<QUuid> skipped;
    int changes = 0;
};

} // namespace

TEST(PasteStack, IsIdleAtFirstAndTakesNothing) {
    StackWorld world;
    world.stack.enqueue(textItem("a"));
    EXPECT_FALSE(world.stack.isActive());
    EXPECT_EQ(world.stack.count(), 0);
    EXPECT_FALSE(world.stack.isReversed());
    EXPECT_FALSE(world.stack.pasteNext());
    EXPECT_TRUE(world.board.writes.empty());
}

TEST(PasteStack, PastesTheOldestFirst) {
    StackWorld world;
    world.stack.start({textItem("a"), textItem("b")});
    world.stack.enqueue(textItem("c"));
    EXPECT_TRUE(world.stack.pasteNext());
    EXPECT_EQ(world.onBoard(), QStringLiteral("a"));
    EXPECT_TRUE(world.stack.pasteNext());
    EXPECT_EQ(world.onBoard(), QStringLiteral("b"));
    EXPECT_EQ(world.stack.pastedCount(), 2);
    EXPECT_TRUE(world.stack.isActive());
    EXPECT_EQ(world.finishCount, 0);
}

TEST(PasteStack, EndsOnThePressThatTakesItsLastItem) {
    StackWorld world;
    world.stack.start({textItem("a")});
    EXPECT_TRUE(world.stack.pasteNext());
    EXPECT_EQ(world.onBoard(), QStringLiteral("a"));
    EXPECT_FALSE(world.stack.isActive());
    EXPECT_EQ(world.finishCount, 1);
    EXPECT_FALSE(world.wasActiveAtFinish);
    EXPECT_EQ(world.stack.pastedCount(), 1);
    EXPECT_FALSE(world.stack.pasteNext());
    EXPECT_EQ(world.finishCount, 1);
    EXPECT_EQ(world.onBoard(), QStringLiteral("a"));
}

TEST(PasteStack, AnEmptyOneLeavesThePasteboardAloneAndRunsOn) {
    StackWorld world;
    world.board.copyText(QStringLiteral("mine"));
    world.stack.start({});
    EXPECT_FALSE(world.stack.pasteNext());
    EXPECT_EQ(world.onBoard(), QStringLiteral("mine"));
    EXPECT_TRUE(world.stack.isActive());
    EXPECT_EQ(world.finishCount, 0);
}

TEST(PasteStack, TurningItRoundTakesTheNewestNext) {
    StackWorld world;
    world.stack.start({textItem("a"), textItem("b"), textItem("c")});
    EXPECT_TRUE(world.stack.pasteNext());
    world.stack.setReversed(true);
    EXPECT_EQ(world.stack.nextItem()->id, world.stack.items().back().id);
    EXPECT_TRUE(world.stack.pasteNext());
    EXPECT_EQ(world.onBoard(), QStringLiteral("c"));
    world.stack.setReversed(false);
    EXPECT_TRUE(world.stack.pasteNext());
    EXPECT_EQ(world.onBoard(), QStringLiteral("b"));
}

TEST(PasteStack, PassesOverADeletedFileWithinTheSamePress) {
    StackWorld world;
    world.goneFiles = {QStringLiteral("/u/gone"), QStringLiteral("/u/too")};
    world.stack.start({fileItem("/u/gone"), fileItem("/u/too"), textItem("b"), textItem("c")});
    const std::vector<QUuid> gone{world.stack.items()[0].id, world.stack.items()[1].id};
    EXPECT_TRUE(world.stack.pasteNext());
    EXPECT_EQ(world.onBoard(), QStringLiteral("b"));
    EXPECT_EQ(world.skipped, gone);
    EXPECT_EQ(world.stack.pastedCount(), 1);
}

TEST(PasteStack, OnlyDeletedFilesLeftEndIfSomethingWasPasted) {
    StackWorld world;
    world.goneFiles = {QStringLiteral("/u/gone")};
    world.stack.start({textItem("a"), fileItem("/u/gone"), fileItem("/u/gone")});
    EXPECT_TRUE(world.stack.pasteNext());
    EXPECT_FALSE(world.stack.pasteNext());
    EXPECT_EQ(world.skipped.size(), 2u);
    EXPECT_FALSE(world.stack.isActive());
    EXPECT_EQ(world.finishCount, 1);
    EXPECT_EQ(world.onBoard(), QStringLiteral("a"));
}

TEST(PasteStack, OnlyDeletedFilesFromTheStartKeepItWaiting) {
    StackWorld world;
    world.goneFiles = {QStringLiteral("/u/gone")};
    world.stack.start({fileItem("/u/gone")});
    EXPECT_FALSE(world.stack.pasteNext());
    EXPECT_EQ(world.skipped.size(), 1u);
    EXPECT_TRUE(world.stack.isActive());
    EXPECT_EQ(world.finishCount, 0);
}

TEST(PasteStack, ARefusedWriteIsPassedOverLikeADeletedFile) {
    StackWorld world;
    world.board.refusesWrites = true;
    world.stack.start({textItem("a"), textItem("b")});
    EXPECT_FALSE(world.stack.pasteNext());
    EXPECT_EQ(world.skipped.size(), 2u);
    EXPECT_TRUE(world.stack.isActive());
}

TEST(PasteStack, AFileGoesOutAsAFileAlsoForThoseWhoWantPlainText) {
    StackWorld world;
    world.wantsPlainText = true;
    world.stack.start({fileItem("/u/one")});
    EXPECT_TRUE(world.stack.pasteNext());
    EXPECT_TRUE(world.board.items().front().representations.contains(uniformtype::fileUrl));
}

TEST(PasteStack, PlainTextConcernsTextRichTextAndLinksOnly) {
    for (const auto kind : {ClipKind::text, ClipKind::richText, ClipKind::link}) {
        StackWorld world;
        world.stack.start({styledItem(kind), styledItem(kind)});
        EXPECT_TRUE(world.stack.pasteNext());
        EXPECT_TRUE(world.hasHtml());
        world.wantsPlainText = true; // asked anew for each item
        EXPECT_TRUE(world.stack.pasteNext());
        EXPECT_FALSE(world.hasHtml());
        EXPECT_EQ(world.onBoard(), QStringLiteral("words"));
    }
    for (const auto kind : {ClipKind::image, ClipKind::color}) {
        StackWorld world;
        world.wantsPlainText = true;
        world.stack.start({styledItem(kind)});
        EXPECT_TRUE(world.stack.pasteNext());
        EXPECT_TRUE(world.hasHtml());
    }
}

TEST(PasteStack, WritesCarryTheProgramsMarker) {
    StackWorld world;
    world.stack.start({textItem("a")});
    EXPECT_TRUE(world.stack.pasteNext());
    EXPECT_TRUE(world.board.items().front().representations.contains(uniformtype::ownMarker));
}

TEST(PasteStack, StoppedByHandItForgetsAllAndTheWrittenItemStays) {
    StackWorld world;
    world.stack.start({textItem("a"), textItem("b")});
    EXPECT_TRUE(world.stack.pasteNext());
    world.stack.stop();
    EXPECT_FALSE(world.stack.isActive());
    EXPECT_EQ(world.stack.count(), 0);
    EXPECT_EQ(world.stack.pastedCount(), 0);
    EXPECT_EQ(world.finishCount, 0);
    EXPECT_EQ(world.onBoard(), QStringLiteral("a"));
}

TEST(PasteStack, StartingAnewBeginsFromNothing) {
    StackWorld world;
    world.stack.start({textItem("a"), textItem("b")});
    EXPECT_TRUE(world.stack.pasteNext());
    world.stack.start({textItem("c")});
    EXPECT_EQ(world.stack.pastedCount(), 0);
    EXPECT_EQ(world.stack.count(), 1);
    EXPECT_TRUE(world.stack.pasteNext());
    EXPECT_EQ(world.onBoard(), QStringLiteral("c"));
    EXPECT_EQ(world.finishCount, 1);
}

TEST(PasteStack, StoppingItFromTheNoticeOfAPassedOverItemIsTheEnd) {
    StackWorld world;
    world.goneFiles = {QStringLiteral("/u/gone")};
    world.stack.onSkip = [&](const PasteStack::Item&) { world.stack.stop(); };
    world.stack.start({fileItem("/u/gone"), textItem("b")});
    EXPECT_FALSE(world.stack.pasteNext());
    EXPECT_FALSE(world.stack.isActive());
    EXPECT_EQ(world.finishCount, 0);
    EXPECT_TRUE(world.board.writes.empty());
}

TEST(PasteStack, TellsOfEachChange) {
    StackWorld world;
    world.stack.start({textItem("a"), textItem("b")});
    world.stack.enqueue(textItem("c"));
    world.stack.setReversed(true);
    world.stack.setReversed(true); // no change
    EXPECT_EQ(world.changes, 3);
    EXPECT_TRUE(world.stack.pasteNext());
    EXPECT_EQ(world.changes, 4);
    world.stack.stop();
    EXPECT_EQ(world.changes, 5);
}

TEST(PasteStack, EachItemHasAnIdentityOfItsOwn) {
    EXPECT_NE(textItem("a").id, textItem("a").id);
}

} // namespace vellumry
