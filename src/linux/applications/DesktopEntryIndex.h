// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace vellumry {

/// An installed application as its desktop file describes it (freedesktop.org Desktop Entry Specification).
struct DesktopEntry {
    QString id;             ///< the desktop-file id without ".desktop"
    QString name;           ///< in the user's language
    QString icon;           ///< an icon's name or path
    QString startupWmClass; ///< empty when the file does not say
    QString program;        ///< the last part of the path of what it executes
    bool isHidden = false;  ///< not meant for menus

    bool operator==(const DesktopEntry&) const = default;

    /// Nothing when `contents` is no application's entry. `languages` are locale names as in the file's keys, best
    /// first.
    [[nodiscard]] static std::optional<DesktopEntry> parse(const QString& id, const QByteArray& contents,
                                                           const QStringList& languages);
};

/// What windows and processes tell of an application that may lead to its desktop file. Empty fields are not known.
struct ApplicationHints {
    QString applicationID; ///< what the program itself names its desktop file
    QString className;     ///< WM_CLASS, the class
    QString instanceName;  ///< WM_CLASS, the instance
    QString program;       ///< the last part of the path of the process's program

    bool operator==(const ApplicationHints&) const = default;
};

/// All installed applications, the first of each id. A value.
class DesktopEntryIndex {
public:
    /// Reads the folders in the order of precedence. Touches the disk.
    [[nodiscard]] static DesktopEntryIndex read(const QStringList& folders, const QStringList& languages);
    explicit DesktopEntryIndex(std::vector<DesktopEntry> entries)
        : m_entries(std::move(entries)) {}

    /// The entry that fits the hints best: by the program's own word, by window class, by name, by what it executes.
    [[nodiscard]] std::optional<DesktopEntry> find(const ApplicationHints& hints) const;
    [[nodiscard]] std::optional<DesktopEntry> byID(const QString& id) const;
    [[nodiscard]] const std::vector<DesktopEntry>& entries() const { return m_entries; }

private:
    std::vector<DesktopEntry> m_entries;
};

} // namespace vellumry
