// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/applications/DesktopEntries.h"
#include "linux/wayland/windows/WaylandWindows.h"
#include "platform/display/SourceApp.h"

#include <QObject>

namespace vellumry {

/// The application whose window is active, or was before a panel took the keyboard. The owner of the
/// clipboard is not known on Wayland. Main thread.
class WaylandFrontmostApplication final : public QObject, public FrontmostApplication {
    Q_OBJECT
public:
    /// `windows` may be null: then no application is in front.
    WaylandFrontmostApplication(std::shared_ptr<WaylandWindows> windows, std::shared_ptr<DesktopEntries> entries);

    [[nodiscard]] SourceApp current() const override;

private:
    void follow();

    std::shared_ptr<WaylandWindows> m_windows;
    std::shared_ptr<DesktopEntries> m_entries;
    ApplicationHints m_hints; ///< of a window that is not our own
};

} // namespace vellumry
