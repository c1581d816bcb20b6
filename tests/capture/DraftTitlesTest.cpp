// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/DraftTitles.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

TEST(TitleOf, IsTheFirstLineThatIsNotBlank) {
    EXPECT_EQ(titleOf(QStringLiteral("one\ntwo")), QStringLiteral("one"));
    EXPECT_EQ(titleOf(QStringLiteral("\r\n \t\n  two\t\nthree")), QStringLiteral("two"));
    EXPECT_EQ(titleOf(QStringLiteral("a\u2028b")), QStringLiteral("a"));
    EXPECT_EQ(titleOf(QString()), QString());
    EXPECT_EQ(titleOf(QStringLiteral(" \n\t\n")), QString());
}

TEST(TitleOf, HasAtMostThreeHundredCharacters) {
    EXPECT_EQ(titleOf(QString(300, u'a')).size(), 300);
    EXPECT_EQ(titleOf(QString(301, u'a')).size(), 300);
    // A family of four is one character of eleven units.
    const QString family = QStringLiteral("\U0001F468\u200D\U0001F469\u200D\U0001F467\u200D\U0001F466");
    EXPECT_EQ(titleOf(family.repeated(301)), family.repeated(300));
}

TEST(ImageTitle, GivesTheSizeInPixels) {
    EXPECT_EQ(imageTitle(640, 480), QStringLiteral("Image 640 × 480"));
    EXPECT_EQ(imageTitle(QSize(12000, 1)), QStringLiteral("Image 12000 × 1"));
    EXPECT_EQ(imageTitle(std::optional<QSize>()), QStringLiteral("Image"));
}

TEST(ScreenshotTitle, GivesDateAndShortTime) {
    // 2026-03-09 14:05:30 UTC
    const Date date = 1773065130.75;
    EXPECT_EQ(screenshotTitle(date, QTimeZone::utc(), QLocale(QLocale::German, QLocale::Germany)),
              QStringLiteral("Screenshot 2026-03-09 at 14:05"));
    EXPECT_EQ(screenshotTitle(date, QTimeZone(10 * 3600), QLocale(QLocale::German, QLocale::Germany)),
              QStringLiteral("Screenshot 2026-03-10 at 00:05"));
    EXPECT_TRUE(screenshotTitle(date, QTimeZone::utc(), QLocale(QLocale::English, QLocale::UnitedStates))
                    .startsWith(QStringLiteral("Screenshot 2026-03-09 at 2:05")));
}

TEST(FilesTitle, NamesTheFirstAndCountsTheOthers) {
    const FileRef first{QStringLiteral("/x/%1.txt"), QStringLiteral("%1.txt"), {}};
    const FileRef other{QStringLiteral("/x/b"), QStringLiteral("b"), {}};
    EXPECT_EQ(filesTitle({first}), QStringLiteral("%1.txt"));
    EXPECT_EQ(filesTitle({first, other}), QStringLiteral("%1.txt and 1 more"));
    EXPECT_EQ(filesTitle({first, other, other}), QStringLiteral("%1.txt and 2 more"));
}

} // namespace
} // namespace vellumry
