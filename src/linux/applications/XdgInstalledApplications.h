// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/applications/DesktopEntryIndex.h"
#include "platform/desktop/InstalledApplications.h"

#include <QStringList>
#include <memory>

namespace vellumry {

class DesktopEntries;
class SerialExecutor;

/// The applications of the XDG data folders.
class XdgInstalledApplications : public InstalledApplications {
public:
    /// `iconFolders` hold the folders of icon themes, or loose pictures, best first: see `iconFoldersOfSession`.
    XdgInstalledApplications(std::shared_ptr<DesktopEntries> entries, QStringList iconFolders);
    ~XdgInstalledApplications() override;

    [[nodiscard]] QCoro::Task<std::vector<InstalledApplication>> list() override;

private:
    std::shared_ptr<DesktopEntries> m_entries;
    QStringList m_iconFolders;
    std::unique_ptr<SerialExecutor> m_executor;
};

/// Where applications put their icons: for every theme ("hicolor", Icon Theme Specification) and loose.
[[nodiscard]] QStringList iconFoldersOfSession();

/// The path of the picture that an entry calls `icon`, a name or a path; empty when none is found. A picture of at
/// least 48 pixels, or one that scales, is preferred. Touches the disk; any thread.
[[nodiscard]] QString iconPath(const QString& icon, const QStringList& iconFolders);

/// The entries that menus show, as the program's lists name them, by name. Touches the disk; any thread.
[[nodiscard]] std::vector<InstalledApplication> installedApplications(const DesktopEntryIndex& index,
                                                                      const QStringList& iconFolders);

} // namespace vellumry
