// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/TextClassification.h"

#include "foundation/UniformType.h"

#include <cstring>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

ClipDraft draftOf(std::map<QString, QByteArray> representations) {
    ClipDraft draft;
    draft.payload.items.push_back({std::move(representations), {}});
    return draft;
}

ClipDraft classified(std::map<QString, QByteArray> representations) {
    ClipDraft draft = draftOf(std::move(representations));
    EXPECT_TRUE(classifyText(draft));
    return draft;
}

ClipDraft classified(const QByteArray& text) {
    return classified({{uniformtype::utf8PlainText, text}});
}

QByteArray colorBytes(quint16 red, quint16 green, quint16 blue, quint16 alpha) {
    const quint16 channels[] = {red, green, blue, alpha};
    return QByteArray(reinterpret_cast<const char*>(channels), sizeof channels);
}

TEST(ClassifyText, PlainTextHasATitleAndItsWholeTextForSearch) {
    const ClipDraft draft = classified("\n  hello\nworld ");
    EXPECT_EQ(draft.kind, ClipKind::text);
    EXPECT_EQ(draft.title, QStringLiteral("hello"));
    EXPECT_EQ(draft.searchText, QStringLiteral("\n  hello\nworld "));
    EXPECT_FALSE(draft.isSensitive);
}

TEST(ClassifyText, ColoursAreKnownByTheirDigits) {
    EXPECT_EQ(classified(" #1a2 ").kind, ClipKind::color);
    EXPECT_EQ(classified(" #1a2 ").title, QStringLiteral("#1a2"));
    EXPECT_EQ(classified("#1a2b3").kind, ClipKind::text);
    EXPECT_EQ(classified("RGBA(1, 2, 3, 0.5)").kind, ClipKind::color);
}

TEST(ClassifyText, ColoursHaveAtMost64Characters) {
    const QByteArray blanks(64 - 10, ' ');
    EXPECT_EQ(classified("rgb(1,2," + blanks + "3)").kind, ClipKind::color);
    EXPECT_EQ(classified("rgb(1,2," + blanks + " 3)").kind, ClipKind::text);
}

TEST(ClassifyText, LinksKeepTheirTextAsTitle) {
    const ClipDraft draft = classified(" Example.COM/Path ");
    EXPECT_EQ(draft.kind, ClipKind::link);
    EXPECT_EQ(draft.title, QStringLiteral("Example.COM/Path"));
}

TEST(ClassifyText, ALineBesideAUrlIsALink) {
    const ClipDraft draft =
        classified({{uniformtype::utf8PlainText, "A fine page"}, {uniformtype::url, "https://example.com"}});
    EXPECT_EQ(draft.kind, ClipKind::link);
    EXPECT_EQ(draft.title, QStringLiteral("A fine page"));
}

TEST(ClassifyText, TwoLinesBesideAUrlAreText) {
    EXPECT_EQ(classified({{uniformtype::utf8PlainText, "two\nlines"}, {uniformtype::url, "https://example.com"}}).kind,
              ClipKind::text);
    EXPECT_EQ(classified({{uniformtype::utf8PlainText, "two\nlines"},
                          {uniformtype::url, "https://example.com"},
                          {uniformtype::html, "<b>two</b>"}})
                  .kind,
              ClipKind::richText);
}

TEST(ClassifyText, AUrlAloneIsItsOwnText) {
    const ClipDraft draft = classified({{uniformtype::url, "https://example.com/a"}});
    EXPECT_EQ(draft.kind, ClipKind::link);
    EXPECT_EQ(draft.title, QStringLiteral("https://example.com/a"));
}

TEST(ClassifyText, StyledTextIsRich) {
    EXPECT_EQ(classified({{uniformtype::utf8PlainText, "a"}, {uniformtype::rtf, "{\\rtf1 a}"}}).kind,
              ClipKind::richText);
    EXPECT_EQ(classified({{uniformtype::utf8PlainText, "a"}, {uniformtype::html, "<i>a</i>"}}).kind,
              ClipKind::richText);
    const ClipDraft rtfAlone = classified({{uniformtype::rtf, "{\\rtf1\\ansi from rtf}"}});
    EXPECT_EQ(rtfAlone.kind, ClipKind::richText);
    EXPECT_EQ(rtfAlone.title, QStringLiteral("from rtf"));
}

TEST(ClassifyText, SearchTextEndsAt200000Characters) {
    EXPECT_EQ(classified({{uniformtype::utf8PlainText, QByteArray(200'001, 'a')}}).searchText.size(), 200'000);
    EXPECT_EQ(classified({{uniformtype::utf8PlainText, QByteArray(200'000, 'a')}}).searchText.size(), 200'000);
}

TEST(ClassifyText, NothingComesOfNothing) {
    ClipDraft empty;
    EXPECT_FALSE(classifyText(empty));
    for (const auto& representations : {std::map<QString, QByteArray>{{uniformtype::utf8PlainText, " \n\t"}},
                                        std::map<QString, QByteArray>{{uniformtype::html, "<b>markup alone</b>"}},
                                        std::map<QString, QByteArray>{{uniformtype::pdf, "%PDF-1.7"}},
                                        std::map<QString, QByteArray>{{uniformtype::utf8PlainText, "\xFF\xFE"}}}) {
        ClipDraft draft = draftOf(representations);
        EXPECT_FALSE(classifyText(draft));
    }
}

TEST(ClassifyText, OnlyTheFirstItemSpeaks) {
    ClipDraft draft = draftOf({{uniformtype::pdf, "%PDF"}});
    draft.payload.items.push_back({{{uniformtype::utf8PlainText, "second"}}, {}});
    EXPECT_FALSE(classifyText(draft));
}

TEST(ClassifyText, AColourWithoutTextIsWrittenAsHexadecimal) {
    const ClipDraft draft = classified({{uniformtype::color, colorBytes(0xFFFF, 0x8080, 0x0000, 0x1234)}});
    EXPECT_EQ(draft.kind, ClipKind::color);
    EXPECT_EQ(draft.title, QStringLiteral("#FF8000"));
    EXPECT_EQ(draft.searchText, QStringLiteral("#FF8000"));
    EXPECT_EQ(classified({{uniformtype::color, colorBytes(0x00FF, 0x0100, 0x7FFF, 0)}}).title,
              QStringLiteral("#01017F"));
    EXPECT_EQ(classified({{uniformtype::color, colorBytes(1, 2, 3, 4)}, {uniformtype::utf8PlainText, " "}}).kind,
              ClipKind::color);
}

TEST(ClassifyText, AColourOfAnotherLengthIsNone) {
    ClipDraft draft = draftOf({{uniformtype::color, "1234567"}});
    EXPECT_FALSE(classifyText(draft));
}

TEST(ClassifyText, SecretsAreSensitiveAsTextAndAsRichText) {
    EXPECT_TRUE(classified("4111 1111 1111 1111").isSensitive);
    EXPECT_TRUE(classified("G-123456").isSensitive);
    EXPECT_TRUE(classified("AKIA0123456789ABCDEF").isSensitive);
    const ClipDraft rich =
        classified({{uniformtype::utf8PlainText, "AKIA0123456789ABCDEF"}, {uniformtype::html, "<b>AKIA…</b>"}});
    EXPECT_EQ(rich.kind, ClipKind::richText);
    EXPECT_TRUE(rich.isSensitive);
}

TEST(ClassifyText, LinksAndColoursAreNeverSensitive) {
    const ClipDraft link = classified("https://example.com/AKIA0123456789ABCDEF");
    EXPECT_EQ(link.kind, ClipKind::link);
    EXPECT_FALSE(link.isSensitive);
    // A secret beside a URL is a link by the rule of one line.
    const ClipDraft beside =
        classified({{uniformtype::utf8PlainText, "4111 1111 1111 1111"}, {uniformtype::url, "https://example.com"}});
    EXPECT_EQ(beside.kind, ClipKind::link);
    EXPECT_FALSE(beside.isSensitive);
    EXPECT_FALSE(classified("#123456").isSensitive);
}

TEST(ClassifyText, CodesNeedAPageOrAProgramForMessages) {
    EXPECT_FALSE(classified("123456").isSensitive);
    EXPECT_TRUE(
        classified({{uniformtype::utf8PlainText, "123456"}, {uniformtype::sourceUrl, "https://mail.google.com/"}})
            .isSensitive);
    ClipDraft fromMail = draftOf({{uniformtype::utf8PlainText, "123 456"}});
    fromMail.sourceBundleID = QStringLiteral("com.apple.mail");
    EXPECT_TRUE(classifyText(fromMail));
    EXPECT_TRUE(fromMail.isSensitive);
}

TEST(ClassifyText, ThePageIsLookedForUpTo24CharactersOnly) {
    const auto fromMailPage = [](int blanks) {
        return classified({{uniformtype::utf8PlainText, QByteArray(blanks, ' ') + "123456"},
                           {uniformtype::sourceUrl, "https://mail.google.com/"}})
            .isSensitive;
    };
    EXPECT_TRUE(fromMailPage(18));
    EXPECT_FALSE(fromMailPage(19));
}

} // namespace
} // namespace vellumry
