// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PreviewMarkup.h"

#include "foundation/RichText.h"
#include "panel/StyledPreview.h"
#include "support/Drafts.h"
#include "views/ThemeColors.h"

#include <QRegularExpression>
#include <QTextDocument>
#include <gtest/gtest.h>

using namespace vellumry;

namespace {

markup::Look look(bool isDark = false) {
    const ThemeColors colors = ThemeColors::of({.isDark = isDark});
    return {colors.text, colors.ground, colors.accent, colors.selected, QStringLiteral("Mono")};
}

QString styled(const char* text, const std::vector<StyledRun>& runs, const char* query = "") {
    const QString string = QString::fromUtf8(text);
    return markup::styled(string, runs, markup::hitsIn(QString::fromUtf8(query), string), look());
}

/// What a reader of the markup would see.
QString readBack(const QString& markup) {
    QTextDocument document;
    document.setHtml(markup);
    return document.toPlainText().replace(QChar::Nbsp, u' ');
}

std::vector<QString> colorsIn(const QString& markup) {
    std::vector<QString> found;
    auto matches = QRegularExpression(QStringLiteral("[;\"]color:(#[0-9a-f]{6})")).globalMatch(markup);
    while (matches.hasNext())
        found.push_back(matches.next().captured(1));
    return found;
}

} // namespace

TEST(PreviewMarkup, EveryCharacterComesThroughAsItIs) {
    const char* text = "  a\t<b>b</b>  &amp;\n\n<img src='http://example.org/p.png'> \"quoted\"\nlast";
    const QString markup = styled(text, {{2, 9, {.isItalic = true}}}, "quoted");
    EXPECT_EQ(readBack(markup), QString::fromUtf8(text));
    EXPECT_FALSE(markup.contains(QStringLiteral("<img")));
}

TEST(PreviewMarkup, StylesBecomeRulesAndHitsLieOverThem) {
    const QString markup = styled("one two three", {{0, 7, {.isItalic = true, .isStruck = true}}}, "TWO");
    EXPECT_TRUE(markup.contains(QStringLiteral("font-style:italic;text-decoration: line-through;\">one ")));
    EXPECT_TRUE(markup.contains(QRegularExpression(
        QStringLiteral("font-weight:600;font-style:italic;[^\"]*background-color:#[0-9a-f]{6};\">two</span> three"))));
}

TEST(PreviewMarkup, ColoursAreMadeLegibleAndGreysAreTheReadersOwn) {
    for (const bool isDark : {false, true}) {
        const markup::Look drawn = look(isDark);
        for (const quint32 color : {0xffff00U, 0x000080U, 0xff0000U, 0x00ff00U, 0x1a0dabU}) {
            const auto found = colorsIn(markup::styled(QStringLiteral("a"), {{0, 1, {.color = color}}}, {}, drawn));
            ASSERT_EQ(found.size(), 1U);
            EXPECT_GE(contrastOf(QColor(found.front()), drawn.ground), 4.5) << color;
        }
        for (const quint32 grey : {0x000000U, 0xffffffU, 0x808080U, 0x1f2328U})
            EXPECT_TRUE(colorsIn(markup::styled(QStringLiteral("a"), {{0, 1, {.color = grey}}}, {}, drawn)).empty());
    }
}

TEST(PreviewMarkup, AHitIsFoundWithoutRegardToCaseAndAccentsEachTime) {
    const auto hits = markup::hitsIn(QStringLiteral(" cafe"), QString::fromUtf8("Café, CAFÉ; ca fe"));
    ASSERT_EQ(hits.size(), 2U);
    EXPECT_EQ(hits[0], (TextStretch{0, 4}));
    EXPECT_EQ(hits[1], (TextStretch{6, 10}));
    EXPECT_TRUE(markup::hitsIn(QStringLiteral(" "), QStringLiteral("a b")).empty());
    EXPECT_EQ(markup::hitsIn(QStringLiteral("a"), QString(10'000, u'a')).size(), markup::mostHits);
}

TEST(PreviewMarkup, WordsOfAPictureAreFoundByWhatLooksAlike) {
    const QString words = QStringLiteral("total: involce 42");
    EXPECT_TRUE(markup::hitsIn(QStringLiteral("invoice"), words).empty());
    EXPECT_EQ(markup::hitsInPicture(QStringLiteral("invoice"), words), (std::vector<TextStretch>{{7, 14}}));
}

TEST(PreviewMarkup, TheBeginningUpToTheHitIsThereToBeMeasured) {
    const QString text = QStringLiteral("first\nsecond hit third");
    const QString beginning = markup::upToFirstHit(text, {}, markup::hitsIn(QStringLiteral("hit"), text), look());
    EXPECT_EQ(readBack(beginning), QStringLiteral("first\nsecond hit"));
    EXPECT_EQ(markup::upToFirstHit(text, {}, {}, look()), QString());
}

TEST(StyledPreview, RtfGoesBeforeHtmlAndPlainTextHasNoStyles) {
    PasteboardItem item;
    item.representations[uniformtype::utf8PlainText] = "plain";
    EXPECT_FALSE(styledpreview::contentOf({item}));
    item.representations[uniformtype::html] = "<b>h\xC3\xA9</b> html";
    auto content = styledpreview::contentOf({item});
    ASSERT_TRUE(content);
    EXPECT_EQ(content->text, QByteArray("h\xC3\xA9 html"));
    ASSERT_EQ(content->runs.size(), 1U);
    EXPECT_EQ(content->runs[0].length, 3) << "in bytes";
    item.representations[uniformtype::rtf] = "{\\rtf1 of {\\b rtf}}";
    content = styledpreview::contentOf({item});
    ASSERT_TRUE(content);
    EXPECT_EQ(content->text, QByteArray("of rtf"));
    item.representations[uniformtype::rtf] = "{\\rtf1 broken";
    content = styledpreview::contentOf({item});
    ASSERT_TRUE(content);
    EXPECT_EQ(content->text, QByteArray("h\xC3\xA9 html"));
}

TEST(StyledPreview, ADocumentThatIsTooLargeOrSaysNothingHasNoStyles) {
    PasteboardItem item;
    item.representations[uniformtype::html] = "<p> </p><img src=x>";
    EXPECT_FALSE(styledpreview::contentOf({item}));
    item.representations[uniformtype::html] = QByteArray("<b>word</b> ").repeated(500'000);
    EXPECT_FALSE(styledpreview::contentOf({item}));
    EXPECT_FALSE(styledpreview::contentOf({}));
}
