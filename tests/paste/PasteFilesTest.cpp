// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/PasteWorld.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

const QString one = QStringLiteral("/home/u/one.txt");
const QString two = QStringLiteral("/home/u/two.txt");
const QString three = QStringLiteral("/home/u/three.txt");

ClipRef threeFiles(PasteWorld& world) {
    return world.add(drafts::files({one, two, three}));
}

PasteOutcome paste(PasteWorld& world, const ClipRef& clip, std::optional<bool> isPlain = {},
                   std::optional<TextTransform> transform = {}) {
    return awaited(world.engine->paste(clip, isPlain, transform));
}

QStringList pastedPaths(const PasteWorld& world) {
    return PasteEngine::filePaths(world.pasteboard.items());
}

} // namespace

TEST(PasteFiles, PastesTheTwoThatAreLeftOfThree) {
    PasteWorld world;
    world.fileStatuses[two] = FileStatus::missing();
    EXPECT_EQ(paste(world, threeFiles(world)), PasteOutcome::pasted());
    EXPECT_EQ(pastedPaths(world), (QStringList{one, three}));
    EXPECT_EQ(world.accessChecks, (std::vector<QStringList>{{one, three}}));
}

TEST(PasteFiles, SaysThatTheFileIsMissingAndWritesNothing) {
    PasteWorld world;
    world.fileStatuses = {{one, FileStatus::missing()},
                          {two, FileStatus::volumeUnavailable(QStringLiteral("Stick"))},
                          {three, FileStatus::missing()}};
    const auto clip = threeFiles(world);
    world.now += 100;
    EXPECT_EQ(paste(world, clip), PasteOutcome::fileMissing());
    EXPECT_EQ(awaited(world.engine->copy(clip)), CopyOutcome::fileMissing());
    EXPECT_TRUE(world.pasteboard.writes.empty());
    EXPECT_TRUE(world.accessChecks.empty());
    EXPECT_EQ(world.store.find(clip->id)->lastUsedAt, clip->lastUsedAt);
}

TEST(PasteFiles, PastesAMovedFileFromItsNewPlaceAndATrashedOneFromTheTrash) {
    PasteWorld world;
    const auto moved = QStringLiteral("/home/u/elsewhere/ä b.txt");
    const auto trashed = QStringLiteral("/home/u/.local/share/Trash/files/two.txt");
    world.fileStatuses = {{one, FileStatus::moved(moved)}, {two, FileStatus::inTrash(trashed)}};
    EXPECT_EQ(paste(world, threeFiles(world)), PasteOutcome::pasted());
    EXPECT_EQ(pastedPaths(world), (QStringList{moved, trashed, three}));
}

TEST(PasteFiles, NamesTheFolderThatIsBlockedAndWritesNothing) {
    PasteWorld world;
    world.blockedFolder = QStringLiteral("Desktop");
    const auto clip = threeFiles(world);
    EXPECT_EQ(paste(world, clip), PasteOutcome::filesBlocked(QStringLiteral("Desktop")));
    EXPECT_EQ(awaited(world.engine->copy(clip)), CopyOutcome::filesBlocked(QStringLiteral("Desktop")));
    EXPECT_TRUE(world.pasteboard.writes.empty());
}

TEST(PasteFiles, NamesAsTextNeedNoAccess) {
    PasteWorld world;
    world.blockedFolder = QStringLiteral("Desktop");
    EXPECT_EQ(paste(world, threeFiles(world), true), PasteOutcome::pasted());
    EXPECT_EQ(world.pastedText(), QStringLiteral("one.txt\ntwo.txt\nthree.txt"));
    EXPECT_TRUE(world.accessChecks.empty());
}

TEST(PasteFiles, PlainByDefaultDoesNotTurnFilesIntoNames) {
    PasteWorld world;
    world.defaults.setObject(QStringLiteral("plainTextByDefault"), true);
    EXPECT_EQ(paste(world, threeFiles(world)), PasteOutcome::pasted());
    EXPECT_EQ(pastedPaths(world), (QStringList{one, two, three}));
}

TEST(PasteFiles, TransformedNamesNeedNoAccess) {
    PasteWorld world;
    world.blockedFolder = QStringLiteral("Desktop");
    EXPECT_EQ(paste(world, threeFiles(world), {}, TextTransform::uppercase), PasteOutcome::pasted());
    EXPECT_EQ(world.pastedText(), QStringLiteral("ONE.TXT\nTWO.TXT\nTHREE.TXT"));
}

TEST(PasteFiles, CopyAsksForAccessAlways) {
    PasteWorld world;
    EXPECT_EQ(awaited(world.engine->copy(threeFiles(world))), CopyOutcome::copied());
    EXPECT_EQ(world.accessChecks, (std::vector<QStringList>{{one, two, three}}));
}

TEST(PasteFiles, OtherKindsAreNotAskedForAccess) {
    PasteWorld world;
    world.blockedFolder = QStringLiteral("Desktop");
    EXPECT_EQ(paste(world, world.addText("words")), PasteOutcome::pasted());
}

TEST(PasteFiles, PastesWhatWasCopiedWhenTheDiskDoesNotAnswer) {
    PasteWorld world;
    world.diskHangs = true;
    EXPECT_EQ(paste(world, threeFiles(world)), PasteOutcome::pasted());
    EXPECT_EQ(pastedPaths(world), (QStringList{one, two, three}));
}

TEST(PasteFiles, KeepsItemsWithoutAFileBesideLiveFilesOnly) {
    PasteWorld world;
    const PasteboardItem words{{{uniformtype::utf8PlainText, "words"}}, std::nullopt};
    const PasteboardItem web{{{uniformtype::fileUrl, "https://example.org/x"}}, std::nullopt};
    const PasteboardItem file{{{uniformtype::fileUrl, fileurl::urlOf(one)}}, std::nullopt};
    std::vector<PasteboardItem> items{words, file, web};
    EXPECT_EQ(awaited(world.engine->resolvingFiles(items, {})), items);

    world.fileStatuses[one] = FileStatus::missing();
    EXPECT_EQ(awaited(world.engine->resolvingFiles(items, {})), std::nullopt);
    EXPECT_EQ(awaited(world.engine->resolvingFiles({words}, {})), std::nullopt);
    EXPECT_EQ(awaited(world.engine->resolvingFiles({}, {})), std::nullopt);
}

TEST(PasteFiles, AsksWithTheBookmarkThatBelongsToThePath) {
    PasteWorld world;
    std::vector<FileRef> asked;
    SystemHooks hooks;
    hooks.fileStatus = [&](const FileRef& file) {
        asked.push_back(file);
        return FileStatus::available(file.path);
    };
    hooks.runFileJob = [](SystemHooks::FileJob job) -> QCoro::Task<std::optional<std::vector<FileStatus>>> {
        co_return job();
    };
    PasteEngine engine(world.store, world.defaults, hooks);
    const FileRef known{two, QStringLiteral("two.txt"), QByteArray("bookmark")};
    std::vector<PasteboardItem> items{{{{uniformtype::fileUrl, "file:///home/u/x/../one.txt"}}, std::nullopt},
                                      {{{uniformtype::fileUrl, fileurl::urlOf(two)}}, std::nullopt}};
    (void)awaited(engine.resolvingFiles(items, {known}));
    EXPECT_EQ(asked, (std::vector<FileRef>{{one, QStringLiteral("one.txt"), std::nullopt}, known}));
}

} // namespace vellumry
