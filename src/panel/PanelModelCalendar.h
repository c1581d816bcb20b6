// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Date.h"
#include "foundation/InterfaceLocale.h"

#include <QDate>
#include <QLocale>
#include <QString>
#include <QTimeZone>
#include <functional>

namespace vellumry {

class PanelModelDayFormat;

/// The user's clock, time zone and language, for naming days. Asked anew each time, so that a journey or midnight
/// counts.
struct PanelModelCalendar {
    Clock now = currentDate;
    std::function<QTimeZone()> timeZone = QTimeZone::systemTimeZone;
    std::function<QLocale()> locale = interfaceLocale;
};

/// One day of the user's calendar: from `start` on, up to but without `end`.
struct CalendarDay {
    QDate date;
    Date start = 0;
    Date end = 0;
    [[nodiscard]] bool contains(Date moment) const { return moment >= start && moment < end; }
};

/// The heading under which the clips of one day stand.
struct DayLabel {
    QString id;    ///< the same for all dates of a day: "today", "yesterday", "day-" and the seconds of the day's start
    QString title; ///< in the user's language
    bool operator==(const DayLabel&) const = default;
};

/// The day around `moment`; 23 or 25 hours long where the clocks change.
[[nodiscard]] CalendarDay dayAround(Date moment, const QTimeZone& zone);
/// "Today", "Yesterday", the weekday within the last six days (and for what lies ahead), else day and month, with the
/// year if it is not this one.
[[nodiscard]] DayLabel dayLabel(const CalendarDay& day, QDate today, const PanelModelDayFormat& format);

} // namespace vellumry
