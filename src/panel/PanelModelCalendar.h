// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Date.h"

#include <QDate>
#include <QLocale>
#include <QString>
#include <QTimeZone>
#include <functional>

namespace vellumry {

/// The user's clock, time zone and language, for naming days. Asked anew each time, so that a journey or midnight
/// counts.
struct PanelModelCalendar {
    Clock now = currentDate;
    std::function<QTimeZone()> timeZone = QTimeZone::systemTimeZone;
    std::function<QLocale()> locale = [] { return QLocale(); };
};

/// From `start` on, up to but without `end`.
struct DayInterval {
    Date start = 0;
    Date end = 0;
    [[nodiscard]] bool contains(Date date) const { return date >= start && date < end; }
};

/// The heading under which the clips of one day stand.
struct DayLabel {
    QString id;    ///< the same for all dates of a day: "today", "yesterday", "day-" and the seconds of the day's start
    QString title; ///< in the user's language
    bool operator==(const DayLabel&) const = default;
};

[[nodiscard]] QDate dayOf(Date date, const QTimeZone& zone);
/// The day around `date`; 23 or 25 hours long where the clocks change.
[[nodiscard]] DayInterval dayInterval(Date date, const QTimeZone& zone);
/// "Today", "Yesterday", the weekday within the last six days (and for what lies ahead), else day and month, with the
/// year if it is not this one.
[[nodiscard]] DayLabel dayLabel(Date date, Date now, const QTimeZone& zone, const QLocale& locale);

} // namespace vellumry
