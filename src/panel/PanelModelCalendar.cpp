// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelModelCalendar.h"

#include "foundation/Localisation.h"
#include "panel/PanelModelDayFormat.h"

#include <QDateTime>
#include <cmath>

namespace vellumry {

namespace {

Date startOf(QDate day, const QTimeZone& zone) {
    return Date(day.startOfDay(zone).toMSecsSinceEpoch()) / 1000;
}

} // namespace

CalendarDay dayAround(Date moment, const QTimeZone& zone) {
    const QDate date = QDateTime::fromMSecsSinceEpoch(qint64(std::floor(moment * 1000)), zone).date();
    return {date, startOf(date, zone), startOf(date.addDays(1), zone)};
}

DayLabel dayLabel(const CalendarDay& day, QDate today, const PanelModelDayFormat& format) {
    const qint64 age = day.date.daysTo(today);
    if (age == 0)
        return {QStringLiteral("today"), localised("Today")};
    if (age == 1)
        return {QStringLiteral("yesterday"), localised("Yesterday")};

    const QString id = QStringLiteral("day-") + QString::number(qint64(std::floor(day.start)));
    if (age <= 6)
        return {id, format.weekday(day.date)};
    return {id, day.date.year() == today.year() ? format.dayAndMonth(day.date) : format.dayMonthAndYear(day.date)};
}

} // namespace vellumry
