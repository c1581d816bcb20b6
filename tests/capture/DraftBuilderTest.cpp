// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/DraftBuilder.h"

#include "capture/DraftTitles.h"
#include "foundation/UniformType.h"
#include "support/Awaited.h"
#include "support/FakeFileBookmarks.h"
#include "support/FakeImageCodec.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

constexpr Date now = 1773065130.0;
const SourceApp editor{QStringLiteral("org.example.Editor"), QStringLiteral("Editor")};

class DraftBuilderTest : public ::testing::Test {
protected:
    std::optional<ClipDraft> build(std::vector<PasteboardItem> items, SourceApp source = editor) {
        return awaited(builder.build({std::move(items)}, std::move(source), now));
    }
    static PasteboardItem file(const char* url) { return {{{uniformtype::fileUrl, url}}, {}}; }

    FakeFileBookmarks bookmarks;
    FakeImageCodec images;
    DraftBuilder builder{bookmarks, images};
};

TEST_F(DraftBuilderTest, TextIsBuiltAtOnceWithItsSource) {
    ClipPayload payload{{{{{uniformtype::utf8PlainText, "hello"}}, {}}}};
    const auto result = atOnce(builder.build(payload, editor, now));
    ASSERT_TRUE(result && *result);
    const ClipDraft& draft = **result;
    EXPECT_EQ(draft.kind, ClipKind::text);
    EXPECT_EQ(draft.sourceBundleID, editor.bundleID);
    EXPECT_EQ(draft.sourceAppName, editor.name);
    EXPECT_EQ(draft.payload, payload);
    EXPECT_TRUE(images.requests.empty());
}

TEST_F(DraftBuilderTest, ALongTextIsLookedAtElsewhereWithTheSameResult) {
    const QByteArray line = "a first line\n";
    const ClipPayload payload{{{{{uniformtype::utf8PlainText, line.repeated(100'000)}}, {}}}};
    auto building = builder.build(payload, editor, now);
    EXPECT_FALSE(building.isReady());
    const auto draft = awaited(std::move(building));
    ASSERT_TRUE(draft);
    EXPECT_EQ(draft->kind, ClipKind::text);
    EXPECT_EQ(draft->title, QStringLiteral("a first line"));
    EXPECT_EQ(draft->searchText.size(), 200'000);
    EXPECT_EQ(draft->payload, payload);
    const ClipPayload blank{{{{{uniformtype::utf8PlainText, QByteArray(1'000'000, ' ')}}, {}}}};
    EXPECT_FALSE(awaited(builder.build(blank, editor, now)));
}

TEST_F(DraftBuilderTest, NothingComesOfAnEmptyPayload) {
    EXPECT_FALSE(build({}));
}

TEST_F(DraftBuilderTest, FilesAreNamedAndRemembered) {
    const auto draft =
        build({file("file:///tmp/a%20b.txt"), file("file:///tmp/x/../c.txt"), file("file:///tmp/d.txt")});
    ASSERT_TRUE(draft);
    EXPECT_EQ(draft->kind, ClipKind::file);
    EXPECT_EQ(draft->title, QStringLiteral("a b.txt and 2 more"));
    EXPECT_EQ(draft->searchText, QStringLiteral("a b.txt /tmp/a b.txt\nc.txt /tmp/c.txt\nd.txt /tmp/d.txt"));
    ASSERT_EQ(draft->files.size(), 3u);
    EXPECT_EQ(draft->files[1], (FileRef{QStringLiteral("/tmp/c.txt"), QStringLiteral("c.txt"),
                                        FakeFileBookmarks::bookmarkOf(QStringLiteral("/tmp/c.txt"))}));
    EXPECT_FALSE(draft->thumbnail);
}

TEST_F(DraftBuilderTest, ABookmarkThatFailsLeavesItsFileStanding) {
    bookmarks.unreadablePaths = {QStringLiteral("/tmp/a")};
    const auto draft = build({file("file:///tmp/a"), file("file:///tmp/b")});
    ASSERT_TRUE(draft);
    ASSERT_EQ(draft->files.size(), 2u);
    EXPECT_FALSE(draft->files[0].bookmark);
    EXPECT_TRUE(draft->files[1].bookmark);
}

TEST_F(DraftBuilderTest, WhatIsNoLocalFileIsPassedOver) {
    const auto draft =
        build({file("https://example.com/a"), file("file:///tmp/a"), file("file://elsewhere.invalid/b")});
    ASSERT_TRUE(draft);
    EXPECT_EQ(draft->title, QStringLiteral("a"));
    EXPECT_EQ(draft->files.size(), 1u);
    EXPECT_EQ(draft->payload.items.size(), 3u);
}

TEST_F(DraftBuilderTest, FilesOutrankPicturesAndShowThem) {
    images.summary = {QSize(10, 10), QByteArray("thumb"), true};
    const auto draft = build(
        {{{{uniformtype::fileUrl, "file:///tmp/a.png"}, {uniformtype::png, "png"}, {uniformtype::icns, "icon"}}, {}}});
    ASSERT_TRUE(draft);
    EXPECT_EQ(draft->kind, ClipKind::file);
    EXPECT_EQ(draft->thumbnail, QByteArray("thumb"));
    EXPECT_FALSE(draft->isScreenshot);
    EXPECT_EQ(images.requests, (std::vector<FakeImageCodec::Request>{{"png", 160}}));
}

TEST_F(DraftBuilderTest, AFileShowsItsIconWhereThereIsNoPicture) {
    images.summary = {QSize(10, 10), QByteArray("thumb"), false};
    const auto draft = build({{{{uniformtype::fileUrl, "file:///tmp/a.bin"}, {uniformtype::icns, "icon"}}, {}}});
    ASSERT_TRUE(draft);
    EXPECT_EQ(images.requests, (std::vector<FakeImageCodec::Request>{{"icon", 160}}));
    EXPECT_EQ(draft->thumbnail, QByteArray("thumb"));
}

TEST_F(DraftBuilderTest, PicturesOutrankText) {
    images.summary = {QSize(640, 480), QByteArray("thumb"), false};
    const auto draft = build({{{{uniformtype::utf8PlainText, "text"}, {uniformtype::png, "png"}}, {}}});
    ASSERT_TRUE(draft);
    EXPECT_EQ(draft->kind, ClipKind::image);
    EXPECT_EQ(draft->title, QStringLiteral("Image 640 × 480"));
    EXPECT_EQ(draft->searchText, draft->title);
    EXPECT_EQ(draft->thumbnail, QByteArray("thumb"));
    EXPECT_EQ(draft->sourceAppName, editor.name);
    EXPECT_EQ(images.requests.size(), 1u);
}

TEST_F(DraftBuilderTest, PngIsPreferredWithinAnItemAndTheFirstItemOverall) {
    (void)build({{{{uniformtype::jpeg, "jpeg"}, {uniformtype::png, "png"}}, {}}});
    (void)build({{{{uniformtype::jpeg, "jpeg"}}, {}}, {{{uniformtype::png, "png"}}, {}}});
    EXPECT_EQ(images.requests, (std::vector<FakeImageCodec::Request>{{"png", 160}, {"jpeg", 160}}));
}

TEST_F(DraftBuilderTest, APictureThatCannotBeOpenedIsKeptWithoutItsSize) {
    const auto draft = build({{{{uniformtype::tiff, "junk"}}, {}}});
    ASSERT_TRUE(draft);
    EXPECT_EQ(draft->kind, ClipKind::image);
    EXPECT_EQ(draft->title, QStringLiteral("Image"));
    EXPECT_FALSE(draft->thumbnail);
}

TEST_F(DraftBuilderTest, APictureInAnUncommonFormatAloneIsKeptWithAPngOfIt) {
    const QString bmp = QStringLiteral("image/bmp");
    images.summary = {QSize(640, 480), QByteArray("png"), false};
    const auto draft = build({{{{uniformtype::html, "<img>"}, {bmp, "bmp"}}, QStringList{uniformtype::html, bmp}}});
    ASSERT_TRUE(draft);
    EXPECT_EQ(draft->kind, ClipKind::image);
    EXPECT_EQ(draft->title, QStringLiteral("Image 640 × 480"));
    EXPECT_EQ(draft->thumbnail, QByteArray("png"));
    EXPECT_EQ(images.requests, (std::vector<FakeImageCodec::Request>{{"bmp", 8192}, {"png", 160}}));
    const PasteboardItem& item = draft->payload.items.front();
    EXPECT_EQ(item.order, (QStringList{uniformtype::png, uniformtype::html, bmp}));
    EXPECT_EQ(item.representations.at(uniformtype::png), "png");
    EXPECT_EQ(item.representations.at(bmp), "bmp");
}

TEST_F(DraftBuilderTest, APictureInAnUncommonFormatYieldsToEverythingElse) {
    const QString webp = QStringLiteral("image/webp");
    images.summary = {QSize(640, 480), QByteArray("png"), false};
    EXPECT_EQ(build({{{{uniformtype::utf8PlainText, "text"}, {webp, "webp"}}, {}}})->kind, ClipKind::text);
    EXPECT_TRUE(images.requests.empty());
    const auto common = build({{{{uniformtype::jpeg, "jpeg"}, {webp, "webp"}}, {}}});
    EXPECT_EQ(common->kind, ClipKind::image);
    EXPECT_FALSE(common->payload.items.front().representations.contains(uniformtype::png));
}

TEST_F(DraftBuilderTest, NothingComesOfAnUncommonPictureThatCannotBeOpened) {
    EXPECT_FALSE(build({{{{QStringLiteral("image/bmp"), "junk"}}, {}}}));
}

TEST_F(DraftBuilderTest, AMarkedPictureIsAScreenshot) {
    images.summary = {QSize(2, 1), {}, true};
    const auto draft = build({{{{uniformtype::png, "png"}}, {}}});
    ASSERT_TRUE(draft);
    EXPECT_TRUE(draft->isScreenshot);
    EXPECT_EQ(draft->title, screenshotTitle(now));
    EXPECT_EQ(draft->searchText, screenshotTitle(now) + QStringLiteral("\nImage 2 × 1"));
    EXPECT_EQ(draft->sourceBundleID, editor.bundleID);
    EXPECT_EQ(draft->sourceAppName, QStringLiteral("Screenshot"));
}

TEST_F(DraftBuilderTest, APictureFromAScreenshotToolIsAScreenshot) {
    const SourceApp tool{QStringLiteral("com.apple.screencaptureui"), QStringLiteral("Tool")};
    const auto draft = build({{{{uniformtype::png, "png"}}, {}}}, tool);
    ASSERT_TRUE(draft);
    EXPECT_TRUE(draft->isScreenshot);
    EXPECT_EQ(draft->sourceBundleID, tool.bundleID);
    EXPECT_EQ(draft->sourceAppName, QStringLiteral("Screenshot"));
}

TEST_F(DraftBuilderTest, PicturesAreNeverSensitive) {
    const auto draft = build({{{{uniformtype::utf8PlainText, "4111 1111 1111 1111"}, {uniformtype::png, "png"}}, {}}});
    ASSERT_TRUE(draft);
    EXPECT_FALSE(draft->isSensitive);
}

TEST_F(DraftBuilderTest, AHundredThousandFilesAreKeptWithABoundedSearchText) {
    std::vector<PasteboardItem> items;
    for (int i = 0; i < 100'000; ++i)
        items.push_back(file(("file:///tmp/folder/file-" + std::to_string(i)).c_str()));
    const auto draft = build(std::move(items));
    ASSERT_TRUE(draft);
    EXPECT_EQ(draft->files.size(), 100'000u);
    EXPECT_EQ(draft->title, QStringLiteral("file-0 and 99999 more"));
    EXPECT_LE(draft->searchText.size(), 200'000);
    EXPECT_GT(draft->searchText.size(), 199'000);
    EXPECT_TRUE(draft->files.front().bookmark);
}

} // namespace
} // namespace vellumry
