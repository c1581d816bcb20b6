// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/applications/SourceApps.h"

#include "linux/applications/ApplicationIdentifiers.h"

#include <QFile>

namespace vellumry {

namespace {

QString firstOf(std::initializer_list<QString> candidates) {
    for (const QString& candidate : candidates) {
        if (!candidate.isEmpty())
            return candidate;
    }
    return {};
}

} // namespace

SourceApp sourceAppOf(const ApplicationHints& hints, const DesktopEntryIndex& index) {
    if (hints == ApplicationHints())
        return {};
    const auto entry = index.find(hints);
    const QString id = entry.has_value() ? entry->id : firstOf({hints.applicationID, hints.className, hints.program});
    SourceApp source;
    for (const QString& name : {id, hints.applicationID, hints.className, hints.instanceName}) {
        source.bundleID = applicationids::standing(name);
        if (source.bundleID.has_value())
            break;
    }
    if (!source.bundleID.has_value() && !id.isEmpty())
        source.bundleID = id;
    const QString name = entry.has_value() ? entry->name : firstOf({hints.className, hints.program, id});
    if (!name.isEmpty())
        source.name = name;
    return source;
}

QString sandboxedID(qint64 process) {
    QFile info(QStringLiteral("/proc/%1/root/.flatpak-info").arg(process));
    if (process <= 0 || !info.open(QIODevice::ReadOnly))
        return {};
    for (const QByteArray& line : info.read(64 * 1024).split('\n')) {
        if (line.startsWith("name="))
            return QString::fromUtf8(line.mid(5).trimmed());
    }
    return {};
}

} // namespace vellumry
