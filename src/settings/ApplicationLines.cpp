// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ApplicationLines.h"

#include "foundation/Localisation.h"
#include "settings/Preferences.h"

#include <algorithm>

namespace vellumry::applicationlines {

namespace {

const QString unknownApplication = QStringLiteral("questionmark.app");

FormLine lineOf(const InstalledApplication& application) {
    FormLine line;
    line.identifier = application.identifier;
    line.title = application.name;
    line.symbol = unknownApplication;
    if (!application.iconPath.isEmpty())
        line.picture = QUrl::fromLocalFile(application.iconPath);
    return line;
}

bool isInstalled(const QString& identifier, const Applications& installed) {
    return std::ranges::find(installed, identifier, &InstalledApplication::identifier) != installed.end();
}

} // namespace

std::vector<FormLine> ignored(const QStringList& identifiers, const Applications& installed) {
    std::vector<FormLine> lines;
    for (const InstalledApplication& application : installed) {
        if (identifiers.contains(application.identifier))
            lines.push_back(lineOf(application));
    }
    for (const QString& identifier : identifiers) {
        if (isInstalled(identifier, installed) || Preferences::defaultIgnoredApps().contains(identifier))
            continue;
        FormLine line;
        line.identifier = line.title = identifier;
        line.detail = localised("Not installed");
        line.symbol = unknownApplication;
        lines.push_back(line);
    }
    return lines;
}

int notListed(const QStringList& identifiers, const Applications& installed) {
    return static_cast<int>(std::ranges::count_if(Preferences::defaultIgnoredApps(), [&](const QString& identifier) {
        return identifiers.contains(identifier) && !isInstalled(identifier, installed);
    }));
}

std::vector<FormLine> terminals(const QStringList& windowClasses, const Applications& installed) {
    std::vector<FormLine> lines;
    for (const QString& entry : windowClasses) {
        const bool isNone = entry.startsWith(u'!');
        const QString name = isNone ? entry.mid(1) : entry;
        const auto known = std::ranges::find_if(installed, [&name](const InstalledApplication& application) {
            return application.windowClass.compare(name, Qt::CaseInsensitive) == 0;
        });
        FormLine line = known == installed.end() ? FormLine() : lineOf(*known);
        line.identifier = entry;
        if (line.title.isEmpty())
            line.title = name;
        line.symbol = unknownApplication;
        line.isChosen = !isNone;
        lines.push_back(line);
    }
    return lines;
}

std::vector<FormLine> offered(const Applications& installed, const QString& words, const QStringList& chosen) {
    std::vector<FormLine> lines;
    for (const InstalledApplication& application : installed) {
        if (!application.name.contains(words.trimmed(), Qt::CaseInsensitive))
            continue;
        FormLine line = lineOf(application);
        line.isChosen = chosen.contains(application.identifier);
        lines.push_back(line);
    }
    return lines;
}

} // namespace vellumry::applicationlines
