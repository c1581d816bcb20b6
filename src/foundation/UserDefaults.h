// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>
#include <memory>
#include <optional>

namespace vellumry {

/// One domain of settings over an INI file (group [General]). Keeps no copy: a change made to the file by another
/// program counts at the next read. Only a regular file of at most 1 MiB is read; what else stands in its place counts
/// as a file that cannot be read: what was known of it holds. A write is atomic and durable when the call returns; a
/// file that cannot be written keeps its old content and the new value holds for this run. Main thread.
class UserDefaults {
public:
    /// `path` need not exist. Its folder is made at the first write, mode 700; the file gets mode 600.
    explicit UserDefaults(QString path);
    /// A domain that lives in memory only.
    UserDefaults();
    ~UserDefaults();
    UserDefaults(const UserDefaults&) = delete;
    UserDefaults& operator=(const UserDefaults&) = delete;

    /// Values that a read gives for keys that are not set. Adds to what was registered before.
    void registerDefaults(const QVariantMap& values);

    /// The stored value, else the registered one, else an invalid variant. Integers are qint64, fractions double, data
    /// is a QByteArray; lists of texts are QStringList, other lists QVariantList, maps QVariantMap.
    [[nodiscard]] QVariant object(const QString& key) const;
    [[nodiscard]] std::optional<QString> string(const QString& key) const;
    /// A single text, as a hand writes it into the file, is a list of one; an empty text is an empty list.
    [[nodiscard]] std::optional<QStringList> stringArray(const QString& key) const;
    /// The registered value for what is no number, 0 without one.
    [[nodiscard]] qint64 integer(const QString& key) const;
    /// The same, for what is not within the bounds too.
    [[nodiscard]] qint64 integer(const QString& key, qint64 least, qint64 most) const;
    /// The registered value for what is neither a truth value nor a number, false without one.
    [[nodiscard]] bool boolean(const QString& key) const;

    /// Notes that the value of `key` could not be used, with a line in the log; once for each state of the file.
    void refuse(const QString& key) const;
    /// The keys whose values could not be used, as far as they were read.
    [[nodiscard]] QStringList refusedKeys() const;

    void setObject(const QString& key, const QVariant& value);
    /// Back to the registered default.
    void removeObject(const QString& key);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace vellumry
