// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/applications/DesktopEntryIndex.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <algorithm>
#include <functional>
#include <map>
#include <set>

namespace vellumry {

namespace {

/// No honest desktop file comes near; a folder may hold anything.
constexpr qint64 maxFileSize = 1 << 20;

/// The string escapes of the Desktop Entry Specification.
QString unescaped(const QString& value) {
    QString result;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] != u'\\' || i + 1 == value.size()) {
            result += value[i];
            continue;
        }
        const QChar code = value[++i];
        result += code == u's'   ? u' '
                  : code == u'n' ? u'\n'
                  : code == u't' ? u'\t'
                  : code == u'r' ? u'\r'
                                 : code.unicode();
    }
    return result;
}

/// The keys of the group "Desktop Entry"; the first of each counts.
std::map<QString, QString> mainGroup(const QByteArray& contents) {
    std::map<QString, QString> values;
    bool isInGroup = false;
    for (const QString& line : QString::fromUtf8(contents).split(u'\n')) {
        const QString trimmed = line.trimmed();
        if (trimmed.startsWith(u'[')) {
            isInGroup = trimmed == u"[Desktop Entry]";
            continue;
        }
        const qsizetype equals = trimmed.indexOf(u'=');
        if (!isInGroup || trimmed.startsWith(u'#') || equals < 1)
            continue;
        values.emplace(trimmed.left(equals).trimmed(), unescaped(trimmed.mid(equals + 1).trimmed()));
    }
    return values;
}

/// What an Exec line runs, past `env` and its assignments.
QString programOf(const QString& command) {
    for (QString word : command.split(u' ', Qt::SkipEmptyParts)) {
        word.remove(u'"');
        const QString name = word.section(u'/', -1);
        if (name != u"env" && !word.contains(u'='))
            return name;
    }
    return {};
}

bool isSame(const QString& left, const QString& right) {
    return !left.isEmpty() && left.compare(right, Qt::CaseInsensitive) == 0;
}

} // namespace

std::optional<DesktopEntry> DesktopEntry::parse(const QString& id, const QByteArray& contents,
                                                const QStringList& languages) {
    auto values = mainGroup(contents);
    if (values[QStringLiteral("Type")] != u"Application" || values[QStringLiteral("Hidden")] == u"true")
        return std::nullopt;
    DesktopEntry entry;
    entry.id = id;
    entry.name = values[QStringLiteral("Name")];
    for (const QString& language : languages) {
        const auto local = values.find(QStringLiteral("Name[%1]").arg(language));
        if (local != values.end()) {
            entry.name = local->second;
            break;
        }
        // The plain name is in English.
        if (language == u"en" || language == u"C")
            break;
    }
    entry.icon = values[QStringLiteral("Icon")];
    entry.startupWmClass = values[QStringLiteral("StartupWMClass")];
    entry.program = programOf(values[QStringLiteral("Exec")]);
    entry.isHidden = values[QStringLiteral("NoDisplay")] == u"true";
    if (entry.name.isEmpty())
        return std::nullopt;
    return entry;
}

DesktopEntryIndex DesktopEntryIndex::read(const QStringList& folders, const QStringList& languages) {
    std::vector<DesktopEntry> entries;
    std::set<QString> ids;
    for (const QString& folder : folders) {
        const QDir base(folder);
        QDirIterator files(folder, {QStringLiteral("*.desktop")}, QDir::Files, QDirIterator::Subdirectories);
        std::vector<DesktopEntry> found;
        while (files.hasNext()) {
            const QString path = files.next();
            QString id = base.relativeFilePath(path);
            id.chop(int(qstrlen(".desktop")));
            id.replace(u'/', u'-');
            QFile file(path);
            // The user's file of that name stands for the system's, even one that takes the application away.
            if (!ids.insert(id).second || file.size() > maxFileSize || !file.open(QIODevice::ReadOnly))
                continue;
            if (auto entry = DesktopEntry::parse(id, file.read(maxFileSize), languages))
                found.push_back(std::move(*entry));
        }
        std::sort(found.begin(), found.end(), [](const auto& left, const auto& right) { return left.id < right.id; });
        std::move(found.begin(), found.end(), std::back_inserter(entries));
    }
    return DesktopEntryIndex(std::move(entries));
}

std::optional<DesktopEntry> DesktopEntryIndex::byID(const QString& id) const {
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&](const DesktopEntry& entry) { return isSame(id, entry.id); });
    return found == m_entries.end() ? std::nullopt : std::optional(*found);
}

std::optional<DesktopEntry> DesktopEntryIndex::find(const ApplicationHints& hints) const {
    // Among several entries of one program those in the menus come first: a helper may share its window class.
    const auto first = [this](const std::function<bool(const DesktopEntry&)>& fits) -> std::optional<DesktopEntry> {
        for (const bool isHidden : {false, true}) {
            for (const DesktopEntry& entry : m_entries) {
                if (entry.isHidden == isHidden && fits(entry))
                    return entry;
            }
        }
        return std::nullopt;
    };
    for (const QString& id : {hints.applicationID, hints.applicationID.section(u'.', -1)}) {
        if (const auto entry = byID(id))
            return entry;
    }
    for (const QString& name : {hints.className, hints.instanceName}) {
        if (const auto entry =
                first([&](const DesktopEntry& candidate) { return isSame(name, candidate.startupWmClass); }))
            return entry;
    }
    for (const QString& name : {hints.className, hints.instanceName}) {
        if (const auto entry = byID(name))
            return entry;
        if (const auto entry =
                first([&](const DesktopEntry& candidate) { return isSame(name, candidate.id.section(u'.', -1)); }))
            return entry;
    }
    return first([&](const DesktopEntry& candidate) { return isSame(hints.program, candidate.program); });
}

} // namespace vellumry
