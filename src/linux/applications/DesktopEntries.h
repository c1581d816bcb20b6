// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/applications/DesktopEntryIndex.h"

#include <memory>

namespace vellumry {

/// The installed applications, read away from the caller's thread. Main thread.
class DesktopEntries {
public:
    /// The session's own folders and languages.
    DesktopEntries();
    DesktopEntries(QStringList folders, QStringList languages);
    ~DesktopEntries();

    /// Begins to read the folders if they changed since they were last read, or were never read. Returns at once.
    void refresh();
    /// What was read last; waits only while the very first reading is under way.
    [[nodiscard]] std::shared_ptr<const DesktopEntryIndex> index() const;

private:
    struct Reading;
    QStringList m_folders;
    QStringList m_languages;
    std::shared_ptr<Reading> m_reading;
};

} // namespace vellumry
