// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/tray/ClassicIcon.h"
#include "linux/x11/windows/XlibConnection.h"

#include <QImage>
#include <QObject>

namespace vellumry {

/// An icon in the system tray of an X11 screen, as the freedesktop.org system tray specification has it: a window that
/// the owner of _NET_SYSTEM_TRAY_Sn takes into its own (XEMBED). A tray that comes later, or comes anew, gets it too.
/// Main thread.
class X11ClassicIcon : public QObject, public ClassicIcon {
    Q_OBJECT

public:
    /// The program's mark in that size, transparent around it.
    using Draw = std::function<QImage(const QSize& size)>;

    X11ClassicIcon(std::shared_ptr<XlibConnection> connection, Draw draw);
    ~X11ClassicIcon() override;

    void setWanted(bool isWanted) override;
    [[nodiscard]] bool isShown() const override { return m_isShown; }
    /// 0 without a tray.
    [[nodiscard]] XWindow window() const { return m_window; }

private:
    void handleEvent(XEvent* event);
    void handleOwn(const XEvent& event);
    void lookForTray();
    void makeWindow();
    void askToBeTaken();
    void leave();
    void paint();
    [[nodiscard]] QImage ground(int width, int height);
    void setShown(bool isShown);

    std::shared_ptr<XlibConnection> m_connection;
    Draw m_draw;
    XAtom m_selection;
    bool m_isWanted = false;
    bool m_isShown = false;
    bool m_isTranslucent = false; ///< the tray's windows have an alpha channel
    XWindow m_tray = 0;
    XWindow m_window = 0;
    unsigned long m_colours = 0; ///< the colour map of a translucent window
    int m_depth = 0;
    void* m_visual = nullptr;
};

} // namespace vellumry
