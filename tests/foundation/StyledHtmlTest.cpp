// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/RichText.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

struct HtmlRow {
    const char* name;
    QByteArray html;
    QString text;
};

class StyledHtml : public testing::TestWithParam<HtmlRow> {};

QString text(const char16_t* value) {
    return QString::fromUtf16(value);
}

/// The style of the first stretch that covers `word`; the plain one where none does.
TextStyle styleOf(const StyledText& document, const char* word) {
    const qsizetype place = document.text.indexOf(QString::fromUtf8(word));
    EXPECT_GE(place, 0) << word << " in " << qUtf8Printable(document.text);
    for (const StyledRun& run : document.runs) {
        if (run.start <= place && place < run.start + run.length)
            return run.style;
    }
    return {};
}

} // namespace

TEST_P(StyledHtml, ReadsAsAReaderSeesIt) {
    EXPECT_EQ(styledHtml(GetParam().html).text, GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Documents, StyledHtml,
    testing::Values(
        HtmlRow{"NoMarkup", "plain words", text(u"plain words")}, HtmlRow{"Empty", "", text(u"")},
        HtmlRow{"BlanksFold", "  a \n\t b  <b> c</b>", text(u"a b c")},
        HtmlRow{"ABlankBetweenElementsStays", "<b>a</b> <i>b</i>", text(u"a b")},
        HtmlRow{"Paragraphs", "<p>one</p>\n<p>two</p>", text(u"one\n\ntwo")},
        HtmlRow{"UnclosedParagraphs", "<p>one<p>two<div>three", text(u"one\n\ntwo\n\nthree")},
        HtmlRow{"Blocks", "<div>one</div><div>two</div>three", text(u"one\ntwo\nthree")},
        HtmlRow{"Breaks", "a<br>b<br/><br>c", text(u"a\nb\n\nc")},
        HtmlRow{"Headings", "<h1>Title</h1>words", text(u"Title\n\nwords")},
        HtmlRow{"Bullets", "<ul><li>one<li>two</ul>", text(u"• one\n• two")},
        HtmlRow{"Numbers", "<ol start=3><li><p>one</p></li><li>two</li></ol>", text(u"3. one\n\n4. two")},
        HtmlRow{"ListsInLists", "<ul><li>a<ol><li>b</ol><li>c</ul>",
                text(u"• a\n\n\u00A0\u00A0\u00A0\u00A01. b\n\n• c")},
        HtmlRow{"Cells", "<table><tr><td>a<td>b<tr><td>c</td><td>d</td></table>", text(u"a\tb\nc\td")},
        HtmlRow{"Preformatted", "<pre>if x:\n    y\n</pre>", text(u"if x:\n    y\n")},
        HtmlRow{"References", "&lt;a&gt; &amp; &quot;&#8364;&#x1F642;&eacute;&nbsp;&nope; &",
                text(u"<a> & \"€\U0001F642é\u00A0&nope; &")},
        HtmlRow{"ReferencesToNothing", "&#0;&#xD800;&#99999999;", text(u"\uFFFD\uFFFD\uFFFD")},
        HtmlRow{"ScriptsAndStyleSheets", "<style>p{}</style>a<script>alert('<b>x</b>')</script>b", text(u"ab")},
        HtmlRow{"AScriptWithoutEnd", "a<script>alert(1)", text(u"a")},
        HtmlRow{"TheHeadDoesNotShow", "<head><meta charset=utf-8><title>t</title></head><body>b</body>", text(u"b")},
        HtmlRow{"HiddenElements", "a<span style='display: none'>b<b>c</b></span><i hidden>d</i>e", text(u"ae")},
        HtmlRow{"Comments", "a<!-- <b>x</b> -->b<!doctype html>c<?php x ?>d<!-->e", text(u"abcde")},
        HtmlRow{"PicturesAreTheirWords", "<img src='http://example.org/p.png' alt='a cat'> sat", text(u"a cat sat")},
        HtmlRow{"BrokenMarkup", "1 < 2 <3 </> <b", text(u"1 < 2 <3 </>")},
        HtmlRow{"ATagWithoutEnd", "a<span style=\"x", text(u"a")},
        HtmlRow{"Utf16WithAMark", QByteArray("\xFF\xFE\x3C\x00\x62\x00\x3E\x00\xE9\x00", 10), text(u"é")},
        HtmlRow{"BadUtf8", "a\xFF\x62", text(u"a\uFFFDb")}),
    [](const auto& row) { return row.param.name; });

TEST(StyledHtmlStyles, ElementsSayHowTextIsWritten) {
    const StyledText document =
        styledHtml("<p>plain <b>bold <i>both</i></b> <u>under</u> <s>struck</s> <code>code</code> "
                   "<a href='http://example.org'>link</a> <a name=x>anchor</a></p><h1>Title</h1>");
    EXPECT_EQ(styleOf(document, "plain"), TextStyle());
    EXPECT_EQ(styleOf(document, "bold"), TextStyle{.isBold = true});
    EXPECT_EQ(styleOf(document, "both"), (TextStyle{.isBold = true, .isItalic = true}));
    EXPECT_EQ(styleOf(document, "under"), TextStyle{.isUnderlined = true});
    EXPECT_EQ(styleOf(document, "struck"), TextStyle{.isStruck = true});
    EXPECT_EQ(styleOf(document, "code"), TextStyle{.isFixedWidth = true});
    EXPECT_EQ(styleOf(document, "link"), TextStyle{.isLink = true});
    EXPECT_EQ(styleOf(document, "anchor"), TextStyle());
    EXPECT_EQ(styleOf(document, "Title"), (TextStyle{.isBold = true, .size = 2}));
}

TEST(StyledHtmlStyles, ABlankIsWrittenAsTheTextThatItStandsIn) {
    const StyledText document = styledHtml("see <u>the plan</u> of <u> May</u>");
    EXPECT_EQ(document.text, text(u"see the plan of May"));
    EXPECT_TRUE(styleOf(document, "the plan").isUnderlined);
    EXPECT_TRUE(styleOf(document, " plan").isUnderlined);
    EXPECT_FALSE(styleOf(document, " the plan").isUnderlined);
    EXPECT_FALSE(styleOf(document, " of").isUnderlined);
    EXPECT_FALSE(styleOf(document, " May").isUnderlined) << "the first of two blanks counts";
}

TEST(StyledHtmlStyles, DeclarationsSayHowTextIsWritten) {
    const StyledText document = styledHtml(
        "<span style='font-weight:700;color:#c00'>red</span> <b style='font-weight: normal'>normal</b> "
        "<span style='FONT-STYLE: Italic !important; text-decoration: underline line-through'>all</span> "
        "<span style=\"font-family: &quot;DejaVu Sans Mono&quot;, serif; color: rgb(1, 2 ,3)\">mono</span> "
        "<font color=blue size=5 face='Courier New'>old</font> <span style='color: rgba(9,9,9,0)'>clear</span>");
    EXPECT_EQ(styleOf(document, "red"), (TextStyle{.isBold = true, .color = 0xcc0000}));
    EXPECT_EQ(styleOf(document, "normal"), TextStyle());
    EXPECT_EQ(styleOf(document, "all"), (TextStyle{.isItalic = true, .isUnderlined = true, .isStruck = true}));
    EXPECT_EQ(styleOf(document, "mono"), (TextStyle{.isFixedWidth = true, .color = 0x010203}));
    EXPECT_EQ(styleOf(document, "old"), (TextStyle{.isFixedWidth = true, .size = 1.5, .color = 0x0000ff}));
    EXPECT_EQ(styleOf(document, "clear"), TextStyle());
}

TEST(StyledHtmlStyles, SizesCountAgainstWhatMostOfTheTextHas) {
    const StyledText document = styledHtml("<div style='font-size: 11pt'>most of these words are of one size"
                                           "<span style='font-size: 22pt'> twice</span><small> less</small></div>");
    EXPECT_EQ(styleOf(document, "most"), TextStyle());
    EXPECT_EQ(styleOf(document, "twice").size, 2.0F);
    EXPECT_EQ(styleOf(document, "less").size, 0.85F);
}

TEST(StyledHtmlSize, AHostileDocumentStaysInProportion) {
    const StyledText deep = styledHtml(QByteArray("<div><ul><li>").repeated(50'000) + "x");
    EXPECT_LT(deep.text.size(), 401'000);
    const StyledText changing = styledHtml(QByteArray("<b>a</b>b").repeated(60'000));
    EXPECT_EQ(changing.text.size(), 120'000);
    EXPECT_LE(changing.runs.size(), 20'000U);
    const StyledText closing = styledHtml(QByteArray("</p>").repeated(200'000) + "x");
    EXPECT_EQ(closing.text, QStringLiteral("x"));
}

TEST(StyledRtf, ControlWordsSayHowTextIsWritten) {
    const auto document = styledRtf("{\\rtf1\\ansi{\\fonttbl{\\f0\\fswiss Sans;}{\\f1\\fmodern Mono;}}"
                                    "{\\colortbl;\\red200\\green0\\blue16;}\\f0\\fs22 plain {\\b bold {\\i both}} "
                                    "\\ul under\\ulnone  {\\strike struck} {\\cf1 red} {\\f1 code} {\\fs44 large} "
                                    "\\b on\\b0  off\\par{\\b b}\\plain end of it}");
    ASSERT_TRUE(document);
    EXPECT_EQ(document->text, text(u"plain bold both under struck red code large on off\nbend of it"));
    EXPECT_EQ(styleOf(*document, "plain"), TextStyle());
    EXPECT_EQ(styleOf(*document, "bold"), TextStyle{.isBold = true});
    EXPECT_EQ(styleOf(*document, "both"), (TextStyle{.isBold = true, .isItalic = true}));
    EXPECT_EQ(styleOf(*document, "under"), TextStyle{.isUnderlined = true});
    EXPECT_EQ(styleOf(*document, "struck"), TextStyle{.isStruck = true});
    EXPECT_EQ(styleOf(*document, "red"), TextStyle{.color = 0xc80010});
    EXPECT_EQ(styleOf(*document, "code"), TextStyle{.isFixedWidth = true});
    EXPECT_EQ(styleOf(*document, "large").size, 2.0F);
    EXPECT_EQ(styleOf(*document, "on"), TextStyle{.isBold = true});
    EXPECT_EQ(styleOf(*document, "off"), TextStyle());
}

TEST(StyledRtf, ABrokenDocumentIsNone) {
    EXPECT_FALSE(styledRtf("{\\rtf1 a"));
    EXPECT_FALSE(styledRtf("words"));
}

} // namespace vellumry
