// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/IniFile.h"

#include "foundation/IniValue.h"

#include <algorithm>

namespace vellumry {

namespace {

const QString generalGroup = QStringLiteral("General");

QByteArray encodedName(const QString& name) {
    return name.toUtf8().toPercentEncoding(" :@+()");
}

QString decodedName(const QByteArray& text) {
    return QString::fromUtf8(QByteArray::fromPercentEncoding(text.trimmed()));
}

bool isGeneral(const QString& group) {
    return group.isEmpty() || group == generalGroup;
}

} // namespace

IniFile::IniFile(const QByteArray& text) {
    m_groups.emplace_back();
    if (text.isEmpty())
        return;
    for (QByteArray line : (text.endsWith('\n') ? text.chopped(1) : text).split('\n')) {
        if (line.endsWith('\r'))
            line.chop(1);
        const QByteArray content = line.trimmed();
        if (content.startsWith('[') && content.endsWith(']')) {
            m_groups.push_back({decodedName(content.sliced(1, content.size() - 2)), {}});
            continue;
        }
        const qsizetype equals = content.indexOf('=');
        const bool isAssignment = equals > 0 && !content.startsWith(';') && !content.startsWith('#');
        m_groups.back().lines.push_back({line, isAssignment ? decodedName(content.first(equals)) : QString()});
    }
}

QVariantMap IniFile::valuesOf(const Group& group) {
    QVariantMap result;
    for (const Line& line : group.lines) {
        if (line.key.isEmpty())
            continue;
        const QVariant value = inivalue::parsed(line.text.sliced(line.text.indexOf('=') + 1));
        if (value.isValid())
            result.insert(line.key, value);
    }
    return result;
}

QVariantMap IniFile::values() const {
    QVariantMap result;
    for (const Group& group : m_groups) {
        if (!isGeneral(group.name))
            result.insert(group.name, valuesOf(group));
    }
    for (const Group& group : m_groups) {
        if (isGeneral(group.name))
            result.insert(valuesOf(group));
    }
    return result;
}

void IniFile::assign(Group& group, const QString& key, const QVariant& value) {
    const QByteArray text = encodedName(key) + '=' + inivalue::formatted(value);
    const auto same = [&key](const Line& line) { return line.key == key; };
    // The last assignment of a key is the one that counts when a hand has left two.
    const auto found = std::find_if(group.lines.rbegin(), group.lines.rend(), same);
    if (found != group.lines.rend()) {
        found->text = text;
        return;
    }
    auto end = group.lines.end();
    while (end != group.lines.begin() && std::prev(end)->text.trimmed().isEmpty())
        --end;
    group.lines.insert(end, {text, key});
}

IniFile::Group& IniFile::groupNamed(const QString& name) {
    const auto found =
        std::find_if(m_groups.begin(), m_groups.end(), [&name](const Group& group) { return group.name == name; });
    if (found != m_groups.end())
        return *found;
    // A group of its own is set off from the one before.
    if (!m_groups.empty() && !m_groups.back().lines.empty() && !m_groups.back().lines.back().text.trimmed().isEmpty())
        m_groups.back().lines.push_back({});
    return m_groups.emplace_back(Group{name, {}});
}

void IniFile::set(const QString& key, const QVariant& value) {
    const bool isGroup = value.typeId() == QMetaType::QVariantMap && !isGeneral(key);
    if (isGroup) {
        remove(key);
        Group& group = groupNamed(key);
        const QVariantMap map = value.toMap();
        for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
            assign(group, entry.key(), entry.value());
        return;
    }
    std::erase_if(m_groups, [&key](const Group& group) { return group.name == key && !isGeneral(key); });
    assign(groupNamed(generalGroup), key, value);
}

void IniFile::remove(const QString& key) {
    std::erase_if(m_groups, [&key](const Group& group) { return group.name == key && !isGeneral(key); });
    for (Group& group : m_groups) {
        if (isGeneral(group.name))
            std::erase_if(group.lines, [&key](const Line& line) { return line.key == key; });
    }
}

QByteArray IniFile::toBytes() const {
    QByteArray result;
    for (const Group& group : m_groups) {
        if (!group.name.isEmpty())
            result += '[' + encodedName(group.name) + "]\n";
        for (const Line& line : group.lines)
            result += line.text + '\n';
    }
    return result;
}

} // namespace vellumry
