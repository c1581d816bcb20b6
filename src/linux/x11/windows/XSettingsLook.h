// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/look/SaidLook.h"
#include "linux/x11/windows/XlibConnection.h"

#include <QObject>
#include <functional>
#include <memory>

namespace vellumry {

/// The look that an X server's settings manager (XSETTINGS 0.5) tells: the theme's name, the font, whether things move.
/// A manager that comes later is heard as well. Main thread.
class XSettingsLook : public QObject {
    Q_OBJECT

public:
    /// `onChanged` is called with what it says: at once, and whenever that is different.
    XSettingsLook(std::shared_ptr<XlibConnection> connection, std::function<void(const SaidLook&)> onChanged);
    ~XSettingsLook() override;

private:
    void handleEvent(XEvent* event);
    void followManager();
    void read();

    std::shared_ptr<XlibConnection> m_connection;
    std::function<void(const SaidLook&)> m_onChanged;
    XWindow m_manager = 0;
    SaidLook m_said;
};

} // namespace vellumry
