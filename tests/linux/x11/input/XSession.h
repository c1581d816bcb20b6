// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>

namespace vellumry {

/// An X server and a window manager of the test program's own, gone when this is. Sets DISPLAY.
class XSession {
public:
    /// False when the server or the window manager did not come up.
    [[nodiscard]] bool start();
    ~XSession();

    /// Gives the server's keyboard another layout, as the user's settings would; false when that failed.
    [[nodiscard]] static bool setLayout(const QString& layout);

private:
    QProcess m_server;
    QProcess m_manager;
};

} // namespace vellumry
