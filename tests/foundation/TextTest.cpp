// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Text.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

struct CountRow {
    const char* name;
    const char16_t* text;
    qsizetype characters;
};

class TextCharacterCount : public testing::TestWithParam<CountRow> {};

QStringList charactersOf(const QString& text) {
    QStringList result;
    text::forEachCharacter(text, [&result](QStringView character) {
        result.append(character.toString());
        return true;
    });
    return result;
}

} // namespace

TEST_P(TextCharacterCount, IsWhatAReaderCounts) {
    const QString text = QString::fromUtf16(GetParam().text);
    EXPECT_EQ(text::characterCount(text), GetParam().characters);
    EXPECT_EQ(charactersOf(text).size(), GetParam().characters);
    EXPECT_EQ(charactersOf(text).join(QString()), text);
    EXPECT_FALSE(text::hasMoreCharactersThan(text, GetParam().characters));
    EXPECT_EQ(text::hasMoreCharactersThan(text, GetParam().characters - 1), GetParam().characters > 0);
    EXPECT_EQ(text::firstCharacters(text, GetParam().characters), text);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, TextCharacterCount,
    testing::Values(CountRow{"Empty", u"", 0}, CountRow{"Ascii", u"hello", 5}, CountRow{"Latin1", u"café", 4},
                    CountRow{"LineFeeds", u"a\n\nb", 4}, CountRow{"CarriageReturnLineFeedIsOne", u"a\r\nb", 3},
                    CountRow{"LineFeedCarriageReturnIsTwo", u"a\n\rb", 4}, CountRow{"CombiningAcute", u"cafe\u0301", 4},
                    CountRow{"TwoMarks", u"a\u0301\u0323b", 2}, CountRow{"LoneMark", u"\u0301", 1},
                    CountRow{"AstralLetter", u"\U00010400x", 2}, CountRow{"Emoji", u"👍", 1},
                    CountRow{"EmojiWithSkinTone", u"👍🏽", 1}, CountRow{"Family", u"👨‍👩‍👧‍👦", 1},
                    CountRow{"TwoFlags", u"🇩🇪🇫🇷", 2}, CountRow{"Keycap", u"1️⃣2", 2},
                    CountRow{"HangulSyllable", u"한글", 2}, CountRow{"HangulJamo", u"\u1112\u1161\u11AB", 1},
                    CountRow{"Thai", u"น้ำ", 1}, CountRow{"KanaWithVoicingMark", u"か\u3099き", 2},
                    CountRow{"AsciiAroundEmoji", u"ab👍🏽cd", 5}),
    [](const auto& row) { return row.param.name; });

TEST(Text, FirstCharactersNeverCutsACharacter) {
    const QString text = QStringLiteral("a👨‍👩‍👧‍👦é\r\nz");
    EXPECT_EQ(text::firstCharacters(text, 0), QString());
    EXPECT_EQ(text::firstCharacters(text, 1), QStringLiteral("a"));
    EXPECT_EQ(text::firstCharacters(text, 2), QStringLiteral("a👨‍👩‍👧‍👦"));
    EXPECT_EQ(text::firstCharacters(text, 4), QStringLiteral("a👨‍👩‍👧‍👦é\r\n"));
    EXPECT_EQ(text::firstCharacters(text, 99), text);
}

TEST(Text, FirstCharactersSharesAShortText) {
    const QString text = QStringLiteral("short");
    EXPECT_EQ(text::firstCharacters(text, 300).constData(), text.constData());
}

TEST(Text, AVisitorEndsTheWalk) {
    int visited = 0;
    text::forEachCharacter(QStringLiteral("abcdef"), [&visited](QStringView) { return ++visited < 3; });
    EXPECT_EQ(visited, 3);
}

TEST(Text, AWalkInsideAWalkKeepsItsPlace) {
    QStringList seen;
    text::forEachCharacter(QStringLiteral("e\u0301o\u0301u\u0301"), [&seen](QStringView outer) {
        text::forEachCharacter(QStringLiteral("x\u0301\u0323yz\u0301"), [&](QStringView inner) {
            seen << outer.toString() + inner.toString() + QString::number(text::characterCount(u"🇩🇪🇫🇷"));
            return inner != u"y";
        });
        return true;
    });
    const QStringList expected{
        QStringLiteral("e\u0301x\u0301\u03232"), QStringLiteral("e\u0301y2"),
        QStringLiteral("o\u0301x\u0301\u03232"), QStringLiteral("o\u0301y2"),
        QStringLiteral("u\u0301x\u0301\u03232"), QStringLiteral("u\u0301y2"),
    };
    EXPECT_EQ(seen, expected);
}

TEST(Text, TrimmingTakesWhatItsNameSays) {
    const QString text = QStringLiteral("\u00A0\t \r\n a b \n\u2028\u3000 ");
    EXPECT_EQ(text::trimmed(text), QStringLiteral("a b"));
    EXPECT_EQ(text::trimmedOfWhitespace(QStringLiteral("\t a\n ")), QStringLiteral("a\n"));
    EXPECT_EQ(text::trimmedOfNewlines(QStringLiteral("\n a\r\n")), QStringLiteral(" a"));
    EXPECT_EQ(text::trimmed(QStringLiteral(" \n ")), QString());
}

TEST(Text, BlankIsNothingButWhitespace) {
    EXPECT_TRUE(text::isBlank(u""));
    EXPECT_TRUE(text::isBlank(u" \t\u0085\u2029\u2003"));
    EXPECT_FALSE(text::isBlank(u" . "));
    EXPECT_FALSE(text::isBlank(u"\u200B")); // zero width, and yet no space
}

TEST(Text, LinesKeepEmptyOnes) {
    EXPECT_EQ(text::lines(u""), QStringList{QString()});
    EXPECT_EQ(text::lines(u"a"), QStringList{QStringLiteral("a")});
    EXPECT_EQ(text::lines(u"a\r\nb\n\nc\u2028d\re\n"),
              (QStringList{QStringLiteral("a"), QStringLiteral("b"), QString(), QStringLiteral("c"),
                           QStringLiteral("d"), QStringLiteral("e"), QString()}));
}

TEST(Text, OneLetterOutsideMakesATextMoreThanAscii) {
    EXPECT_TRUE(text::isAscii(u""));
    EXPECT_TRUE(text::isAscii(QByteArrayView()));
    for (qsizetype length = 1; length < 200; ++length) {
        QString units(length, QChar(0x7F));
        QByteArray bytes(length, '\x7F');
        EXPECT_TRUE(text::isAscii(units) && text::isAscii(bytes));
        for (qsizetype at = 0; at < length; ++at) {
            QString changedUnits = units;
            changedUnits[at] = at % 2 == 0 ? u'\u0080' : u'\u0100';
            QByteArray changedBytes = bytes;
            changedBytes[at] = '\x80';
            ASSERT_FALSE(text::isAscii(changedUnits)) << at;
            ASSERT_FALSE(text::isAscii(changedBytes)) << at;
        }
    }
}

TEST(Text, Utf8IsDecodedStrictly) {
    EXPECT_EQ(text::fromUtf8("h\xC3\xA9"), QStringLiteral("hé"));
    EXPECT_EQ(text::fromUtf8(QByteArray("a\0b", 3)).value_or(QString()).size(), 3);
    EXPECT_EQ(text::fromUtf8(QByteArray()), QString());
    EXPECT_FALSE(text::fromUtf8("\xE9t\xE9"));
    EXPECT_FALSE(text::fromUtf8("cut \xE2\x82"));
    EXPECT_FALSE(text::fromUtf8("\xC0\xAF"));
    EXPECT_FALSE(text::fromUtf8("\xED\xA0\x80"));
}

} // namespace vellumry
