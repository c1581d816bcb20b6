// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/applications/XdgInstalledApplications.h"

#include "foundation/SerialExecutor.h"
#include "linux/applications/ApplicationIdentifiers.h"
#include "linux/applications/DesktopEntries.h"

#include <QCollator>
#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QStandardPaths>
#include <algorithm>
#include <array>

namespace vellumry {

namespace {

/// Folders of a theme and, last, of loose pictures. Drawn at 24 points, at most three times as large.
constexpr std::array iconSizes{
    "64x64/apps/",   "48x48/apps/", "scalable/apps/", "72x72/apps/", "96x96/apps/", "128x128/apps/",  "256x256/apps/",
    "512x512/apps/", "32x32/apps/", "24x24/apps/",    "22x22/apps/", "16x16/apps/", "symbolic/apps/", ""};
constexpr std::array pictureTypes{".png", ".svg", ".xpm"};

QString windowClassOf(const DesktopEntry& entry) {
    return entry.startupWmClass.isEmpty() ? entry.id.section(u'.', -1) : entry.startupWmClass;
}

} // namespace

QStringList iconFoldersOfSession() {
    QStringList folders{QDir::homePath() + QStringLiteral("/.icons/hicolor")};
    const QStringList data = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    for (const QString& folder : data)
        folders << folder + QStringLiteral("/icons/hicolor");
    for (const QString& folder : data)
        folders << folder + QStringLiteral("/pixmaps");
    return folders;
}

QString iconPath(const QString& icon, const QStringList& iconFolders) {
    if (icon.isEmpty())
        return {};
    if (QDir::isAbsolutePath(icon))
        return QFileInfo(icon).isFile() ? icon : QString();
    for (const QString& folder : iconFolders) {
        for (const char* size : iconSizes) {
            const QString base = folder + u'/' + QLatin1String(size) + icon;
            for (const char* type : pictureTypes) {
                const QString path = base + QLatin1String(type);
                if (QFileInfo(path).isFile())
                    return path;
            }
            // Some entries name the file.
            if (*size == '\0' && QFileInfo(base).isFile())
                return base;
        }
    }
    return {};
}

std::vector<InstalledApplication> installedApplications(const DesktopEntryIndex& index,
                                                        const QStringList& iconFolders) {
    std::vector<InstalledApplication> applications;
    QSet<QString> known;
    for (const DesktopEntry& entry : index.entries()) {
        const QString identifier = applicationids::standing(entry.id).value_or(entry.id);
        if (entry.isHidden || known.contains(identifier))
            continue;
        known.insert(identifier);
        applications.push_back({identifier, entry.name, iconPath(entry.icon, iconFolders), windowClassOf(entry)});
    }
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::ranges::stable_sort(applications, [&collator](const auto& left, const auto& right) {
        return collator.compare(left.name, right.name) < 0;
    });
    return applications;
}

XdgInstalledApplications::XdgInstalledApplications(std::shared_ptr<DesktopEntries> entries, QStringList iconFolders)
    : m_entries(std::move(entries))
    , m_iconFolders(std::move(iconFolders))
    , m_executor(std::make_unique<SerialExecutor>("Applications", true)) {}

XdgInstalledApplications::~XdgInstalledApplications() = default;

QCoro::Task<std::vector<InstalledApplication>> XdgInstalledApplications::list() {
    m_entries->refresh();
    auto reading = m_executor->run(
        [entries = m_entries, folders = m_iconFolders] { return installedApplications(*entries->index(), folders); });
    co_return co_await reading;
}

} // namespace vellumry
