// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <QVariantMap>
#include <vector>

namespace vellumry {

/// The text of a settings file as lines under group headings, so that a change leaves comments, foreign keys and their
/// order alone. Keys of [General] are the values; any other group is one value, a map, under the group's name. A value;
/// any thread.
class IniFile {
public:
    IniFile() = default;
    /// Reads `text`; lines that are no assignment are kept and mean nothing.
    explicit IniFile(const QByteArray& text);

    [[nodiscard]] QVariantMap values() const;
    /// Replaces or adds; a map becomes a group of its own.
    void set(const QString& key, const QVariant& value);
    void remove(const QString& key);
    [[nodiscard]] QByteArray toBytes() const;

private:
    struct Line {
        QByteArray text; ///< as it stands, without its end
        QString key;     ///< empty for comments and blank lines
    };
    struct Group {
        QString name; ///< empty before the first heading
        std::vector<Line> lines;
    };

    [[nodiscard]] static QVariantMap valuesOf(const Group& group);
    static void assign(Group& group, const QString& key, const QVariant& value);
    Group& groupNamed(const QString& name);

    std::vector<Group> m_groups;
};

} // namespace vellumry
