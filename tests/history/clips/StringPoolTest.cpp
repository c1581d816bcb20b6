// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/StringPool.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

TEST(StringPool, EqualNamesShareTheirCharacters) {
    StringPool pool;
    const QString first = pool.sharedAscii("Terminal");
    EXPECT_EQ(pool.sharedAscii("Terminal").constData(), first.constData());
    EXPECT_EQ(pool.shared(QStringLiteral("Terminal")).constData(), first.constData());
}

TEST(StringPool, NamesThatTakeTurnsInOnePlaceStayApartAndShared) {
    StringPool pool;
    const QString first = pool.sharedAscii("a mail b");
    const QString second = pool.sharedAscii("b mail a");
    EXPECT_EQ(first, QStringLiteral("a mail b"));
    EXPECT_EQ(second, QStringLiteral("b mail a"));
    EXPECT_EQ(pool.sharedAscii("a mail b").constData(), first.constData());
    EXPECT_EQ(pool.sharedAscii("b mail a").constData(), second.constData());
}

TEST(StringPool, AnEmptyNameIsOne) {
    StringPool pool;
    EXPECT_FALSE(pool.sharedAscii("").isNull());
}

} // namespace
} // namespace vellumry
