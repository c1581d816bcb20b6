// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/Opener.h"

#include <QDBusConnection>

#include <functional>

namespace vellumry {

/// Opens addresses with xdg-open, and shows files by the file manager's own service (org.freedesktop.FileManager1,
/// File Manager D-Bus Interface 1.0). Where no file manager offers that, the folders of the files are opened.
class DesktopOpener : public Opener {
public:
    /// Starts a program and leaves it alone; false when it cannot be started.
    using Start = std::function<bool(const QString& program, const QStringList& arguments)>;

    explicit DesktopOpener(QDBusConnection bus = QDBusConnection::sessionBus(), Start start = startDetached);

    bool openAddress(const QString& address) override;
    void showFiles(const QStringList& paths) override;

private:
    static bool startDetached(const QString& program, const QStringList& arguments);

    QDBusConnection m_bus;
    Start m_start;
};

} // namespace vellumry
