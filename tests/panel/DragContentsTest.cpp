// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/DragContents.h"

#include "capture/FileStatus.h"
#include "foundation/Localisation.h"
#include "foundation/UniformType.h"

#include <gtest/gtest.h>

using namespace vellumry;

namespace {

class DragContents : public ::testing::Test {
protected:
    ClipRef clip(ClipKind kind, const QString& title, std::map<QString, QByteArray> representations) {
        auto made = std::make_shared<Clip>();
        made->id = QUuid::createUuid();
        made->kind = kind;
        made->title = title;
        ClipPayload payload;
        payload.items.push_back({std::move(representations), std::nullopt});
        payloads.insert(made->id, payload);
        return made;
    }
    ClipRef text(const char* text) {
        return clip(ClipKind::text, QString::fromUtf8(text), {{uniformtype::utf8PlainText, text}});
    }
    [[nodiscard]] DragSource::Content contents(const std::vector<ClipRef>& clips) const {
        return dragContents(clips, payloads, statuses);
    }

    QHash<QUuid, ClipPayload> payloads;
    PanelModel::FileStatuses statuses;
};

} // namespace

TEST_F(DragContents, ATextKeepsItsFormsAndLosesTheMarkOfOurCopies) {
    const ClipRef rich = clip(ClipKind::richText, QStringLiteral("words"),
                              {{uniformtype::utf8PlainText, "words"},
                               {uniformtype::html, "<b>words</b>"},
                               {QStringLiteral("dyn.private"), "x"},
                               {uniformtype::ownMarker, ""}});
    const auto content = contents({rich});
    ASSERT_EQ(content.items.size(), 1U);
    const auto& forms = content.items[0].representations;
    EXPECT_EQ(forms.at(uniformtype::utf8PlainText), "words");
    EXPECT_EQ(forms.at(uniformtype::html), "<b>words</b>");
    EXPECT_FALSE(forms.contains(QStringLiteral("dyn.private")));
    EXPECT_TRUE(content.files.empty());
}

TEST_F(DragContents, WhatHasNoPlainTextGetsOne) {
    const ClipRef link =
        clip(ClipKind::link, QStringLiteral("example.org"), {{uniformtype::url, "https://example.org/"}});
    const auto content = contents({link});
    EXPECT_EQ(content.items.at(0).representations.at(uniformtype::utf8PlainText), "https://example.org/");
}

TEST_F(DragContents, SeveralTextsBecomeOneWithoutTheirOuterLineEnds) {
    const auto content = contents({text("\none\n\n"), text("  two "), text("three\r\n")});
    ASSERT_EQ(content.items.size(), 1U);
    EXPECT_EQ(content.items[0].representations,
              (std::map<QString, QByteArray>{{uniformtype::utf8PlainText, "one\n  two \nthree"}}));
}

TEST_F(DragContents, OnlyFilesThatExistAreCarried) {
    auto files = std::make_shared<Clip>();
    files->id = QUuid::createUuid();
    files->kind = ClipKind::file;
    statuses[files->id] = {FileStatus::available(QStringLiteral("/a/one b")), FileStatus::missing(),
                           FileStatus::available(QStringLiteral("/a/two"))};
    const auto content = contents({files});
    ASSERT_EQ(content.items.size(), 2U);
    EXPECT_EQ(content.items[0].representations.at(uniformtype::fileUrl), "file:///a/one%20b");
    EXPECT_EQ(content.items[1].representations.at(uniformtype::fileUrl), "file:///a/two");
    statuses[files->id] = {FileStatus::missing()};
    EXPECT_TRUE(contents({files}).items.empty());
}

TEST_F(DragContents, APictureIsAFileUnderItsTitleAndThePictureItself) {
    const ClipRef picture = clip(ClipKind::image, QStringLiteral("a/b:c"), {{uniformtype::png, "bytes"}});
    const auto content = contents({picture});
    ASSERT_EQ(content.files.size(), 1U);
    EXPECT_EQ(content.files[0].name, QStringLiteral("a-b-c.png"));
    EXPECT_EQ(content.files[0].bytes, "bytes");
    ASSERT_EQ(content.items.size(), 1U);
    EXPECT_EQ(content.items[0].representations.at(uniformtype::png), "bytes");
}

TEST_F(DragContents, APictureOfAnotherFormatGoesAsThatFormat) {
    const ClipRef picture = clip(ClipKind::image, QStringLiteral("one"), {{uniformtype::jpeg, "bytes"}});
    const auto content = contents({picture});
    ASSERT_EQ(content.files.size(), 1U);
    EXPECT_EQ(content.files[0].name, QStringLiteral("one.jpg"));
    ASSERT_EQ(content.items.size(), 1U);
    EXPECT_EQ(content.items[0].representations.at(uniformtype::jpeg), "bytes");
    EXPECT_EQ(content.items[0].representations.size(), 1U);
}

TEST_F(DragContents, SeveralPicturesAreFilesOnly) {
    const auto content = contents({clip(ClipKind::image, QStringLiteral("one"), {{uniformtype::png, "1"}}),
                                   clip(ClipKind::image, QStringLiteral("two"), {{uniformtype::jpeg, "2"}})});
    EXPECT_TRUE(content.items.empty());
    ASSERT_EQ(content.files.size(), 2U);
    EXPECT_EQ(content.files[1].name, QStringLiteral("two.jpg"));
}

TEST_F(DragContents, WithoutItsPayloadAPictureOrATextGivesNothing) {
    const ClipRef picture = clip(ClipKind::image, QStringLiteral("one"), {{uniformtype::png, "1"}});
    const ClipRef words = text("words");
    payloads.clear();
    const auto content = contents({picture, words});
    EXPECT_TRUE(content.items.empty());
    EXPECT_TRUE(content.files.empty());
}

TEST(PictureFileName, IsAWordWhereTheTitleIsEmptyAndShortWhereItIsLong) {
    EXPECT_EQ(pictureFileName(QStringLiteral("  ")), localised("Image") + QStringLiteral(".png"));
    EXPECT_EQ(pictureFileName(QStringLiteral("x").repeated(200)),
              QStringLiteral("x").repeated(80) + QStringLiteral(".png"));
}
