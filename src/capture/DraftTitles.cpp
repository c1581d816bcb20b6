// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/DraftTitles.h"

#include "foundation/InterfaceLocale.h"
#include "foundation/Localisation.h"
#include "foundation/Text.h"

#include <QDateTime>

namespace vellumry {

namespace {

constexpr qsizetype longestTitle = 300;

} // namespace

QString titleOf(const QString& text) {
    qsizetype begin = 0;
    while (begin < text.size()) {
        // Line by line in place: a copy of many megabytes has its title at its very beginning.
        qsizetype end = begin;
        while (end < text.size() && !text::isNewline(text[end].unicode()))
            ++end;
        if (!text::isBlank(QStringView(text).sliced(begin, end - begin)))
            return text::firstCharacters(text::trimmedOfWhitespace(text.mid(begin, end - begin)), longestTitle);
        begin = end + 1;
    }
    return QString();
}

QString imageTitle(int width, int height) {
    return localised("Image %1 × %2").arg(QString::number(width), QString::number(height));
}

QString imageTitle(const std::optional<QSize>& pixelSize) {
    return pixelSize ? imageTitle(pixelSize->width(), pixelSize->height()) : localised("Image");
}

QString screenshotTitle(Date date, const QTimeZone& zone, const QLocale& locale) {
    const QDateTime moment = QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(date * 1000.0), zone);
    return localised("Screenshot %1 at %2")
        .arg(moment.date().toString(Qt::ISODate), locale.toString(moment.time(), QLocale::ShortFormat));
}

QString screenshotTitle(Date date) {
    return screenshotTitle(date, QTimeZone::systemTimeZone(), interfaceLocale());
}

QString filesTitle(const std::vector<FileRef>& files) {
    if (files.size() == 1)
        return files.front().name;
    return localised("%1 and %n more", int(files.size() - 1)).arg(files.front().name);
}

} // namespace vellumry
