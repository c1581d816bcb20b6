// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/search/LookAlike.h"

#include "foundation/Text.h"
#include "history/search/LookAlikeMatcher.h"

#include <QLocale>
#include <gtest/gtest.h>
#include <numeric>
#include <random>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

std::optional<LookAlikeStretch> match(const QString& query, const QString& text) {
    return lookAlikeMatch(lookAlikeKeysOf(query), lookAlikeKeysOf(text));
}

/// The definition, walked start by start.
std::optional<LookAlikeStretch> plainMatch(const LookAlikeKeys& query, const LookAlikeKeys& text) {
    if (query.empty() || text.size() < query.size())
        return std::nullopt;
    for (std::size_t start = 0; start + query.size() <= text.size(); ++start) {
        int mismatches = 0;
        for (std::size_t at = 0; at < query.size(); ++at)
            mismatches += text[start + at] != query[at] ? 1 : 0;
        if (mismatches <= allowedMismatches(query.size()))
            return LookAlikeStretch{static_cast<qsizetype>(start), static_cast<qsizetype>(start + query.size())};
    }
    return std::nullopt;
}

TEST(LookAlike, OneKeyStandsForEachClassOfLookAlikes) {
    EXPECT_EQ(lookAlikeKeysOf(u"!1iI|lL"_s), LookAlikeKeys(7, 'l'));
    EXPECT_EQ(lookAlikeKeysOf(u"$5sS"_s), LookAlikeKeys(4, 's'));
    EXPECT_EQ(lookAlikeKeysOf(u"0oO"_s), LookAlikeKeys(3, 'o'));
    EXPECT_EQ(lookAlikeKeysOf(u"a2 \n"_s), (LookAlikeKeys{'a', '2', ' ', '\n'}));
}

TEST(LookAlike, EachCharacterIsFoldedByItself) {
    EXPECT_EQ(lookAlikeKeysOf(u"ÉÍÓ"_s), (LookAlikeKeys{'e', 'l', 'o'}));
    EXPECT_EQ(lookAlikeKeysOf(u"e\u0301"_s), LookAlikeKeys{'e'});
    EXPECT_EQ(lookAlikeKeysOf(u"Ａｂ"_s), (LookAlikeKeys{'a', 'b'}));
}

TEST(LookAlike, ACharacterThatFoldingSplitsOrRemovesStands) {
    EXPECT_EQ(lookAlikeKeysOf(u"ß"_s), LookAlikeKeys{0xDF});
    EXPECT_EQ(lookAlikeKeysOf(u"ﬁ"_s), LookAlikeKeys{0xFB01});
    EXPECT_EQ(lookAlikeKeysOf(u"\u0301"_s), LookAlikeKeys{0x301});
}

TEST(LookAlike, CountsCharactersAndNotTheirScalars) {
    EXPECT_EQ(lookAlikeKeysOf(u"👩🏽‍🚀\r\n𝒳"_s).size(), 3U);
    EXPECT_EQ(lookAlikeKeysOf(u"👩🏽‍🚀"_s), LookAlikeKeys{0x1F469});
    EXPECT_TRUE(lookAlikeKeysOf(QString()).empty());
}

TEST(LookAlike, TheTurkicIChangesNothing) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Turkish));
    const LookAlikeKeys keys = lookAlikeKeysOf(u"IÍ"_s);
    QLocale::setDefault(before);
    EXPECT_EQ(keys, (LookAlikeKeys{'l', 'l'}));
}

TEST(LookAlike, MisreadDigitsAndLettersAgree) {
    EXPECT_EQ(match(u"hello world"_s, u"He110 W0r1d"_s), (LookAlikeStretch{0, 11}));
    EXPECT_EQ(match(u"invoice"_s, u"the involce"_s), (LookAlikeStretch{4, 11}));
    EXPECT_EQ(match(u"hell0"_s, u"say hello"_s), (LookAlikeStretch{4, 9}));
}

TEST(LookAlike, NothingIsFoundForNothingOrInTooLittle) {
    EXPECT_FALSE(match(QString(), u"text"_s));
    EXPECT_FALSE(match(u"longer"_s, u"long"_s));
}

TEST(LookAlike, SlackGrowsWithTheQuery) {
    EXPECT_FALSE(match(u"abcde"_s, u"abcdX"_s));
    EXPECT_TRUE(match(u"abcdef"_s, u"abcdeX"_s));
    EXPECT_FALSE(match(u"abcdef"_s, u"abcdXX"_s));
    EXPECT_TRUE(match(u"abcdefghjkm"_s, u"abcdefghjkX"_s));
    EXPECT_FALSE(match(u"abcdefghjkm"_s, u"Xbcdefghjk_"_s));
    EXPECT_TRUE(match(u"abcdefghjkmn"_s, u"Xbcdefghjkm_"_s));
    EXPECT_FALSE(match(u"abcdefghjkmn"_s, u"XbcdeXghjkm_"_s));
}

TEST(LookAlike, TheFirstStretchThatFitsWinsNotTheBest) {
    EXPECT_EQ(match(u"abcdef"_s, u"abcdeX abcdef"_s), (LookAlikeStretch{0, 6}));
}

TEST(LookAlike, ADroppedOrAddedCharacterIsNotForgiven) {
    EXPECT_FALSE(match(u"invoice number"_s, u"invice number 7"_s));
    EXPECT_FALSE(match(u"invoice number"_s, u"invooice number"_s));
}

TEST(LookAlike, TheRangeIsThatOfTheTextAsItIsStored) {
    const QString text = u"👩🏽‍🚀 e\u0301t H3LLO"_s;
    const auto range = lookAlikeRange(u"  et h3ll0 \n"_s, text);
    ASSERT_TRUE(range);
    EXPECT_EQ(text.mid(range->start, range->end - range->start), u"e\u0301t H3LLO"_s);
    EXPECT_FALSE(lookAlikeRange(u"absent"_s, text));
    EXPECT_FALSE(lookAlikeRange(u"  "_s, text));
}

TEST(LookAlike, AnAlphabetHoldsWhatFitsIntoBytesAndNoMore) {
    LookAlikeAlphabet alphabet;
    LookAlikeKeys keys(255);
    std::iota(keys.begin(), keys.end(), 0x400U);
    const auto bytes = alphabet.encode(keys);
    ASSERT_TRUE(bytes);
    for (std::size_t at = 0; at < keys.size(); ++at) {
        EXPECT_EQ(alphabet.find(keys[at]), (*bytes)[at]);
        EXPECT_NE((*bytes)[at], LookAlikeAlphabet::outside);
    }
    EXPECT_EQ(alphabet.find('a'), LookAlikeAlphabet::outside);
    EXPECT_FALSE(alphabet.encode(LookAlikeKeys{'a'}));
    EXPECT_TRUE(alphabet.encode(LookAlikeKeys{0x400, 0x4FE}));
}

TEST(LookAlike, LargeScriptsLeaveTheAlphabetToTheOthers) {
    LookAlikeAlphabet alphabet;
    EXPECT_FALSE(alphabet.encode(LookAlikeKeys{0x65E5, 0x672C}));
    EXPECT_FALSE(alphabet.encode(LookAlikeKeys{0x1F600}));
    EXPECT_EQ(alphabet.encode(LookAlikeKeys{'a', 'b', 'a'}), (std::vector<std::uint8_t>{0, 1, 0}));
}

TEST(LookAlike, TheScanFindsWhatTheWalkFinds) {
    std::mt19937 random(11);
    // The last alphabets hold keys that need two and four bytes, and the keys at the edges of each width.
    const std::vector<LookAlikeKeys> alphabets = {
        {'a', 'b'},           {'a', 'b', 'c', 'd'},        {'a', 'e', 0xFE},
        {'a', 0xFF, 0x100},   {'a', 0x430, 0x431, 0xFFFE}, {'a', 0xFFFF, 0x1F600},
        {0x65E5, 0x672C, 'x'}};
    const auto keysFrom = [&](const LookAlikeKeys& letters, std::size_t length) {
        LookAlikeKeys keys(length);
        for (std::uint32_t& key : keys)
            key = letters[random() % letters.size()];
        return keys;
    };
    LookAlikeAlphabet alphabet;
    int matches = 0;
    for (int round = 0; round < 30'000; ++round) {
        const auto& letters = alphabets[random() % alphabets.size()];
        const LookAlikeKeys text = keysFrom(letters, random() % 300);
        // Now and then a query from another alphabet, which has keys that the text cannot have.
        const auto& queryAlphabet = random() % 4 == 0 ? alphabets[random() % alphabets.size()] : letters;
        LookAlikeKeys query = keysFrom(queryAlphabet, random() % 20);
        if (text.size() > query.size() && random() % 2 == 0) {
            const auto start = static_cast<std::ptrdiff_t>(random() % (text.size() - query.size()));
            std::copy_n(text.begin() + start, query.size(), query.begin());
            for (int changes = static_cast<int>(random() % 4); changes > 0 && !query.empty(); --changes)
                query[random() % query.size()] = letters[random() % letters.size()];
        }
        const auto expected = plainMatch(query, text);
        matches += expected ? 1 : 0;
        ASSERT_EQ(lookAlikeMatch(query, text), expected);
        const LookAlikeText stored(text, alphabet);
        const auto packed = LookAlikeMatcher(query, alphabet).find(stored);
        ASSERT_EQ(packed ? static_cast<qsizetype>(*packed) : -1, expected ? expected->start : -1);
    }
    EXPECT_GT(matches, 5000);
    EXPECT_LT(matches, 25'000);
}

} // namespace
} // namespace vellumry
