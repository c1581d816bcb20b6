// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/HexDigits.h"

#include <QByteArray>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

TEST(HexDigits, EveryPairOfDigitsAtEveryPlaceIsReadAsQtReadsIt) {
    const QByteArray digits("0123456789abcdef");
    for (qsizetype place = 0; place < 8; place += 2) {
        for (const char high : digits) {
            for (const char low : digits) {
                QByteArray text("0f1e9a5c");
                text[place] = high;
                text[place + 1] = low;
                QByteArray bytes(4, '\0');
                ASSERT_TRUE(hexdigits::readEight(text.constData(), bytes.data())) << text.constData();
                EXPECT_EQ(bytes, QByteArray::fromHex(text));
            }
        }
    }
}

TEST(HexDigits, EveryOtherByteIsRefusedAtEveryPlace) {
    for (qsizetype place = 0; place < 8; ++place) {
        for (int byte = 0; byte < 256; ++byte) {
            QByteArray text("0f1e9a5c");
            text[place] = static_cast<char>(byte);
            QByteArray bytes(4, '\0');
            const bool isDigit = (byte >= '0' && byte <= '9') || (byte >= 'a' && byte <= 'f');
            EXPECT_EQ(hexdigits::readEight(text.constData(), bytes.data()), isDigit) << byte << " at " << place;
        }
    }
}

} // namespace
} // namespace vellumry
