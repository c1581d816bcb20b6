// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelModelCalendar.h"

#include "foundation/Localisation.h"

#include <QDateTime>
#include <cmath>
#include <memory>
#include <unicode/dtptngen.h>
#include <unicode/smpdtfmt.h>

namespace vellumry {

namespace {

Date startOf(QDate day, const QTimeZone& zone) {
    return Date(day.startOfDay(zone).toMSecsSinceEpoch()) / 1000;
}

/// `day` in the order and with the words of the locale's language, with the fields that `skeleton` names (CLDR).
QString inFieldsOf(const char16_t* skeleton, QDate day, const QLocale& locale) {
    UErrorCode error = U_ZERO_ERROR;
    const icu::Locale icuLocale(locale.bcp47Name().toLatin1().constData());
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(icuLocale, error));
    if (U_FAILURE(error))
        return locale.toString(day, QLocale::ShortFormat);
    const icu::UnicodeString pattern = generator->getBestPattern(icu::UnicodeString(skeleton), error);
    icu::SimpleDateFormat format(pattern, icuLocale, error);
    if (U_FAILURE(error))
        return locale.toString(day, QLocale::ShortFormat);
    format.adoptTimeZone(icu::TimeZone::getGMT()->clone());
    icu::UnicodeString text;
    format.format(UDate(day.startOfDay(Qt::UTC).toMSecsSinceEpoch()), text);
    return QString::fromUtf16(text.getBuffer(), text.length());
}

} // namespace

QDate dayOf(Date date, const QTimeZone& zone) {
    return QDateTime::fromMSecsSinceEpoch(qint64(std::floor(date * 1000)), zone).date();
}

DayInterval dayInterval(Date date, const QTimeZone& zone) {
    const QDate day = dayOf(date, zone);
    return {startOf(day, zone), startOf(day.addDays(1), zone)};
}

DayLabel dayLabel(Date date, Date now, const QTimeZone& zone, const QLocale& locale) {
    const QDate day = dayOf(date, zone);
    const QDate today = dayOf(now, zone);
    const qint64 age = day.daysTo(today);
    if (age == 0)
        return {QStringLiteral("today"), localised("Today")};
    if (age == 1)
        return {QStringLiteral("yesterday"), localised("Yesterday")};

    const QString id = QStringLiteral("day-") + QString::number(qint64(std::floor(startOf(day, zone))));
    if (age <= 6)
        return {id, locale.standaloneDayName(day.dayOfWeek(), QLocale::LongFormat)};
    return {id, inFieldsOf(day.year() == today.year() ? u"dMMM" : u"dMMMy", day, locale)};
}

} // namespace vellumry
