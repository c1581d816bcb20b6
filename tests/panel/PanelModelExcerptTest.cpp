// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelModelExcerpt.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

std::optional<QString> excerpt(const char* query, const char* text, const char* title = "Image 640 × 480") {
    return imageTextExcerpt(QString::fromUtf8(query), QString::fromUtf8(title), QString::fromUtf8(text));
}

std::optional<QString> some(const char* text) {
    return QString::fromUtf8(text);
}

} // namespace

TEST(PanelModelExcerpt, NothingForABlankQueryOrATextWithoutTheHit) {
    EXPECT_EQ(excerpt("  ", "words"), std::nullopt);
    EXPECT_EQ(excerpt("words", ""), std::nullopt);
    EXPECT_EQ(excerpt("other", "words"), std::nullopt);
}

TEST(PanelModelExcerpt, NothingWhenTheTitleShowsTheHit) {
    EXPECT_EQ(excerpt("IMÁGE", "an image of an image"), std::nullopt);
}

TEST(PanelModelExcerpt, AShortTextIsShownWhole) {
    EXPECT_EQ(excerpt(" CAFE ", "a café here"), some("a café here"));
}

TEST(PanelModelExcerpt, CutsAtTheBeginningOfAWordBefore) {
    // 14 characters back from "needle" lies inside "manifold".
    EXPECT_EQ(excerpt("needle", "there are manifold words needle and much more that follows it here"),
              some("…words needle and much more that follows …"));
}

TEST(PanelModelExcerpt, CutsInsideAWordThatReachesUpToTheHit) {
    EXPECT_EQ(excerpt("needle", "abcdefghijklmnopqrstuvwxyzneedle"), some("…mnopqrstuvwxyzneedle"));
}

TEST(PanelModelExcerpt, KeepsAWordThatBeginsExactlyThere) {
    EXPECT_EQ(excerpt("needle", "x abcdefghijklm needle"), some("…abcdefghijklm needle"));
}

TEST(PanelModelExcerpt, LineFeedsBecomeBlanks) {
    EXPECT_EQ(excerpt("two", "one\ntwo\nthree"), some("one two three"));
}

// The formatter breaks strings of joined emoji anew each time.
// clang-format off
TEST(PanelModelExcerpt, CountsWholeCharacters) {
    EXPECT_EQ(excerpt("x", "👩‍👩‍👧👩‍👩‍👧👩‍👩‍👧👩‍👩‍👧👩‍👩‍👧👩‍👩‍👧👩‍👩‍👧👩‍👩"
                           "‍👧👩‍👩‍👧👩‍👩‍"
                           "👧"
                           "👩"
                           "‍👩‍👧👩‍👩‍👧👩‍👩‍👧👩‍👩‍👧👩‍👩‍👧x"),
              some("…👩‍👩‍👧👩‍👩‍👧👩‍👩‍👧👩‍👩‍👧👩‍👩‍👧👩‍👩‍👧👩‍👩‍👧👩‍👩‍👧👩"
                   "‍👩‍👧👩‍👩‍👧👩‍"
                   "👩"
                   "‍"
                   "👧👩‍👩‍👧👩‍👩‍👧👩‍👩‍👧x"));
}
// clang-format on

TEST(PanelModelExcerpt, ForgivesWhatTheReaderMixesUp) {
    EXPECT_EQ(excerpt("hello world", "say He110 W0r1d"), some("say He110 W0r1d"));
}

TEST(PanelModelExcerpt, FindsTheRangeAcrossFoldedCharacters) {
    const QString text = QStringLiteral("ＡＢＣ straße");
    EXPECT_EQ(foldedRange(QStringLiteral("bc"), text), (TextStretch{1, 3}));
    EXPECT_EQ(foldedRange(QString(), text), std::nullopt);
}

} // namespace vellumry
