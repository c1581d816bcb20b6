// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/applications/DesktopEntries.h"
#include "linux/x11/windows/XlibConnection.h"
#include "platform/display/SourceApp.h"

#include <QObject>

namespace vellumry {

/// Follows the window manager's active window. What the window says of itself is read when it becomes active: it may be
/// gone when it is asked for. While no window is active (our panel has the keyboard, the window manager is between two
/// windows) the last application counts as long as its window exists. Windows of this process never count.
class X11FrontmostApplication : public QObject, public FrontmostApplication {
    Q_OBJECT
public:
    X11FrontmostApplication(std::shared_ptr<XlibConnection> connection, std::shared_ptr<DesktopEntries> entries);

    [[nodiscard]] SourceApp current() const override;
    /// Waits for the X server twice.
    [[nodiscard]] SourceApp pasteboardOwner() const override;
    /// The installed application in front, with its icon; nothing when it has no desktop file.
    [[nodiscard]] std::optional<DesktopEntry> currentEntry() const;

private:
    void handleEvent(XEvent* event);
    void follow();
    [[nodiscard]] ApplicationHints hintsOf(XWindow window, qint64 process) const;
    [[nodiscard]] std::optional<DesktopEntry> entryOf(const ApplicationHints& hints) const;
    [[nodiscard]] SourceApp applicationOf(const ApplicationHints& hints) const;

    std::shared_ptr<XlibConnection> m_connection;
    std::shared_ptr<DesktopEntries> m_entries;
    XWindow m_window = 0;
    qint64 m_process = 0;
    ApplicationHints m_hints;
};

} // namespace vellumry
