// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/FilePlaces.h"

#include "foundation/FileUrl.h"
#include "foundation/Localisation.h"

#include <QStandardPaths>
#include <pwd.h>
#include <unistd.h>

namespace vellumry {

namespace {

QString userName() {
    // Cleared environments are common among desktop starters, so the account is asked and not $USER.
    const passwd* account = getpwuid(getuid());
    return account ? QString::fromLocal8Bit(account->pw_name) : QString();
}

FilePlaces placesWith(const QString& desktop, const QString& documents, const QString& downloads, const QString& trash,
                      const QString& user) {
    FilePlaces places;
    places.personal = {{fileurl::standardized(desktop), localised("Desktop")},
                       {fileurl::standardized(documents), localised("Documents")},
                       {fileurl::standardized(downloads), localised("Downloads")}};
    places.others = {fileurl::standardized(trash)};
    if (!user.isEmpty())
        places.volumeRoots = {QStringLiteral("/media/") + user, QStringLiteral("/run/media/") + user};
    places.volumeRoots.append(QStringLiteral("/mnt"));
    return places;
}

} // namespace

FilePlaces FilePlaces::ofUser(const QString& home) {
    const auto folder = [&home](QStandardPaths::StandardLocation location, const QString& usual) {
        const QString path = QStandardPaths::writableLocation(location);
        // A folder that was switched off is set to the home folder itself, which is no protected place.
        const bool isSet = !path.isEmpty() && fileurl::standardized(path) != fileurl::standardized(home);
        return isSet ? path : home + usual;
    };
    return placesWith(folder(QStandardPaths::DesktopLocation, QStringLiteral("/Desktop")),
                      folder(QStandardPaths::DocumentsLocation, QStringLiteral("/Documents")),
                      folder(QStandardPaths::DownloadLocation, QStringLiteral("/Downloads")),
                      QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Trash"),
                      userName());
}

FilePlaces FilePlaces::underHome(const QString& home, const QString& user) {
    return placesWith(home + QStringLiteral("/Desktop"), home + QStringLiteral("/Documents"),
                      home + QStringLiteral("/Downloads"), home + QStringLiteral("/.local/share/Trash"), user);
}

std::optional<QString> FilePlaces::volumeOf(const QString& path) const {
    for (const QString& root : volumeRoots) {
        const QString prefix = root + u'/';
        if (!path.startsWith(prefix))
            continue;
        const QString name = path.mid(prefix.size()).section(u'/', 0, 0);
        if (!name.isEmpty())
            return prefix + name;
    }
    return std::nullopt;
}

bool isAtOrUnder(const QString& path, const QString& folder) {
    return path == folder || path.startsWith(folder + u'/');
}

} // namespace vellumry
