// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/ClipMerger.h"

#include "foundation/FileUrl.h"
#include "foundation/Text.h"
#include "foundation/UniformType.h"

#include <gtest/gtest.h>
#include <utility>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;
using ClipMerger::Failure;

ClipPayload::Item textItem(const QString& text) {
    ClipPayload::Item item;
    item.representations[uniformtype::utf8PlainText] = text.toUtf8();
    return item;
}

ClipPayload::Item fileItem(const QString& path) {
    ClipPayload::Item item;
    item.representations[uniformtype::fileUrl] = fileurl::urlOf(path);
    return item;
}

/// Clips as they were copied, one second after the other, with the payloads that were loaded for them.
class Selection {
public:
    Clip& add(ClipKind kind, std::optional<std::vector<ClipPayload::Item>> items) {
        auto clip = std::make_shared<Clip>();
        clip->id = QUuid::createUuid();
        clip->kind = kind;
        clip->createdAt = clip->lastUsedAt = static_cast<Date>(1000 + m_clips.size());
        if (items)
            m_payloads[clip->id] = ClipPayload{*std::move(items)};
        m_clips.push_back(clip);
        return *clip;
    }
    Clip& addText(const QString& text) { return add(ClipKind::text, {{textItem(text)}}); }
    void reverse() { std::reverse(m_clips.begin(), m_clips.end()); }

    [[nodiscard]] std::variant<ClipDraft, Failure> merge() const {
        return ClipMerger::merge({m_clips.begin(), m_clips.end()}, m_payloads);
    }
    [[nodiscard]] ClipDraft draft() const {
        const auto result = merge();
        EXPECT_TRUE(std::holds_alternative<ClipDraft>(result));
        return std::holds_alternative<ClipDraft>(result) ? std::get<ClipDraft>(result) : ClipDraft();
    }
    [[nodiscard]] std::optional<Failure> failure() const {
        const auto result = merge();
        return std::holds_alternative<Failure>(result) ? std::optional(std::get<Failure>(result)) : std::nullopt;
    }

private:
    std::vector<std::shared_ptr<Clip>> m_clips;
    ClipMerger::Payloads m_payloads;
};

QByteArray bytesOf(const ClipDraft& draft) {
    return draft.payload.items.at(0).representations.at(uniformtype::utf8PlainText);
}

QStringList pathsOf(const ClipDraft& draft) {
    QStringList paths;
    for (const FileRef& file : draft.files)
        paths << file.path;
    return paths;
}

TEST(ClipMerger, OneClipIsNotEnough) {
    Selection selection;
    EXPECT_EQ(selection.failure(), Failure::notEnoughClips);
    selection.addText(u"one"_s);
    EXPECT_EQ(selection.failure(), Failure::notEnoughClips);
}

TEST(ClipMerger, ImagesAreRefusedHoweverManyClipsThereAre) {
    Selection selection;
    selection.addText(u"one"_s);
    selection.add(ClipKind::image, std::nullopt);
    EXPECT_EQ(selection.failure(), Failure::containsImages);
    selection.addText(u"two"_s);
    EXPECT_EQ(selection.failure(), Failure::containsImages);
}

TEST(ClipMerger, AloneAnImageIsNotEnoughBeforeItIsAnImage) {
    Selection selection;
    selection.add(ClipKind::image, std::nullopt);
    EXPECT_EQ(selection.failure(), Failure::notEnoughClips);
}

TEST(ClipMerger, AnImageFileIsAFile) {
    Selection selection;
    selection.add(ClipKind::file, {{fileItem(u"/a/photo.png"_s)}});
    selection.add(ClipKind::file, {{fileItem(u"/a/list.txt"_s)}});
    EXPECT_EQ(selection.draft().kind, ClipKind::file);
}

TEST(ClipMerger, TextsStandInTheOrderOfCopyingNotOfSelection) {
    Selection selection;
    selection.addText(u"first"_s);
    selection.addText(u"second"_s);
    selection.reverse();
    EXPECT_EQ(bytesOf(selection.draft()), "first\nsecond");
}

TEST(ClipMerger, EqualTimesOfCopyingAreOrderedByLastUse) {
    Selection selection;
    Clip& later = selection.addText(u"used later"_s);
    Clip& earlier = selection.addText(u"used earlier"_s);
    later.createdAt = earlier.createdAt = 5;
    later.lastUsedAt = 20;
    earlier.lastUsedAt = 10;
    EXPECT_EQ(bytesOf(selection.draft()), "used earlier\nused later");
}

TEST(ClipMerger, AMergedTextIsAPlainTextOfOurOwn) {
    Selection selection;
    selection.addText(u"  \n\t first line \nrest"_s);
    selection.add(ClipKind::richText, {{textItem(u"styled"_s)}});
    const ClipDraft draft = selection.draft();
    EXPECT_EQ(draft.kind, ClipKind::text);
    EXPECT_EQ(draft.title, u"first line"_s);
    EXPECT_EQ(draft.searchText, u"  \n\t first line \nrest\nstyled"_s);
    EXPECT_EQ(draft.sourceBundleID, u"com.vellumry.Vellumry"_s);
    EXPECT_EQ(draft.sourceAppName, u"Merged"_s);
    EXPECT_TRUE(draft.files.empty());
    EXPECT_FALSE(draft.thumbnail);
    EXPECT_FALSE(draft.isScreenshot);
    EXPECT_FALSE(draft.isSensitive);
    ASSERT_EQ(draft.payload.items.size(), 1U);
    EXPECT_EQ(draft.payload.items[0].representations.size(), 1U);
    EXPECT_EQ(draft.payload.items[0].order, QStringList{uniformtype::utf8PlainText});
}

TEST(ClipMerger, ATextWithoutPayloadMergesFromItsSearchText) {
    Selection selection;
    selection.add(ClipKind::text, std::nullopt).searchText = u"remembered"_s;
    selection.addText(u"loaded"_s);
    EXPECT_EQ(bytesOf(selection.draft()), "remembered\nloaded");
}

TEST(ClipMerger, APayloadWithoutTextGivesWayToTheSearchText) {
    Selection selection;
    ClipPayload::Item strange;
    strange.representations[u"com.example.other"_s] = "bytes";
    selection.add(ClipKind::text, {{strange}}).searchText = u"remembered"_s;
    selection.addText(u"loaded"_s);
    EXPECT_EQ(bytesOf(selection.draft()), "remembered\nloaded");
}

TEST(ClipMerger, ExactlyOneLineBreakStandsBetweenTwoTexts) {
    Selection selection;
    selection.addText(u"\none\n\n"_s);
    selection.addText(u"\r\n two\n\nthree "_s);
    EXPECT_EQ(bytesOf(selection.draft()), "one\n two\n\nthree ");
}

TEST(ClipMerger, TextsOfBlanksMergeWithoutTitle) {
    Selection selection;
    selection.addText(u"\n"_s);
    selection.addText(u" \t"_s);
    EXPECT_EQ(selection.draft().title, QString());
    EXPECT_EQ(bytesOf(selection.draft()), "\n \t");
}

TEST(ClipMerger, TitleAndSearchTextAreCutButThePayloadIsNot) {
    Selection selection;
    const QString emoji = u"👩🏽‍🚀"_s;
    selection.addText(emoji.repeated(301));
    selection.addText(QString(200'000, u'x'));
    const ClipDraft draft = selection.draft();
    EXPECT_EQ(draft.title, emoji.repeated(300));
    EXPECT_EQ(text::characterCount(draft.searchText), 200'000);
    EXPECT_EQ(bytesOf(draft), (emoji.repeated(301) + u'\n' + QString(200'000, u'x')).toUtf8());
}

TEST(ClipMerger, MergingDoesNotLaunderASensitiveClip) {
    Selection texts;
    texts.addText(u"secret"_s).expiresAt = 5000;
    texts.addText(u"plain"_s);
    EXPECT_TRUE(texts.draft().isSensitive);

    Selection files;
    files.add(ClipKind::file, {{fileItem(u"/a"_s)}});
    files.add(ClipKind::file, {{fileItem(u"/b"_s)}}).expiresAt = 5000;
    EXPECT_TRUE(files.draft().isSensitive);
}

TEST(ClipMerger, AMixedSelectionMergesAsText) {
    Selection selection;
    selection.addText(u"see"_s);
    selection.add(ClipKind::file, {{fileItem(u"/home/me/report.pdf"_s)}});
    const ClipDraft draft = selection.draft();
    EXPECT_EQ(draft.kind, ClipKind::text);
    EXPECT_EQ(bytesOf(draft), "see\nreport.pdf");
}

TEST(ClipMerger, FilesKeepTheirItemsAndWhatIsKnownOfThem) {
    Selection selection;
    ClipPayload::Item withMore = fileItem(u"/a/known.txt"_s);
    withMore.representations[u"com.example.extra"_s] = "extra";
    withMore.order = QStringList{u"com.example.extra"_s};
    selection.add(ClipKind::file, {{withMore}}).files = {{u"/a/known.txt"_s, u"Known"_s, QByteArray("mark")}};
    selection.add(ClipKind::file, {{textItem(u"no file"_s), fileItem(u"/b/unknown.txt"_s)}});
    const ClipDraft draft = selection.draft();
    EXPECT_EQ(draft.kind, ClipKind::file);
    EXPECT_EQ(draft.files, (std::vector<FileRef>{{u"/a/known.txt"_s, u"Known"_s, QByteArray("mark")},
                                                 {u"/b/unknown.txt"_s, u"unknown.txt"_s, std::nullopt}}));
    EXPECT_EQ(draft.payload.items, (std::vector{withMore, fileItem(u"/b/unknown.txt"_s)}));
    EXPECT_EQ(draft.title, u"Known and 1 more"_s);
    EXPECT_EQ(draft.searchText, u"Known /a/known.txt\nunknown.txt /b/unknown.txt"_s);
    EXPECT_EQ(draft.sourceBundleID, u"com.vellumry.Vellumry"_s);
    EXPECT_EQ(draft.sourceAppName, u"Merged"_s);
    EXPECT_FALSE(draft.thumbnail);
}

TEST(ClipMerger, EachPathCountsOnceAndItsFirstOccurrenceWins) {
    Selection selection;
    selection.add(ClipKind::file, {{fileItem(u"/a/x"_s), fileItem(u"/a/y"_s), fileItem(u"/a/x"_s)}});
    selection.add(ClipKind::file, {{fileItem(u"/a/./y"_s), fileItem(u"/a/z"_s)}});
    const ClipDraft draft = selection.draft();
    EXPECT_EQ(pathsOf(draft), (QStringList{u"/a/x"_s, u"/a/y"_s, u"/a/z"_s}));
    EXPECT_EQ(draft.title, u"x and 2 more"_s);
}

TEST(ClipMerger, FilesWhoseNamesAreNotUtf8AreNotTakenForOne) {
    const auto named = [](const QByteArray& url) {
        ClipPayload::Item item;
        item.representations[uniformtype::fileUrl] = url;
        return item;
    };
    Selection selection;
    selection.add(ClipKind::file, {{named("file:///a/%FE"), named("file:///a/%FF")}});
    selection.add(ClipKind::file, {{named("file:///a/%FE")}});
    EXPECT_EQ(selection.draft().payload.items, (std::vector{named("file:///a/%FE"), named("file:///a/%FF")}));
}

TEST(ClipMerger, TwoClipsOfTheSameFileGiveAClipOfOneFile) {
    Selection selection;
    selection.add(ClipKind::file, {{fileItem(u"/a/x"_s)}});
    selection.add(ClipKind::file, {{fileItem(u"/a/x"_s)}});
    EXPECT_EQ(pathsOf(selection.draft()), QStringList{u"/a/x"_s});
    EXPECT_EQ(selection.draft().title, u"x"_s);
}

TEST(ClipMerger, AFileClipWithoutPayloadGivesTheFilesItRemembers) {
    Selection selection;
    selection.add(ClipKind::file, std::nullopt).files = {{u"/a/ä b"_s, u"Shown"_s, QByteArray("mark")},
                                                         {u"/a/c"_s, u"c"_s, std::nullopt}};
    selection.add(ClipKind::file, {{fileItem(u"/a/c"_s)}});
    const ClipDraft draft = selection.draft();
    EXPECT_EQ(draft.files,
              (std::vector<FileRef>{{u"/a/ä b"_s, u"Shown"_s, QByteArray("mark")}, {u"/a/c"_s, u"c"_s, std::nullopt}}));
    EXPECT_EQ(draft.payload.items.at(0), fileItem(u"/a/ä b"_s));
    EXPECT_FALSE(draft.payload.items.at(0).order);
}

TEST(ClipMerger, AnEmptyPayloadSkipsItsFileClip) {
    Selection selection;
    selection.add(ClipKind::file, std::vector<ClipPayload::Item>()).files = {{u"/a/gone"_s, u"gone"_s, std::nullopt}};
    selection.add(ClipKind::file, {{fileItem(u"/a/there"_s)}});
    EXPECT_EQ(pathsOf(selection.draft()), QStringList{u"/a/there"_s});
}

TEST(ClipMerger, FilesWithoutAnyPathAreNotEnough) {
    Selection selection;
    selection.add(ClipKind::file, std::vector<ClipPayload::Item>());
    selection.add(ClipKind::file, {{textItem(u"no file"_s)}});
    EXPECT_EQ(selection.failure(), Failure::notEnoughClips);
}

TEST(ClipMerger, APercentSignInAFileNameStaysWhatItIs) {
    Selection selection;
    selection.add(ClipKind::file, {{fileItem(u"/a/100 %2.txt"_s)}});
    selection.add(ClipKind::file, {{fileItem(u"/a/b"_s)}});
    EXPECT_EQ(selection.draft().title, u"100 %2.txt and 1 more"_s);
}

} // namespace
} // namespace vellumry
