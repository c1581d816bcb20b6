// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/SourceUrl.h"

#include "foundation/PropertyList.h"
#include "foundation/UniformType.h"
#include "support/ListBytes.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

PasteboardItem withSource(const QByteArray& bytes) {
    return {{{uniformtype::sourceUrl, bytes}}, {}};
}

QByteArray webArchive(const PropertyList& url) {
    PropertyList::Dictionary resource;
    resource.emplace(QStringLiteral("WebResourceURL"), url);
    PropertyList::Dictionary root;
    root.emplace(QStringLiteral("WebMainResource"), PropertyList(resource));
    return written(root);
}

std::string pageOf(const PasteboardItem& item) {
    const auto url = sourceURL(item);
    return url ? url->toString().toStdString() : std::string("none");
}

TEST(SourceURL, ReadsUtf8) {
    EXPECT_EQ(pageOf(withSource("https://example.com/a")), "https://example.com/a");
    EXPECT_EQ(pageOf(withSource("\n http://example.com/ \t")), "http://example.com/");
}

TEST(SourceURL, ReadsAddressesAsBrowsersWriteThem) {
    EXPECT_EQ(pageOf(withSource("https://mail.example.com/#search/a|b/{c}")),
              "https://mail.example.com/#search/a%7Cb/%7Bc%7D");
    EXPECT_NE(pageOf(withSource("https://mail.example.com/?q=100%&r=^x`")), "none");
}

TEST(SourceURL, TrimsControlCharactersAsWell) {
    EXPECT_EQ(pageOf(withSource(QByteArray("https://example.com/\0", 21))), "https://example.com/");
    EXPECT_EQ(pageOf(withSource("\xEF\xBB\xBFhttps://example.com/")), "https://example.com/");
}

TEST(SourceURL, ReadsUtf16WhereItIsNoUtf8) {
    const QString text = QStringLiteral("https://example.com/u");
    QByteArray bytes("\xFF\xFE", 2);
    for (const QChar unit : text) {
        bytes += static_cast<char>(unit.unicode() & 0xFF);
        bytes += '\0';
    }
    EXPECT_EQ(pageOf(withSource(bytes)), "https://example.com/u");
}

TEST(SourceURL, ReadsAPropertyListWithAString) {
    const QByteArray list = written(QStringLiteral("https://example.com/list"));
    EXPECT_EQ(pageOf(withSource(list)), "https://example.com/list");
}

TEST(SourceURL, RefusesWhatIsNoWebPage) {
    for (const char* text : {"", "example.com", "ftp://example.com/", "https://", "https:///path", "file:///etc/passwd",
                             "https://exa mple.com/", "\xFF"})
        EXPECT_EQ(pageOf(withSource(text)), "none") << text;
}

TEST(SourceURL, RefusesMoreThan8191Bytes) {
    const QByteArray longest = "https://example.com/" + QByteArray(8191 - 20, 'a');
    EXPECT_NE(pageOf(withSource(longest)), "none");
    EXPECT_EQ(pageOf(withSource(longest + 'a')), "none");
}

TEST(SourceURL, ReadsTheMainResourceOfAWebArchive) {
    const QByteArray archive = webArchive(QStringLiteral("https://example.com/archived"));
    const PasteboardItem item{{{uniformtype::webArchive, archive}}, {}};
    EXPECT_EQ(pageOf(item), "https://example.com/archived");
}

TEST(SourceURL, PrefersTheSourceUrlAndFallsBackToTheArchive) {
    const QByteArray archive = webArchive(QStringLiteral("https://example.com/archived"));
    PasteboardItem item{{{uniformtype::webArchive, archive}, {uniformtype::sourceUrl, "https://example.com/direct"}},
                        {}};
    EXPECT_EQ(pageOf(item), "https://example.com/direct");
    item.representations[uniformtype::sourceUrl] = "about:blank";
    EXPECT_EQ(pageOf(item), "https://example.com/archived");
}

TEST(SourceURL, SurvivesOddArchives) {
    for (const QByteArray& archive : {QByteArray("junk"), webArchive(true), written(QStringLiteral("text")),
                                      written(PropertyList::Dictionary()), QByteArray(8'000'000, '<')}) {
        const PasteboardItem item{{{uniformtype::webArchive, archive}}, {}};
        EXPECT_EQ(pageOf(item), "none");
    }
    EXPECT_EQ(pageOf(PasteboardItem()), "none");
}

} // namespace
} // namespace vellumry
