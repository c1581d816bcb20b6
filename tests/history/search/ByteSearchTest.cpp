// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/search/ByteSearch.h"

#include <array>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace vellumry {
namespace {

/// The bytes stand at the end of memory of their own, so that a sanitizer sees a read behind them.
qsizetype indexOf(const QByteArray& needle, const QByteArray& bytes) {
    const std::vector<char> exact(bytes.begin(), bytes.end());
    const char* const hit = ByteSearch(needle).find(exact.data(), exact.data() + exact.size());
    return hit == nullptr ? -1 : hit - exact.data();
}

TEST(ByteSearch, FindsTheFirstOfSeveralPlaces) {
    EXPECT_EQ(indexOf("ab", "xxabxxab"), 2);
}

TEST(ByteSearch, FindsNothingInLessThanTheNeedle) {
    EXPECT_EQ(indexOf("abc", "ab"), -1);
    EXPECT_EQ(indexOf("a", ""), -1);
}

TEST(ByteSearch, FindsANeedleThatIsAllThereIs) {
    EXPECT_EQ(indexOf("a", "a"), 0);
    EXPECT_EQ(indexOf("needle", "needle"), 0);
}

TEST(ByteSearch, FindsTheNeedleAtEveryPlaceOfALongText) {
    for (const QByteArray needle : {"z", "zq", "ezt", "zazaz", "a needle as long as two lanes of comparison"}) {
        for (qsizetype place = 0; place < 150; ++place) {
            QByteArray bytes(place, 'a');
            bytes += needle + QByteArray(150 - place, 'a');
            EXPECT_EQ(indexOf(needle, bytes), place) << needle.constData();
        }
    }
}

TEST(ByteSearch, TakesZerosAndHighBytesLikeAnyOther) {
    EXPECT_EQ(indexOf(QByteArray("\0\xff", 2), QByteArray("a\0b\0\xff", 5)), 3);
}

TEST(ByteSearch, AgreesWithAPlainSearchOnRandomBytes) {
    std::mt19937 random(20);
    const auto bytesOf = [&](int length, int letters) {
        QByteArray bytes;
        for (int count = 0; count < length; ++count)
            bytes += static_cast<char>('a' + random() % static_cast<unsigned>(letters));
        return bytes;
    };
    for (int round = 0; round < 20'000; ++round) {
        const int letters = 1 + round % 4;
        const QByteArray bytes = bytesOf(static_cast<int>(random() % 200), letters);
        const QByteArray needle = bytesOf(1 + static_cast<int>(random() % 8), letters);
        ASSERT_EQ(indexOf(needle, bytes), bytes.indexOf(needle)) << needle.constData() << " in " << bytes.constData();
    }
}

TEST(ByteSearch, InAnyCaseAgreesWithASearchOfTheLowerCase) {
    constexpr std::array letters{'a', 'A', 'z', 'Z', '[', '{', '@', '`'};
    std::mt19937 random(21);
    const auto bytesOf = [&](int length) {
        QByteArray bytes;
        for (int count = 0; count < length; ++count)
            bytes += letters.at(random() % letters.size());
        return bytes;
    };
    for (int round = 0; round < 20'000; ++round) {
        const QByteArray bytes = bytesOf(static_cast<int>(random() % 200));
        const QByteArray needle = bytesOf(1 + static_cast<int>(random() % 4)).toLower();
        const char* const hit = ByteSearch(needle).findInAnyCase(bytes.constData(), bytes.constData() + bytes.size());
        ASSERT_EQ(hit ? hit - bytes.constData() : -1, bytes.toLower().indexOf(needle))
            << needle.constData() << " in " << bytes.constData();
    }
}

} // namespace
} // namespace vellumry
