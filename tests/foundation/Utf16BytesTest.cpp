// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Utf16Bytes.h"

#include <QtEndian>
#include <gtest/gtest.h>

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

TEST(Utf16Bytes, RefusesASurrogateThatStandsAlone) {
    for (const QByteArray& broken : {QByteArray("\xd8\x3d", 2), QByteArray("\xde\x00", 2), QByteArray("\xd8\x3d\0a", 4),
                                     QByteArray("\0a\xd8\x3d\xd8\x3d\xde\0", 8)})
        EXPECT_EQ(utf16bytes::toUtf8(broken), std::nullopt);
}

} // namespace
} // namespace vellumry
