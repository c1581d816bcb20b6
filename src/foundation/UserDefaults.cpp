// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/UserDefaults.h"

#include "foundation/IniFile.h"
#include "foundation/IniValue.h"
#include "foundation/Logging.h"
#include "foundation/SettingsFile.h"

#include <QSet>
#include <limits>

namespace vellumry {

namespace {

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

} // namespace

struct UserDefaults::Private {
    QString path; ///< empty: memory only
    QVariantMap registered;
    /// What this run has set and could not write; an invalid value stands for a removal. All values of a memory domain.
    QVariantMap unsaved;

    IniFile file;
    QVariantMap stored;
    settingsfile::FileState state;
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
        const settingsfile::FileState found = settingsfile::stateOf(path);
        if (found == state && !mayHaveChangedUnseen)
            return true;
        QByteArray content;
        if (found != settingsfile::FileState{}) {
            auto read = found.isRegular ? settingsfile::contentOf(path) : std::nullopt;
            if (!read) {
                noteUnreadable();
                return false;
            }
            content = std::move(*read);
        }
        isUnreadable = false;
        if (found != state)
            refused.clear();
        mayHaveChangedUnseen = settingsfile::mayChangeUnseen(found);
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
        if (!settingsfile::write(path, changed.toBytes())) {
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
