// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/UserDefaults.h"

#include "foundation/IniFile.h"
#include "foundation/IniValue.h"

#include "foundation/Logging.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSet>
#include <fcntl.h>
#include <limits>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

namespace vellumry {

namespace {

/// No hand and no program of ours writes more.
constexpr qint64 mostBytes = 1024 * 1024;

/// What tells one state of a file from the next.
struct FileState {
    quint64 inode = 0;
    qint64 size = -1;
    qint64 changedNanoseconds = 0;
    bool isRegular = false;
    bool operator==(const FileState&) const = default;
};

FileState stateFrom(const struct stat& status) {
    return {status.st_ino, status.st_size, status.st_mtim.tv_sec * 1'000'000'000 + status.st_mtim.tv_nsec,
            S_ISREG(status.st_mode)};
}

FileState stateOf(const QString& path) {
    struct stat status {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    return stateFrom(status);
}

/// The content of a regular file of a bearable size. Never waits for a writer, as opening a pipe would.
std::optional<QByteArray> contentOf(const QString& path) {
    const int descriptor = open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat status {};
    const bool isBearable =
        descriptor >= 0 && fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_size <= mostBytes;
    QFile source;
    if (!isBearable || !source.open(descriptor, QIODevice::ReadOnly)) {
        if (descriptor >= 0)
            close(descriptor);
        return std::nullopt;
    }
    // It may have grown since.
    QByteArray content = source.read(mostBytes);
    close(descriptor);
    return content;
}

std::optional<qint64> numberIn(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::LongLong:
        return value.toLongLong();
    case QMetaType::QString: {
        bool isNumber = false;
        const qint64 number = value.toString().toLongLong(&isNumber);
        return isNumber ? std::optional(number) : std::nullopt;
    }
    case QMetaType::Double: {
        const double real = value.toDouble();
        return real > -9.2e18 && real < 9.2e18 ? std::optional(static_cast<qint64>(real)) : std::nullopt;
    }
    default:
        return std::nullopt;
    }
}

std::optional<bool> truthIn(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::LongLong:
        return value.toLongLong() != 0;
    case QMetaType::Double:
        return value.toDouble() != 0;
    case QMetaType::QString: {
        const QString text = value.toString().toLower();
        if (text == u"true" || text == u"yes" || text == u"on" || text == u"1")
            return true;
        if (text == u"false" || text == u"no" || text == u"off" || text == u"0")
            return false;
        return std::nullopt;
    }
    default:
        return std::nullopt;
    }
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
    // commit() of Qt 6.4 takes the place of the old file all the same when the last bytes found no room on the disk.
    if (file.write(content) != content.size() || !file.flush() || fsync(file.handle()) != 0 || !file.commit())
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
    bool isUnreadable = false;
    bool isUnwritable = false;
    QSet<QString> refused; ///< keys whose values could not be used, of this state of the file

    void noteUnreadable() {
        if (!std::exchange(isUnreadable, true))
            qCWarning(logging::foundation) << "the settings cannot be read: no regular file of at most 1 MiB, or no "
                                              "permission";
    }

    void noteUnwritable() {
        if (!std::exchange(isUnwritable, true))
            qCWarning(logging::foundation) << "the settings cannot be written: what was changed counts until the end";
    }

    /// Brings `file` and `stored` to what the disk holds now. False when the file is there and cannot be read.
    bool refresh() {
        if (path.isEmpty())
            return true;
        const FileState found = stateOf(path);
        if (found == state && !mayHaveChangedUnseen)
            return true;
        QByteArray content;
        if (found != FileState{}) {
            auto read = found.isRegular ? contentOf(path) : std::nullopt;
            if (!read) {
                noteUnreadable();
                return false;
            }
            content = std::move(*read);
        }
        isUnreadable = false;
        if (found != state)
            refused.clear();
        mayHaveChangedUnseen = found != FileState{} && nowNanoseconds() - found.changedNanoseconds < timeStampGrain;
        state = found;
        file = IniFile(content);
        stored = file.values();
        return true;
    }

    void change(const QString& key, const QVariant& value) {
        refused.remove(key);
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
        if (!write(path, changed.toBytes())) {
            noteUnwritable();
            return;
        }
        isUnwritable = false;
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
    return integer(key, std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max());
}

qint64 UserDefaults::integer(const QString& key, qint64 least, qint64 most) const {
    const QVariant value = object(key);
    const std::optional<qint64> number = numberIn(value);
    if (number && *number >= least && *number <= most)
        return *number;
    if (value.isValid())
        refuse(key);
    return numberIn(d->registered.value(key)).value_or(0);
}

bool UserDefaults::boolean(const QString& key) const {
    const QVariant value = object(key);
    const std::optional<bool> truth = truthIn(value);
    if (truth)
        return *truth;
    if (value.isValid())
        refuse(key);
    return truthIn(d->registered.value(key)).value_or(false);
}

void UserDefaults::refuse(const QString& key) const {
    if (d->refused.contains(key))
        return;
    d->refused.insert(key);
    qCWarning(logging::foundation).noquote()
        << "the value of the setting" << key << "cannot be used; its default holds";
}

QStringList UserDefaults::refusedKeys() const {
    QStringList keys = d->refused.values();
    keys.sort();
    return keys;
}

void UserDefaults::setObject(const QString& key, const QVariant& value) {
    d->change(key, inivalue::normalized(value));
}

void UserDefaults::removeObject(const QString& key) {
    d->change(key, QVariant());
}

} // namespace vellumry
