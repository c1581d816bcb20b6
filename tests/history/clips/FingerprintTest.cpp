// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/Fingerprint.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

TEST(Fingerprint, TheTextOfTheFileComesBackUnchanged) {
    const QByteArray text = "00ff7f80deadbeef0123456789abcdef0123456789abcdef0123456789abcde0";
    EXPECT_EQ(Fingerprint::ofText(text).toString(), QString::fromLatin1(text));
    EXPECT_EQ(Fingerprint::ofText(text), Fingerprint::ofCode(QByteArray::fromHex(text)));
}

TEST(Fingerprint, OtherTextsAreToldApart) {
    const QByteArray text(64, 'a');
    const std::vector<QByteArray> others{
        "", "a", text.toUpper(), text + 'a', text.first(63), text.first(63) + 'g', text.first(63) + '\xE1', text};
    for (const QByteArray& one : others)
        for (const QByteArray& other : others)
            EXPECT_EQ(Fingerprint::ofText(one) == Fingerprint::ofText(other), one == other)
                << one.constData() << ' ' << other.constData();
}

} // namespace
} // namespace vellumry
