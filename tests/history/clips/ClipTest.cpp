// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/Clip.h"

#include "foundation/UniformType.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

PasteboardItem item(std::map<QString, QByteArray> representations, std::optional<QStringList> order = std::nullopt) {
    return {std::move(representations), std::move(order)};
}

Clip fileClip(const QStringList& paths) {
    Clip clip;
    clip.kind = ClipKind::file;
    for (const QString& path : paths)
        clip.files.push_back({path, path.section(u'/', -1), std::nullopt});
    return clip;
}

TEST(ClipPayload, CountsTheBytesOfAllRepresentationsAndNothingElse) {
    const ClipPayload payload{
        {item({{u"a"_s, "12"}, {u"b"_s, "345"}}, QStringList{u"a"_s}), item({{u"c"_s, "6"}}), item({})}};
    EXPECT_EQ(payload.byteCount(), 6);
    EXPECT_EQ(ClipPayload().byteCount(), 0);
}

TEST(ClipPayload, CanonicalDataListsKeyLengthAndValueByKey) {
    const ClipPayload payload{{item({{u"b"_s, "xy"}, {u"a"_s, ""}})}};
    const QByteArray expected =
        QByteArray("a\0\0\0\0\0\0\0\0\0", 10) + QByteArray("b\0\0\0\0\0\0\0\0\2xy", 12) + '\xff';
    EXPECT_EQ(payload.canonicalData(), expected);
}

TEST(ClipPayload, CanonicalDataOfNothingIsEmptyAndOfAnEmptyItemOneByte) {
    EXPECT_EQ(ClipPayload().canonicalData(), QByteArray());
    EXPECT_EQ((ClipPayload{{item({})}}).canonicalData(), QByteArray("\xff"));
}

TEST(ClipPayload, CanonicalDataSortsKeysByCodePoint) {
    // In UTF-16 the surrogate pair of the emoji would come before the private-use character.
    const ClipPayload payload{{item({{u"\U0001F600"_s, "1"}, {u"\uE000"_s, "2"}})}};
    EXPECT_TRUE(payload.canonicalData().startsWith(u"\uE000"_s.toUtf8()));
}

TEST(ClipPayload, CanonicalDataIgnoresTheOrderOfTypesButNotOfItems) {
    const auto first = item({{u"a"_s, "1"}, {u"b"_s, "2"}}, QStringList{u"a"_s, u"b"_s});
    const auto reordered = item({{u"a"_s, "1"}, {u"b"_s, "2"}}, QStringList{u"b"_s, u"a"_s});
    const auto other = item({{u"c"_s, "3"}});
    EXPECT_EQ((ClipPayload{{first, other}}).canonicalData(), (ClipPayload{{reordered, other}}).canonicalData());
    EXPECT_NE((ClipPayload{{first, other}}).canonicalData(), (ClipPayload{{other, first}}).canonicalData());
}

TEST(PlainText, OfFilesIsTheirNamesInOrder) {
    EXPECT_EQ(plainText({item({{uniformtype::fileUrl, "file:///tmp/b%20b.txt"}, {uniformtype::utf8PlainText, "x"}}),
                         item({{uniformtype::utf8PlainText, "skipped"}}), item({{uniformtype::fileUrl, "http://a/b"}}),
                         item({{uniformtype::fileUrl, "file:///tmp/a"}})}),
              u"b b.txt\na"_s);
}

TEST(PlainText, OfSeveralItemsIsTheFirstItems) {
    EXPECT_EQ(plainText({item({{uniformtype::utf8PlainText, "one"}}), item({{uniformtype::utf8PlainText, "two"}})}),
              u"one"_s);
    EXPECT_EQ(plainText({item({{uniformtype::png, "p"}}), item({{uniformtype::utf8PlainText, "two"}})}), std::nullopt);
    EXPECT_EQ(plainText(std::vector<PasteboardItem>()), std::nullopt);
}

struct ItemTextCase {
    const char* name;
    std::map<QString, QByteArray> representations;
    std::optional<QString> text;
};
class PlainTextOfItem : public testing::TestWithParam<ItemTextCase> {};

TEST_P(PlainTextOfItem, IsWhatTheFirstReadableFormSays) {
    EXPECT_EQ(plainText(item(GetParam().representations)), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Forms, PlainTextOfItem,
    testing::Values(
        ItemTextCase{"StringFirst", {{uniformtype::utf8PlainText, "s"}, {uniformtype::rtf, "{\\rtf1 r}"}}, u"s"_s},
        ItemTextCase{"EmptyStringIsText", {{uniformtype::utf8PlainText, ""}, {uniformtype::url, "x"}}, u""_s},
        ItemTextCase{
            "RtfWhenStringIsNotUtf8", {{uniformtype::utf8PlainText, "\xff"}, {uniformtype::rtf, "{\\rtf1 r}"}}, u"r"_s},
        ItemTextCase{"EmptyRtfIsText", {{uniformtype::rtf, "{\\rtf1}"}, {uniformtype::url, "x"}}, u""_s},
        ItemTextCase{
            "UrlWhenRtfDoesNotOpen", {{uniformtype::rtf, "no"}, {uniformtype::url, "http://x"}}, u"http://x"_s},
        ItemTextCase{"NothingElseCounts",
                     {{uniformtype::html, "<b>h</b>"}, {uniformtype::urlName, "n"}, {uniformtype::utf16PlainText, "a"}},
                     std::nullopt}),
    [](const auto& row) { return row.param.name; });

TEST(OrderedTypes, SourceOrderFirstThenTheRestByRank) {
    const auto sample = item({{uniformtype::utf8PlainText, "s"},
                              {uniformtype::html, "h"},
                              {uniformtype::rtf, "r"},
                              {u"org.example.z"_s, "z"},
                              {u"org.example.a"_s, "a"},
                              {uniformtype::fileUrl, "f"},
                              {uniformtype::url, "u"}},
                             QStringList{uniformtype::html, u"org.example.gone"_s});
    const QStringList expected{uniformtype::html, uniformtype::fileUrl, u"org.example.a"_s,        u"org.example.z"_s,
                               uniformtype::rtf,  uniformtype::url,     uniformtype::utf8PlainText};
    EXPECT_EQ(orderedTypes(sample), expected);
}

TEST(OrderedTypes, StandardFormatsGoFromRichToPlain) {
    const QStringList ranked{uniformtype::fileUrl,
                             u"unknown"_s,
                             uniformtype::rtfd,
                             uniformtype::rtf,
                             uniformtype::html,
                             uniformtype::pdf,
                             uniformtype::png,
                             uniformtype::tiff,
                             uniformtype::jpeg,
                             uniformtype::heic,
                             uniformtype::icns,
                             uniformtype::url,
                             uniformtype::urlName,
                             uniformtype::utf8PlainText,
                             uniformtype::utf16PlainText,
                             uniformtype::color};
    PasteboardItem everything;
    for (const QString& type : ranked)
        everything.representations.emplace(type, "x");
    EXPECT_EQ(orderedTypes(everything), ranked);
}

TEST(Clip, IsSensitiveExactlyWithAnExpiry) {
    Clip clip;
    EXPECT_FALSE(clip.isSensitive());
    EXPECT_TRUE(clip.canBeTransformed());
    clip.expiresAt = 5;
    EXPECT_TRUE(clip.isSensitive());
    EXPECT_FALSE(clip.canBeTransformed());
}

TEST(Clip, OnlyTextCanBeTransformed) {
    for (const auto kind :
         {ClipKind::text, ClipKind::richText, ClipKind::link, ClipKind::image, ClipKind::file, ClipKind::color}) {
        Clip clip;
        clip.kind = kind;
        EXPECT_EQ(clip.canBeTransformed(), kind == ClipKind::text || kind == ClipKind::richText);
    }
}

TEST(Clip, IsAnImageFileWhenEveryFileIsOne) {
    EXPECT_TRUE(fileClip({u"/a/b.PNG"_s, u"/a/c.jpeg"_s}).isImageFile());
    EXPECT_FALSE(fileClip({u"/a/b.png"_s, u"/a/c"_s}).isImageFile());
    EXPECT_FALSE(fileClip({u"/a/b.png"_s, u"/a/c.txt"_s}).isImageFile());
    EXPECT_FALSE(fileClip({}).isImageFile());
    Clip image = fileClip({u"/a/b.png"_s});
    image.kind = ClipKind::image;
    EXPECT_FALSE(image.isImageFile());
}

} // namespace
} // namespace vellumry
