// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/SettingsLabels.h"

#include "foundation/InterfaceLocale.h"
#include "foundation/Localisation.h"

#include <algorithm>
#include <limits>

namespace vellumry::settingslabels {

namespace {

constexpr qint64 minute = 60;
constexpr qint64 hour = 3600;
constexpr qint64 day = 86'400;

/// The words count with an int; nothing sensible is larger.
QString counted(const char* key, qint64 count) {
    return localised(key, static_cast<int>(std::min<qint64>(count, std::numeric_limits<int>::max())));
}

} // namespace

QString days(qint64 count) {
    switch (count) {
    case 0:
        return localised("Forever");
    case 1:
        return localised("1 day");
    case 7:
        return localised("1 week");
    case 30:
        return localised("1 month");
    case 90:
        return localised("3 months");
    case 365:
        return localised("1 year");
    default:
        return counted("%n days", count);
    }
}

QString clips(qint64 count) {
    return counted("%n clips", count);
}

QString megabytes(qint64 count) {
    if (count % 1024 == 0)
        return localised("%1 GB").arg(interfaceLocale().toString(count / 1024));
    return localised("%1 MB").arg(interfaceLocale().toString(count));
}

QString lifetime(qint64 seconds) {
    if (seconds < minute)
        return counted("After %n seconds", seconds);
    if (seconds < hour)
        return counted("After %n minutes", seconds / minute);
    return counted("After %n hours", seconds / hour);
}

QString recent(qint64 count) {
    return count == 0 ? localised("None") : interfaceLocale().toString(count);
}

QString lastChecked(double secondsAgo) {
    const auto seconds = static_cast<qint64>(std::clamp(secondsAgo, 0.0, 1e12));
    if (seconds < minute)
        return localised("Last checked just now");
    if (seconds < hour)
        return counted("Last checked %n minutes ago", seconds / minute);
    if (seconds < day)
        return counted("Last checked %n hours ago", seconds / hour);
    return counted("Last checked %n days ago", seconds / day);
}

QString appearance(qint64 value) {
    switch (value) {
    case 1:
        return localised("Light");
    case 2:
        return localised("Dark");
    default:
        return localised("System");
    }
}

} // namespace vellumry::settingslabels
