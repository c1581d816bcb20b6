// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Utf16Bytes.h"

#include <QtEndian>
#include <array>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

QByteArray bigEndian(const QString& string) {
    QByteArray bytes(string.size() * 2, Qt::Uninitialized);
    qToBigEndian<char16_t>(string.utf16(), string.size(), bytes.data());
    return bytes;
}

TEST(Utf16Bytes, ConvertsEveryCodePointAsQtDoes) {
    for (char32_t scalar = 0; scalar <= 0x10FFFF; ++scalar) {
        if (QChar::isSurrogate(scalar))
            continue;
        const QString string = QString::fromUcs4(&scalar, 1);
        ASSERT_EQ(utf16bytes::toUtf8(bigEndian(string)), string.toUtf8()) << static_cast<quint32>(scalar);
        ASSERT_EQ(utf16bytes::toString(bigEndian(string)), string);
    }
}

TEST(Utf16Bytes, ConvertsRunsOfAllKinds) {
    const QString string = u"a\0bäßπ語\U0001F600z\uFFFF\U0010FFFF"_s;
    EXPECT_EQ(utf16bytes::toUtf8(bigEndian(string)), string.toUtf8());
    EXPECT_EQ(utf16bytes::toUtf8(QByteArrayView()), QByteArray());
}

/// Text of `length` characters that change their kind now and then, as foreign words in a sentence do.
QString mixedText(std::mt19937& random, int length) {
    const std::array<std::pair<char32_t, char32_t>, 6> kinds{
        {{0x20, 0x7F}, {0x80, 0x7FF}, {0x400, 0x45F}, {0x800, 0xD7FF}, {0xE000, 0xFFFF}, {0x10000, 0x10FFFF}}};
    std::pair<char32_t, char32_t> kind = kinds[random() % kinds.size()];
    std::u32string text;
    while (static_cast<int>(text.size()) < length) {
        if (random() % 6 == 0)
            kind = kinds[random() % kinds.size()];
        text += kind.first + static_cast<char32_t>(random() % (kind.second - kind.first + 1));
        if (random() % 8 == 0)
            text += U' ';
    }
    return QString::fromStdU32String(text);
}

TEST(Utf16Bytes, ConvertsLongMixedTextsAsQtDoesIntoExactlyTheirBytes) {
    std::mt19937 random(7);
    for (int round = 0; round < 3000; ++round) {
        const QString string = mixedText(random, round % 120);
        const auto converted = utf16bytes::toUtf8(bigEndian(string));
        ASSERT_EQ(converted, string.toUtf8()) << round;
        ASSERT_EQ(converted->constData()[converted->size()], '\0') << round;
    }
    const QString longText = mixedText(random, 400'000);
    EXPECT_EQ(utf16bytes::toUtf8(bigEndian(longText)), longText.toUtf8());
}

TEST(Utf16Bytes, RefusesALoneSurrogateAnywhereInALongText) {
    for (const char16_t kind : {u'a', u'\u0436', u'\u8A9E'}) {
        for (qsizetype at = 0; at < 40; ++at) {
            QString string(40, kind);
            string[at] = QChar(0xD83D);
            EXPECT_EQ(utf16bytes::toUtf8(bigEndian(string)), std::nullopt) << at;
        }
    }
}

TEST(Utf16Bytes, RefusesASurrogateThatStandsAlone) {
    for (const QByteArray& broken : {QByteArray("\xd8\x3d", 2), QByteArray("\xde\x00", 2), QByteArray("\xd8\x3d\0a", 4),
                                     QByteArray("\0a\xd8\x3d\xd8\x3d\xde\0", 8)})
        EXPECT_EQ(utf16bytes::toUtf8(broken), std::nullopt);
}

} // namespace
} // namespace vellumry
