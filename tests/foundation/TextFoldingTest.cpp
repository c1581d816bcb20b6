// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Text.h"

#include <QLocale>
#include <gtest/gtest.h>
#include <unicode/uchar.h>

namespace vellumry {

namespace {

struct FoldingRow {
    const char* name;
    const char16_t* text;
    const char16_t* folded;
};

class TextFolding : public testing::TestWithParam<FoldingRow> {};

/// Sets the default locale for one test.
class ScopedLocale {
public:
    explicit ScopedLocale(QLocale::Language language) { QLocale::setDefault(QLocale(language)); }
    ~ScopedLocale() { QLocale::setDefault(m_before); }

private:
    QLocale m_before;
};

} // namespace

TEST_P(TextFolding, LeavesWhatTheWordsShare) {
    const QString text = QString::fromUtf16(GetParam().text);
    const QString folded = QString::fromUtf16(GetParam().folded);
    EXPECT_EQ(text::folded(text), folded);
    EXPECT_EQ(text::foldedBytes(text.toUtf8()), folded.toUtf8());
    EXPECT_EQ(text::foldedBytes(QStringView(text)), folded.toUtf8());
    EXPECT_EQ(text::folded(folded), folded) << "folding twice changes nothing";
    EXPECT_EQ(text::folded(text.normalized(QString::NormalizationForm_D)), folded);
    EXPECT_EQ(text::folded(text.normalized(QString::NormalizationForm_C)), folded);
}

INSTANTIATE_TEST_SUITE_P(
    Scripts, TextFolding,
    testing::Values(
        FoldingRow{"Empty", u"", u""}, FoldingRow{"Ascii", u"Hello, World! [@Z`{", u"hello, world! [@z`{"},
        FoldingRow{"LongAscii",
                   u"THE QUICK BROWN FOX JUMPS OVER THE LAZY DOG, THEN OVER THE NEXT ONE, AND THEN HOME AGAIN.",
                   u"the quick brown fox jumps over the lazy dog, then over the next one, and then home again."},
        FoldingRow{"French", u"CAFÉ À LA CRÈME", u"cafe a la creme"},
        FoldingRow{"CombiningSequence", u"E\u0301\u0323a\u0308", u"ea"},
        FoldingRow{"GermanSharpS", u"Straße STRASSE ẞ", u"strasse strasse ss"},
        FoldingRow{"Ligature", u"ﬁne ŉ", u"fine ʼn"}, FoldingRow{"Nordic", u"Åre Øl Æ", u"are øl æ"},
        FoldingRow{"Vietnamese", u"Tiếng Việt", u"tieng viet"}, FoldingRow{"PolishKeepsStroke", u"Łódź", u"łodz"},
        FoldingRow{"DottedCapitalI", u"İstanbul", u"istanbul"}, FoldingRow{"KelvinSign", u"\u212A", u"k"},
        FoldingRow{"GreekFinalSigma", u"ΌΣΟΣ όσος", u"οσοσ οσοσ"}, FoldingRow{"GreekIotaBelow", u"ᾳ ᾼ ΐ", u"α α ι"},
        FoldingRow{"Cyrillic", u"ЁЛКА йод", u"елка иод"}, FoldingRow{"HebrewPoints", u"שָׁלוֹם", u"שלום"},
        FoldingRow{"ArabicVowels", u"مُحَمَّد أحمد", u"محمد احمد"},
        FoldingRow{"DevanagariKeepsVowelSigns", u"हिन्दी", u"हिन्दी"},
        FoldingRow{"ThaiKeepsItsMarks", u"น้ำตาล", u"น้ำตาล"}, FoldingRow{"HangulSyllables", u"한글", u"한글"},
        FoldingRow{"HangulJamo", u"\u1112\u1161\u11AB", u"한"}, FoldingRow{"HangulTail", u"가\u11A8", u"각"},
        FoldingRow{"HalfWidthKatakana", u"ｶﾞｷﾞ", u"ガギ"}, FoldingRow{"VoicingMarkStays", u"がか\u3099か", u"ががか"},
        FoldingRow{"AccentBeforeVoicingMark", u"か\u0301\u3099", u"が"},
        FoldingRow{"FullWidthLatin", u"ＡＢＣ１２３！", u"abc123!"}, FoldingRow{"FullWidthAccent", u"Ｅ\u0301", u"e"},
        FoldingRow{"IdeographicSpace", u"東京\u3000TOWER", u"東京 tower"},
        FoldingRow{"Ideographs", u"漢字、かな。", u"漢字、かな。"},
        FoldingRow{"EmojiWithSkinTone", u"👍🏽 OK", u"👍🏽 ok"},
        FoldingRow{"Family", u"👨‍👩‍👧", u"👨‍👩‍👧"},
        FoldingRow{"EmojiPresentation", u"❤\uFE0F", u"❤"}, FoldingRow{"Deseret", u"\U00010400", u"\U00010428"},
        FoldingRow{"Quotes", u"“Naïve” – it’s…", u"“naive” – it’s…"}, FoldingRow{"Superscript", u"x²", u"x²"},
        FoldingRow{"CombiningCrowd", u"Z\u0351\u036B\u0343a\u0328\u0308", u"za"},
        FoldingRow{"GreekPolytonic", u"ᾧ Ὀδυσσεύς", u"ω οδυσσευσ"}, FoldingRow{"CyrillicBreve", u"и\u0306 Ў", u"и у"},
        FoldingRow{"Digraph", u"ǅ Ǆ", u"ǆ ǆ"}, FoldingRow{"ThreeMarksOnOneLetter", u"Ǘ Ấ", u"u a"},
        FoldingRow{"RomanNumeral", u"Ⅷ", u"ⅷ"}, FoldingRow{"HebrewReadyMade", u"\uFB2C\uFB4B", u"שו"},
        FoldingRow{"ArabicStretch", u"مـحـمد", u"مـحـمد"}, FoldingRow{"ArabicHamza", u"إبراهيم ؤ", u"ابراهيم و"},
        FoldingRow{"PersianJoiner", u"گفت\u200Cو\u200Cگو", u"گفت\u200Cو\u200Cگو"},
        FoldingRow{"DevanagariNukta", u"\u0958", u"क\u093C"},
        FoldingRow{"ThaiDigits", u"\u0E51\u0E52", u"\u0E51\u0E52"},
        FoldingRow{"HangulHalfWidth", u"\uFFA1\uFFC2", u"\u3131\u314F"},
        FoldingRow{"HangulCompatibility", u"\u3131\u314F", u"\u3131\u314F"},
        FoldingRow{"HiraganaIsNotKatakana", u"あア", u"あア"}, FoldingRow{"SmallKanaStay", u"ッﾂｯ", u"ッツッ"},
        FoldingRow{"HalfWidthWithFullMark", u"ｶ\u3099ﾊﾟ", u"ガパ"}, FoldingRow{"FullWidthSigns", u"￡￦￥", u"£₩¥"},
        FoldingRow{"FullWidthCyrillicHasNone", u"Ｄж", u"dж"}, FoldingRow{"CompatibilityIsNotWidth", u"①℃㎏", u"①℃㎏"},
        FoldingRow{"Keycap", u"1\uFE0F\u20E3", u"1\u20E3"}, FoldingRow{"Profession", u"👩🏽\u200D🚀", u"👩🏽\u200D🚀"},
        FoldingRow{"Flag", u"🇩🇪A", u"🇩🇪a"}, FoldingRow{"MixedRuns", u"ÄbcДEf東gÜ", u"abcдef東gu"}),
    [](const auto& row) { return row.param.name; });

TEST(TextFolding, TwiceIsOnceForEveryScalar) {
    for (char32_t scalar = 1; scalar < 0x20000; ++scalar) {
        if (scalar >= 0xD800 && scalar < 0xE000)
            continue;
        const QString text = QString::fromUcs4(&scalar, 1);
        const QByteArray once = text::foldedBytes(text.toUtf8());
        ASSERT_EQ(text::foldedBytes(once), once) << "U+" << std::hex << static_cast<unsigned>(scalar);
        const QByteArray decomposed = text.normalized(QString::NormalizationForm_D).toUtf8();
        ASSERT_EQ(text::foldedBytes(decomposed), once) << "U+" << std::hex << static_cast<unsigned>(scalar);
    }
}

TEST(TextFolding, NeighboursDoNotChangeAScalar) {
    // The quick ways for single scalars and the whole tables must agree: a Thai letter in the run forces the tables.
    const QByteArray thai = QStringLiteral("ก").toUtf8();
    for (char32_t scalar = 0x80; scalar < 0x20000; ++scalar) {
        if (scalar >= 0xD800 && scalar < 0xE000)
            continue;
        const QByteArray utf8 = QString::fromUcs4(&scalar, 1).toUtf8();
        ASSERT_EQ(text::foldedBytes(thai + utf8), thai + text::foldedBytes(utf8))
            << "U+" << std::hex << static_cast<unsigned>(scalar);
    }
}

TEST(TextFolding, BrokenUtf8ReadsAsReplacementCharacters) {
    EXPECT_EQ(text::foldedBytes(QByteArray("A\xFFZ")), QByteArray("a\xEF\xBF\xBDz"));
    EXPECT_EQ(text::foldedBytes(QByteArray("A\xC3")), QByteArray("a\xEF\xBF\xBD"));
    EXPECT_EQ(text::foldedBytes(QByteArray("\xE2\x80")), text::foldedBytes(QString::fromUtf8("\xE2\x80").toUtf8()));
}

TEST(TextFolding, ABlockEndsWhereAnotherAlphabetBegins) {
    for (int length = 0; length < 200; ++length) {
        const QByteArray text = QByteArray(length, 'X') + "Ä" + QByteArray(70, 'Y');
        ASSERT_EQ(text::foldedBytes(text), QByteArray(length, 'x') + "a" + QByteArray(70, 'y')) << length;
    }
}

TEST(TextFolding, TurkishTellsItsTwoLettersApart) {
    const ScopedLocale turkish(QLocale::Turkish);
    EXPECT_EQ(text::folded(u"ISPARTA İZMİR"), QStringLiteral("ısparta izmir"));
    EXPECT_EQ(text::folded(QStringLiteral("İ").normalized(QString::NormalizationForm_D)), QStringLiteral("i"));
    EXPECT_EQ(text::foldedWithoutLocale(u"ISPARTA"), QStringLiteral("isparta"));
}

TEST(TextFolding, OtherLocalesShareOneLetterI) {
    const ScopedLocale german(QLocale::German);
    EXPECT_EQ(text::folded(u"ISPARTA"), QStringLiteral("isparta"));
}

} // namespace vellumry
