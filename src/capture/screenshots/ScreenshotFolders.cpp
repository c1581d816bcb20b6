// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/screenshots/ScreenshotFolders.h"

#include "capture/screenshots/ScreenshotNames.h"
#include "foundation/FileUrl.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace vellumry {

namespace {

constexpr qsizetype mostFolders = 8;
constexpr qint64 longestSettings = 256 * 1024;

/// The values of `key` in a file of `key=value` lines, whatever group they stand in.
QStringList valuesOf(const QString& file, const QString& key) {
    QFile settings(file);
    if (!settings.open(QIODevice::ReadOnly))
        return {};
    QStringList values;
    for (const QString& line : QString::fromUtf8(settings.read(longestSettings)).split(u'\n')) {
        const qsizetype equals = line.indexOf(u'=');
        // KDE writes marks such as [$e] behind the key.
        if (equals > 0 && line.left(equals).section(u'[', 0, 0).trimmed() == key)
            values.append(line.mid(equals + 1).trimmed());
    }
    return values;
}

/// A folder as settings write it: a path, a `file:` URL, in quotes, with the home folder abbreviated.
QString pathOf(QString value, const QString& home) {
    if (value.size() >= 2 && value.startsWith(u'"') && value.endsWith(u'"'))
        value = value.mid(1, value.size() - 2);
    if (const std::optional<QString> path = fileurl::pathOf(value.toUtf8()))
        return *path;
    for (const QString& abbreviation : {QStringLiteral("$HOME"), QStringLiteral("~")}) {
        if (value == abbreviation || value.startsWith(abbreviation + u'/'))
            value = home + value.mid(abbreviation.size());
    }
    return value.startsWith(u'/') ? fileurl::standardized(value) : QString();
}

} // namespace

ScreenshotFolders ScreenshotFolders::ofUser() {
    ScreenshotFolders folders;
    folders.home = QDir::homePath();
    folders.configHome = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    folders.pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    folders.variable = qEnvironmentVariable("XDG_SCREENSHOTS_DIR");
    return folders;
}

QStringList ScreenshotFolders::list() const {
    struct Setting {
        const char16_t* file;
        const char16_t* key;
    };
    constexpr Setting settings[] = {
        {u"user-dirs.dirs", u"XDG_SCREENSHOTS_DIR"}, {u"spectaclerc", u"imageSaveLocation"},
        {u"spectaclerc", u"defaultSaveLocation"},    {u"xfce4/xfce4-screenshooter", u"screenshot_dir"},
        {u"flameshot/flameshot.ini", u"savePath"},
    };
    QStringList named{variable};
    for (const Setting& setting : settings)
        named += valuesOf(configHome + u'/' + QString::fromUtf16(setting.file), QString::fromUtf16(setting.key));

    QStringList folders;
    const auto add = [&folders, this](const QString& path) {
        // The home folder itself holds everything else a user does.
        if (!path.isEmpty() && path != fileurl::standardized(home) && path != u"/" && !folders.contains(path) &&
            folders.size() < mostFolders)
            folders.append(path);
    };
    for (const QString& value : named) {
        if (const QString path = pathOf(value, home); QFileInfo(path).isDir())
            add(path);
    }
    const QString standard = fileurl::standardized(pictures);
    if (standard.isEmpty() || standard == fileurl::standardized(home)) {
        add(fileurl::standardized(home + QStringLiteral("/Pictures/Screenshots")));
        return folders;
    }
    add(standard + QStringLiteral("/Screenshots"));
    add(standard);
    for (const QString& name : QDir(standard).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (screenshotnames::isScreenshotFolderName(name))
            add(standard + u'/' + name);
    }
    return folders;
}

} // namespace vellumry
