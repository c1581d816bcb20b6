// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/UserDefaults.h"

#include "foundation/IniFile.h"
#include "foundation/IniValue.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

namespace vellumry {

namespace {

/// What tells one state of a file from the next.
struct FileState {
    quint64 inode = 0;
    qint64 size = -1;
    qint64 changedNanoseconds = 0;
    bool operator==(const FileState&) const = default;
};

FileState stateOf(const QString& path) {
    struct stat status {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    return {status.st_ino, status.st_size, status.st_mtim.tv_sec * 1'000'000'000 + status.st_mtim.tv_nsec};
}

qint64 nowNanoseconds() {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return now.tv_sec * 1'000'000'000 + now.tv_nsec;
}

/// A file's time moves in steps of some milliseconds: two writes within one step look alike.
constexpr qint64 timeStampGrain = 50'000'000;

void makeFolderDurable(const QString& path) {
    const int folder = open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    (void)fsync(folder);
    close(folder);
}

bool makePrivateFolder(const QString& path) {
    if (QFileInfo(path).isDir())
        return true;
    if (!QDir().mkpath(QFileInfo(path).path()))
        return false;
    return mkdir(QFile::encodeName(path).constData(), S_IRWXU) == 0 || QFileInfo(path).isDir();
}

bool write(const QString& path, const QByteArray& content) {
    const QString folder = QFileInfo(path).absolutePath();
    if (!makePrivateFolder(folder))
        return false;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    if (file.write(content) != content.size() || !file.commit())
        return false;
    makeFolderDurable(folder);
    return true;
}

} // namespace

struct UserDefaults::Private {
    QString path; ///< empty: memory only
    QVariantMap registered;
    /// What this run has set and could not write; an invalid value stands for a removal. All values of a memory domain.
    QVariantMap unsaved;

    IniFile file;
    QVariantMap stored;
    FileState state;
    bool mayHaveChangedUnseen = false;

    /// Brings `file` and `stored` to what the disk holds now. False when the file is there and cannot be read.
    bool refresh() {
        if (path.isEmpty())
            return true;
        const FileState found = stateOf(path);
        if (found == state && !mayHaveChangedUnseen)
            return true;
        QByteArray content;
        if (found != FileState{}) {
            QFile source(path);
            if (!source.open(QIODevice::ReadOnly))
                return false;
            content = source.readAll();
        }
        mayHaveChangedUnseen = found != FileState{} && nowNanoseconds() - found.changedNanoseconds < timeStampGrain;
        state = found;
        file = IniFile(content);
        stored = file.values();
        return true;
    }

    void change(const QString& key, const QVariant& value) {
        unsaved.insert(key, value);
        if (path.isEmpty())
            return;
        // What another program wrote since stays: the change goes into the file as it is now.
        if (!refresh())
            return;
        IniFile changed = file;
        for (auto entry = unsaved.cbegin(); entry != unsaved.cend(); ++entry) {
            if (entry.value().isValid())
                changed.set(entry.key(), entry.value());
            else
                changed.remove(entry.key());
        }
        if (!write(path, changed.toBytes()))
            return;
        unsaved.clear();
        state = {};
        mayHaveChangedUnseen = true;
    }

    QVariant value(const QString& key) {
        if (const auto entry = unsaved.constFind(key); entry != unsaved.constEnd())
            return entry->isValid() ? *entry : registered.value(key);
        (void)refresh();
        if (const auto entry = stored.constFind(key); entry != stored.constEnd())
            return *entry;
        return registered.value(key);
    }
};

UserDefaults::UserDefaults(QString path)
    : d(std::make_unique<Private>()) {
    d->path = std::move(path);
}
UserDefaults::UserDefaults()
    : d(std::make_unique<Private>()) {}
UserDefaults::~UserDefaults() = default;

void UserDefaults::registerDefaults(const QVariantMap& values) {
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry)
        d->registered.insert(entry.key(), inivalue::normalized(entry.value()));
}

QVariant UserDefaults::object(const QString& key) const {
    return d->value(key);
}

std::optional<QString> UserDefaults::string(const QString& key) const {
    const QVariant value = object(key);
    if (value.typeId() != QMetaType::QString)
        return std::nullopt;
    return value.toString();
}

std::optional<QStringList> UserDefaults::stringArray(const QString& key) const {
    const QVariant value = object(key);
    if (value.typeId() == QMetaType::QStringList)
        return value.toStringList();
    if (value.typeId() != QMetaType::QString)
        return std::nullopt;
    const QString text = value.toString();
    return text.isEmpty() ? QStringList() : QStringList(text);
}

qint64 UserDefaults::integer(const QString& key) const {
    const QVariant value = object(key);
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::LongLong:
    case QMetaType::QString:
        return value.toLongLong();
    case QMetaType::Double: {
        const double real = value.toDouble();
        return real > -9.2e18 && real < 9.2e18 ? static_cast<qint64>(real) : 0;
    }
    default:
        return 0;
    }
}

bool UserDefaults::boolean(const QString& key) const {
    const QVariant value = object(key);
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::LongLong:
        return value.toLongLong() != 0;
    case QMetaType::Double:
        return value.toDouble() != 0;
    case QMetaType::QString: {
        const QString text = value.toString().toLower();
        return text == u"true" || text == u"yes" || text == u"on" || text == u"1";
    }
    default:
        return false;
    }
}

void UserDefaults::setObject(const QString& key, const QVariant& value) {
    d->change(key, inivalue::normalized(value));
}

void UserDefaults::removeObject(const QString& key) {
    d->change(key, QVariant());
}

} // namespace vellumry
