// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelModelDayFormat.h"

#include <QDateTime>
#include <QTimeZone>
#include <unicode/dtptngen.h>
#include <unicode/smpdtfmt.h>

namespace vellumry {

struct PanelModelDayFormat::Private {
    std::unique_ptr<icu::SimpleDateFormat> dayAndMonth;
    std::unique_ptr<icu::SimpleDateFormat> dayMonthAndYear;
};

namespace {

/// A format with the fields that `skeleton` names (CLDR), in the order and with the words of the language. Null without
/// data.
std::unique_ptr<icu::SimpleDateFormat> formatFor(const char16_t* skeleton, const QLocale& locale) {
    UErrorCode error = U_ZERO_ERROR;
    const icu::Locale icuLocale(locale.bcp47Name().toLatin1().constData());
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(icuLocale, error));
    if (U_FAILURE(error))
        return nullptr;
    const icu::UnicodeString pattern = generator->getBestPattern(icu::UnicodeString(skeleton), error);
    auto format = std::make_unique<icu::SimpleDateFormat>(pattern, icuLocale, error);
    if (U_FAILURE(error))
        return nullptr;
    format->adoptTimeZone(icu::TimeZone::getGMT()->clone());
    return format;
}

} // namespace

PanelModelDayFormat::PanelModelDayFormat(const QLocale& locale)
    : m_locale(locale)
    , d(std::make_unique<Private>()) {}

PanelModelDayFormat::~PanelModelDayFormat() = default;

QString PanelModelDayFormat::weekday(QDate day) const {
    return m_locale.standaloneDayName(day.dayOfWeek(), QLocale::LongFormat);
}

QString PanelModelDayFormat::dayAndMonth(QDate day) const {
    if (!d->dayAndMonth)
        d->dayAndMonth = formatFor(u"dMMM", m_locale);
    return write(day, d->dayAndMonth.get());
}

QString PanelModelDayFormat::dayMonthAndYear(QDate day) const {
    if (!d->dayMonthAndYear)
        d->dayMonthAndYear = formatFor(u"dMMMy", m_locale);
    return write(day, d->dayMonthAndYear.get());
}

QString PanelModelDayFormat::write(QDate day, const icu::SimpleDateFormat* format) const {
    if (!format)
        return m_locale.toString(day, QLocale::ShortFormat);
    icu::UnicodeString text;
    format->format(UDate(day.startOfDay(QTimeZone::utc()).toMSecsSinceEpoch()), text);
    return QString::fromUtf16(text.getBuffer(), text.length());
}

} // namespace vellumry
