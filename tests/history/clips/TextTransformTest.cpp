// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/TextTransform.h"

#include <gtest/gtest.h>
#include <ostream>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

struct Case {
    const char* name;
    TextTransform transform;
    const char* language;
    QString text;
    QString expected;
};

void PrintTo(const Case& row, std::ostream* out) {
    *out << row.name;
}

class TransformedText : public testing::TestWithParam<Case> {};

TEST_P(TransformedText, IsAsTheReaderExpects) {
    const Case& row = GetParam();
    EXPECT_EQ(apply(row.transform, row.text, QLocale(QLatin1StringView(row.language))), row.expected);
}

constexpr auto lower = TextTransform::lowercase;
constexpr auto upper = TextTransform::uppercase;
constexpr auto title = TextTransform::titleCase;
constexpr auto sentence = TextTransform::sentenceCase;
constexpr auto trim = TextTransform::trimWhitespace;
constexpr auto join = TextTransform::removeLineBreaks;

const Case caseMappings[] = {
    {"LowerEnglish", lower, "en_US", u"Hello WORLD"_s, u"hello world"_s},
    {"LowerOfNothing", lower, "en_US", QString(), QString()},
    {"LowerTurkish", lower, "tr_TR", u"IĞDIR İSTANBUL"_s, u"ığdır istanbul"_s},
    {"LowerFinalSigma", lower, "el_GR", u"ΟΔΟΣ ΣΟΦΟΣ."_s, u"οδος σοφος."_s},
    {"LowerOtherLanguagesHaveOneI", lower, "de_DE", u"ISPARTA İ"_s, u"isparta i\u0307"_s},
    {"LowerAzerbaijani", lower, "az_AZ", u"BAKI İL"_s, u"bakı il"_s},
    {"LowerLithuanianKeepsTheDot", lower, "lt_LT", u"I\u0301"_s, u"i\u0307\u0301"_s},
    {"LowerGermanCapitalSharpS", lower, "de_DE", u"STRAẞE"_s, u"straße"_s},
    {"LowerSigmaBeforeALetterStays", lower, "en_US", u"ΣΑΣ ΣΑΣΑ"_s, u"σας σασα"_s},
    {"UpperEnglish", upper, "en_US", u"Hello world"_s, u"HELLO WORLD"_s},
    {"UpperTurkish", upper, "tr_TR", u"istanbul ığdır"_s, u"İSTANBUL IĞDIR"_s},
    {"UpperGermanGrows", upper, "de_DE", u"straße"_s, u"STRASSE"_s},
    {"UpperGrowsMuch", upper, "en_US", u"\u0390\u0390\uFB03"_s, u"\u0399\u0308\u0301\u0399\u0308\u0301FFI"_s},
    {"UpperGreekWithoutAccents", upper, "el_GR", u"Άθήνα"_s, u"ΑΘΗΝΑ"_s},
    {"UpperBeyondTheFirstPlane", upper, "en_US", u"𐐨x"_s, u"𐐀X"_s},
    {"TitleEnglish", title, "en_US", u"hELLO wide-open wORLD"_s, u"Hello Wide-Open World"_s},
    {"TitleApostrophe", title, "en_US", u"don't stop"_s, u"Don't Stop"_s},
    {"TitleDutch", title, "nl_NL", u"ijsland en ierland"_s, u"IJsland En Ierland"_s},
    {"TitleTurkish", title, "tr_TR", u"izmir ISPARTA"_s, u"İzmir Isparta"_s},
    {"TitleDutchInOtherLanguages", title, "en_US", u"ijsland"_s, u"Ijsland"_s},
    {"TitleGerman", title, "de_DE", u"ßtraße STRASSE"_s, u"Sstraße Strasse"_s},
    {"TitleGreek", title, "el_GR", u"ΣΟΦΟΣ ΟΔΟΣ"_s, u"Σοφος Οδος"_s},
    {"TitleLigature", title, "hr_HR", u"ǆep ﬁn"_s, u"ǅep Fin"_s},
    {"TitleKeepsEmoji", title, "en_US", u"👩🏽\u200D🚀 e\u0301TAT"_s, u"👩🏽\u200D🚀 E\u0301tat"_s},
    {"TitleKeepsLines", title, "en_US", u"one\ntwo"_s, u"One\nTwo"_s},
};
INSTANTIATE_TEST_SUITE_P(Mapping, TransformedText, testing::ValuesIn(caseMappings),
                         [](const auto& row) { return row.param.name; });

const Case sentences[] = {
    {"CapitalsOpenSentences", sentence, "en_US", u"HELLO WORLD. BYE"_s, u"Hello world. Bye"_s},
    {"LineBreakOpensOne", sentence, "en_US", u"first line\nsecond LINE"_s, u"First line\nSecond line"_s},
    {"EveryKindOfLineBreak", sentence, "en_US", u"a\vb\fc\rd\u0085e\u2028f\u2029g\r\nh"_s,
     u"A\vB\fC\rD\u0085E\u2028F\u2029G\r\nH"_s},
    {"AbbreviationOpensOneToo", sentence, "en_US", u"see e.g. this"_s, u"See e.g. This"_s},
    {"DigitCancelsTheCapital", sentence, "en_US", u"3 apples. 4 pears"_s, u"3 apples. 4 pears"_s},
    {"QuoteDoesNot", sentence, "en_US", u"\"so\" he said. (then) «it» went"_s, u"\"So\" he said. (Then) «it» went"_s},
    {"DomainNameOpensNone", sentence, "en_US", u"visit Example.COM now"_s, u"Visit example.com now"_s},
    {"QuestionAndExclamation", sentence, "en_US", u"why? because! ok"_s, u"Why? Because! Ok"_s},
    {"ManyStops", sentence, "en_US", u"well... then"_s, u"Well... Then"_s},
    {"LeadingStops", sentence, "en_US", u"...then"_s, u"...Then"_s},
    {"StopBeforeQuote", sentence, "en_US", u"end.\" next"_s, u"End.\" next"_s},
    {"Turkish", sentence, "tr_TR", u"IŞIK. istanbul"_s, u"Işık. İstanbul"_s},
    {"Greek", sentence, "el_GR", u"ΟΔΟΣ. ΣΟΦΟΣ"_s, u"Οδος. Σοφος"_s},
    {"German", sentence, "de_DE", u"ßo. ÄPFEL"_s, u"SSo. Äpfel"_s},
    {"DutchOpensWithOneCharacter", sentence, "nl_NL", u"IJS. IJS"_s, u"Ijs. Ijs"_s},
    {"AzerbaijaniAfterAQuestion", sentence, "az_AZ", u"İL? IŞIQ"_s, u"İl? Işıq"_s},
    {"EmojiDoesNotCancel", sentence, "en_US", u"👩🏽\u200D🚀 GO! 🇩🇪 go"_s, u"👩🏽\u200D🚀 Go! 🇩🇪 Go"_s},
    {"KeycapIsANumber", sentence, "en_US", u"1\uFE0F\u20E3 apples"_s, u"1\uFE0F\u20E3 apples"_s},
    {"RomanAndArabicNumbersCancel", sentence, "en_US", u"٣ apples. ½ pear"_s, u"٣ apples. ½ pear"_s},
    {"StopWithAnAccentIsNoStop", sentence, "en_US", u"one.\u0301 two"_s, u"One.\u0301 two"_s},
    {"LettersWithoutCase", sentence, "en_US", u"語 word. 語 word"_s, u"語 word. 語 word"_s},
    {"AccentOfASecondSentence", sentence, "fr_FR", u"fin. e\u0301tat"_s, u"Fin. E\u0301tat"_s},
    {"CombiningAccent", sentence, "en_US", u"e\u0301tat"_s, u"E\u0301tat"_s},
    {"Empty", sentence, "en_US", QString(), QString()},
};
INSTANTIATE_TEST_SUITE_P(Sentences, TransformedText, testing::ValuesIn(sentences),
                         [](const auto& row) { return row.param.name; });

const Case lines[] = {
    {"TrimKeepsInnerBlankLines", trim, "en_US", u"\n  a \n \t \n b\t\n\n"_s, u"a\n\nb"_s},
    {"TrimMakesLineFeeds", trim, "en_US", u"a \r\n b\u2028c"_s, u"a\nb\nc"_s},
    {"TrimKeepsInnerBlanks", trim, "en_US", u"  a  b  "_s, u"a  b"_s},
    {"TrimOfBlanks", trim, "en_US", u" \n\t\n"_s, QString()},
    {"JoinDropsEmptyLines", join, "en_US", u" a \n\n \t\n b\r\nc "_s, u"a b c"_s},
    {"JoinOfBlankLines", join, "en_US", u"\n \n\t\n"_s, QString()},
    {"JoinOfOneLine", join, "en_US", u"a  b"_s, u"a  b"_s},
};
INSTANTIATE_TEST_SUITE_P(Lines, TransformedText, testing::ValuesIn(lines),
                         [](const auto& row) { return row.param.name; });

TEST(TextTransform, TitlesShowWhatTheyDo) {
    QStringList titles;
    QStringList names;
    for (const TextTransform transform : allTextTransforms) {
        titles << transformTitle(transform);
        names << rawValue(transform);
    }
    EXPECT_EQ(titles, (QStringList{u"lowercase"_s, u"UPPERCASE"_s, u"Title Case"_s, u"Sentence case"_s,
                                   u"Trim Spaces"_s, u"Remove Line Breaks"_s}));
    EXPECT_EQ(names, (QStringList{u"lowercase"_s, u"uppercase"_s, u"titleCase"_s, u"sentenceCase"_s,
                                  u"trimWhitespace"_s, u"removeLineBreaks"_s}));
}

} // namespace
} // namespace vellumry
