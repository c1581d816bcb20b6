// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/process/XdgLoginItem.h"

#include "foundation/Logging.h"
#include "linux/process/AppImage.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSaveFile>
#include <QStandardPaths>

namespace vellumry {

namespace {

const QString fileName = QStringLiteral("com.vellumry.Vellumry.desktop");

/// An entry is a few hundred bytes; what is longer, or no file at all, is none.
constexpr qint64 longestEntry = 64 * 1024;

/// The keys of the entry; none when it is missing or cannot be read.
QHash<QString, QString> keysOf(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    QHash<QString, QString> keys;
    bool isInEntry = false;
    for (const QByteArray& raw : file.read(longestEntry).split('\n')) {
        const QString line = QString::fromUtf8(raw).trimmed();
        if (line.startsWith(u'['))
            isInEntry = line == QLatin1String("[Desktop Entry]");
        else if (const qsizetype equals = line.indexOf(u'='); isInEntry && equals > 0 && !line.startsWith(u'#'))
            keys.insert(line.left(equals).trimmed(), line.mid(equals + 1).trimmed());
    }
    return keys;
}

bool startsSomething(const QHash<QString, QString>& keys) {
    const auto says = [&keys](const char* key, const char* value) {
        return keys.value(QString::fromLatin1(key)).compare(QLatin1String(value), Qt::CaseInsensitive) == 0;
    };
    return !keys.value(QStringLiteral("Exec")).isEmpty() && !says("Hidden", "true") &&
           !says("X-GNOME-Autostart-enabled", "false");
}

/// A value of a desktop entry: its own escapes (Desktop Entry Specification 1.5, "Possible value types").
QString stringValue(QString text) {
    return text.replace(u'\\', QStringLiteral("\\\\")).replace(u'\n', QStringLiteral("\\n"));
}

/// A program's path as the first word of a command ("The Exec key"), before the escapes of every string.
QString quoted(const QString& path) {
    QString result;
    for (const QChar character : path) {
        if (QStringLiteral("\"`$\\").contains(character))
            result += u'\\';
        if (character == u'%')
            result += u'%';
        result += character;
    }
    return u'"' + result + u'"';
}

QByteArray entryFor(const QString& program) {
    return QStringLiteral("[Desktop Entry]\n"
                          "Type=Application\n"
                          "Name=Vellumry\n"
                          "Icon=com.vellumry.Vellumry\n"
                          "Exec=%1\n"
                          "TryExec=%2\n"
                          "X-GNOME-Autostart-enabled=true\n")
        .arg(stringValue(quoted(program)), stringValue(program))
        .toUtf8();
}

} // namespace

XdgLoginItem::Places XdgLoginItem::Places::ofUser() {
    const QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    Places places;
    for (const QString& folder : folders)
        places.systemFolders.append(folder + QStringLiteral("/autostart"));
    places.userFolder = places.systemFolders.takeFirst();
    const QString appImage = runningAppImage();
    places.program = appImage.isEmpty() ? QCoreApplication::applicationFilePath() : appImage;
    return places;
}

XdgLoginItem::XdgLoginItem(Places places)
    : m_places(std::move(places)) {}

QString XdgLoginItem::file() const {
    return m_places.userFolder + u'/' + fileName;
}

/// The first entry of that name the system has; the user's own comes before it.
QString XdgLoginItem::systemFile() const {
    for (const QString& folder : m_places.systemFolders) {
        const QString path = folder + u'/' + fileName;
        if (QFile::exists(path))
            return path;
    }
    return QString();
}

bool XdgLoginItem::isEnabled() const {
    return startsSomething(keysOf(QFileInfo::exists(file()) ? file() : systemFile()));
}

bool XdgLoginItem::write(const QByteArray& text) const {
    // On a new account the autostart folder does not exist yet.
    if (!QDir().exists(m_places.userFolder) && !QDir().mkpath(m_places.userFolder))
        return false;
    QSaveFile entry(file());
    // Without flush() an entry that found no room on the disk would be taken for a whole one.
    if (entry.open(QIODevice::WriteOnly) && entry.write(text) == text.size() && entry.flush() && entry.commit())
        return true;
    qCWarning(logging::process).noquote() << "the login item cannot be written:" << entry.errorString();
    return false;
}

bool XdgLoginItem::setEnabled(bool isWanted) {
    if (isEnabled() == isWanted && (isWanted || !QFileInfo::exists(file())))
        return true;
    if (isWanted)
        return write(entryFor(m_places.program));
    if (!systemFile().isEmpty())
        return write("[Desktop Entry]\nType=Application\nName=Vellumry\nHidden=true\n");
    return QFile::remove(file()) || !isEnabled();
}

void XdgLoginItem::follow() {
    const QString started =
        keysOf(file()).value(QStringLiteral("TryExec")).replace(QStringLiteral("\\\\"), QStringLiteral("\\"));
    if (isEnabled() && !started.isEmpty() && started != m_places.program && !QFile::exists(started))
        (void)write(entryFor(m_places.program));
}

} // namespace vellumry
