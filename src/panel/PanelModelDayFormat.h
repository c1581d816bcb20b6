// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QLocale>
#include <QString>
#include <memory>
#include <unicode/uversion.h>

U_NAMESPACE_BEGIN
class SimpleDateFormat;
U_NAMESPACE_END

namespace vellumry {

/// Writes days the way a language does. Kept by its user: finding out how a language writes dates takes a while, and
/// writing one does not. Main thread.
class PanelModelDayFormat {
public:
    explicit PanelModelDayFormat(const QLocale& locale);
    ~PanelModelDayFormat();
    PanelModelDayFormat(const PanelModelDayFormat&) = delete;
    PanelModelDayFormat& operator=(const PanelModelDayFormat&) = delete;

    [[nodiscard]] const QLocale& locale() const { return m_locale; }
    /// The whole name of the day of the week.
    [[nodiscard]] QString weekday(QDate day) const;
    /// Day and short month, in the language's order.
    [[nodiscard]] QString dayAndMonth(QDate day) const;
    [[nodiscard]] QString dayMonthAndYear(QDate day) const;

private:
    [[nodiscard]] QString write(QDate day, const icu::SimpleDateFormat* format) const;

    struct Private;
    QLocale m_locale;
    std::unique_ptr<Private> d;
};

} // namespace vellumry
