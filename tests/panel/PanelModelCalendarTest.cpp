// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelModelCalendar.h"
#include "panel/PanelModelDayFormat.h"

#include <QDateTime>
#include <gtest/gtest.h>

namespace vellumry {

namespace {

const QTimeZone berlin("Europe/Berlin");
const QLocale english(QStringLiteral("en_US"));

Date at(int year, int month, int day, int hour, int minute, const QTimeZone& zone = berlin) {
    return Date(QDateTime(QDate(year, month, day), QTime(hour, minute), zone).toSecsSinceEpoch());
}

DayLabel labelOf(Date date, Date now, const QLocale& locale = english) {
    return dayLabel(dayAround(date, berlin), dayAround(now, berlin).date, PanelModelDayFormat(locale));
}

QString title(Date date, Date now, const QLocale& locale = english) {
    return labelOf(date, now, locale).title;
}

QString idOf(Date start) {
    return QStringLiteral("day-%1").arg(qint64(start));
}

} // namespace

TEST(PanelModelCalendar, NamesTodayAndYesterdayByTheCalendarAndNotByHours) {
    const auto now = at(2023, 11, 15, 0, 5);
    EXPECT_EQ(labelOf(at(2023, 11, 15, 0, 0), now, english),
              (DayLabel{QStringLiteral("today"), QStringLiteral("Today")}));
    EXPECT_EQ(labelOf(at(2023, 11, 14, 23, 59), now, english),
              (DayLabel{QStringLiteral("yesterday"), QStringLiteral("Yesterday")}));
}

TEST(PanelModelCalendar, NamesTheWeekdayForSixDays) {
    const auto now = at(2023, 11, 15, 12, 0);
    EXPECT_EQ(title(at(2023, 11, 13, 12, 0), now), QStringLiteral("Monday"));
    EXPECT_EQ(title(at(2023, 11, 9, 0, 0), now), QStringLiteral("Thursday"));
    EXPECT_EQ(title(at(2023, 11, 8, 23, 59), now), QStringLiteral("Nov 8"));
}

TEST(PanelModelCalendar, NamesTheWeekdayOfWhatLiesAhead) {
    EXPECT_EQ(title(at(2023, 11, 17, 12, 0), at(2023, 11, 15, 12, 0)), QStringLiteral("Friday"));
}

TEST(PanelModelCalendar, AddsTheYearWhenItIsAnother) {
    EXPECT_EQ(title(at(2022, 11, 8, 12, 0), at(2023, 11, 15, 12, 0)), QStringLiteral("Nov 8, 2022"));
    EXPECT_EQ(title(at(2023, 12, 30, 12, 0), at(2024, 1, 2, 12, 0)), QStringLiteral("Saturday"));
    EXPECT_EQ(title(at(2023, 12, 20, 12, 0), at(2024, 1, 2, 12, 0)), QStringLiteral("Dec 20, 2023"));
}

TEST(PanelModelCalendar, UsesTheOrderAndTheWordsOfTheLanguage) {
    const auto now = at(2023, 11, 15, 12, 0);
    const QLocale german(QStringLiteral("de_DE"));
    EXPECT_EQ(title(at(2023, 11, 13, 12, 0), now, german), QStringLiteral("Montag"));
    EXPECT_EQ(title(at(2023, 3, 8, 12, 0), now, german), QStringLiteral("8. März"));
    EXPECT_EQ(title(at(2022, 3, 8, 12, 0), now, german), QStringLiteral("8. März 2022"));
}

TEST(PanelModelCalendar, TheIdIsTheStartOfTheDay) {
    const auto now = at(2023, 11, 15, 12, 0);
    const auto start = at(2023, 11, 12, 0, 0);
    EXPECT_EQ(labelOf(start, now, english).id, idOf(start));
    EXPECT_EQ(labelOf(at(2023, 11, 12, 23, 59), now, english).id, idOf(start));
}

TEST(PanelModelCalendar, ADayIsAsLongAsTheClocksMakeIt) {
    const auto spring = dayAround(at(2023, 3, 26, 12, 0), berlin);
    EXPECT_EQ(spring.end - spring.start, 23 * 3600.0);
    const auto autumn = dayAround(at(2023, 10, 29, 12, 0), berlin);
    EXPECT_EQ(autumn.end - autumn.start, 25 * 3600.0);
    EXPECT_TRUE(autumn.contains(autumn.start));
    EXPECT_FALSE(autumn.contains(autumn.end));
}

} // namespace vellumry
