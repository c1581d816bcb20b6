// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/windows/XlibConnection.h"

#include <QObject>
#include <QTimer>
#include <chrono>
#include <functional>
#include <set>

namespace vellumry {

/// Waits until the window manager has read what the X server told it so far. Main thread.
///
/// A window manager that composes the display on Wayland (Mutter) hands the keyboard on to X11 windows itself. It does
/// not hear that a window got the focus before it knows the window, and keeps the keys from it then.
///
/// Mutter ends, and the user's session with it, when a window to which it owes an answer is gone: such a window stays
/// until the answer has come, and the end of this waits for it.
class WindowManagerFence : public QObject {
    Q_OBJECT
public:
    /// A user takes a panel that has the keyboard after this time for a slow one, not for a broken one.
    static constexpr std::chrono::milliseconds usualWait{250};
    /// How long the end waits for answers that are owed.
    static constexpr std::chrono::milliseconds lastWait{1000};

    /// `selection` is what the window manager owns; an empty one stands for that of the connection's screen (WM_Sn).
    explicit WindowManagerFence(std::shared_ptr<XlibConnection> connection, const QByteArray& selection = {},
                                std::chrono::milliseconds longestWait = usualWait);
    ~WindowManagerFence() override;

    /// Calls `onPassed` once the window manager has answered a question asked now, after the longest wait without an
    /// answer, or soon where no window manager is there. A new wait takes the place of an older one.
    void await(std::function<void()> onPassed);
    /// Nothing is called any more.
    void abandon();

private:
    void handleEvent(XEvent* event);
    void pass();
    void forgetQuestion();
    void takeAnswer(XWindow window);

    std::shared_ptr<XlibConnection> m_connection;
    XAtom m_selection;
    XWindow m_window = 0;     ///< the one that the answer is sent to: another one for each question
    std::set<XWindow> m_owed; ///< those of earlier questions that have no answer yet
    std::function<void()> m_onPassed;
    QTimer m_deadline;
};

} // namespace vellumry
