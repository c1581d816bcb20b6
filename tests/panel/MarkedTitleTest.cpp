// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/MarkedTitle.h"

#include <gtest/gtest.h>

using namespace vellumry;

namespace {

QString marked(const char* title, const char* query) {
    return markedTitle(QString::fromUtf8(title), QString::fromUtf8(query));
}

} // namespace

TEST(MarkedTitle, WithoutAQueryTheTitleStandsAsItIs) {
    EXPECT_EQ(marked("plain", ""), QStringLiteral("plain"));
    EXPECT_EQ(marked("a < b & c", "  "), QStringLiteral("a &lt; b &amp; c"));
}

TEST(MarkedTitle, TheFirstHitIsBoldAsItIsWrittenInTheTitle) {
    EXPECT_EQ(marked("Crème brûlée", "creme"), QString::fromUtf8("<b>Crème</b> brûlée"));
    EXPECT_EQ(marked("x <tag> x", "<tag>"), QStringLiteral("x <b>&lt;tag&gt;</b> x"));
}

TEST(MarkedTitle, ATitleWithoutAHitIsNotMarked) {
    EXPECT_EQ(marked("apple", "pear"), QStringLiteral("apple"));
}

TEST(MarkedTitle, ATitleWhoseHitLiesFarBehindBeginsAtAWordShortlyBeforeIt) {
    EXPECT_EQ(marked("one two three four five six seven eight nine needle ten", "needle"),
              QString::fromUtf8("…eight nine <b>needle</b> ten"));
}

TEST(MarkedTitle, ALongWordBeforeAHitIsCutBetweenCharacters) {
    const QString title = QString::fromUtf8("😀").repeated(40) + QStringLiteral("needle");
    const QString shown = markedTitle(title, QStringLiteral("needle"));
    EXPECT_EQ(shown, QString::fromUtf8("…") + QString::fromUtf8("😀").repeated(7) + QStringLiteral("<b>needle</b>"));
}
