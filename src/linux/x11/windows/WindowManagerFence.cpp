// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/WindowManagerFence.h"

#include <utility>

#include <X11/Xlib.h>

namespace vellumry {

WindowManagerFence::WindowManagerFence(std::shared_ptr<XlibConnection> connection, const QByteArray& selection,
                                       std::chrono::milliseconds longestWait)
    : m_connection(std::move(connection))
    , m_selection(m_connection->atom(
          (selection.isEmpty() ? "WM_S" + QByteArray::number(m_connection->screen()) : selection).constData())) {
    connect(m_connection.get(), &XlibConnection::eventArrived, this, &WindowManagerFence::handleEvent);
    m_deadline.setSingleShot(true);
    m_deadline.setInterval(longestWait);
    connect(&m_deadline, &QTimer::timeout, this, &WindowManagerFence::pass);
}

WindowManagerFence::~WindowManagerFence() {
    forgetQuestion();
}

// Each window manager tells the time at which it became one (ICCCM 2.8). It answers in its turn: what the server told
// it before has been read by then.
void WindowManagerFence::await(std::function<void()> onPassed) {
    abandon();
    m_onPassed = std::move(onPassed);
    Display* display = m_connection->display();
    m_window = XCreateWindow(display, m_connection->root(), -1, -1, 1, 1, 0, 0, InputOnly, nullptr, 0, nullptr);
    XConvertSelection(display, m_selection, m_connection->atom("TIMESTAMP"), m_connection->atom("VELLUMRY_FENCE"),
                      m_window, CurrentTime);
    m_connection->flush();
    m_deadline.start();
}

void WindowManagerFence::abandon() {
    m_onPassed = nullptr;
    m_deadline.stop();
    forgetQuestion();
}

void WindowManagerFence::forgetQuestion() {
    if (m_window != 0)
        XDestroyWindow(m_connection->display(), std::exchange(m_window, 0));
}

void WindowManagerFence::handleEvent(XEvent* event) {
    if (m_window != 0 && event->type == SelectionNotify && event->xselection.requestor == m_window)
        pass();
}

void WindowManagerFence::pass() {
    const auto onPassed = std::exchange(m_onPassed, nullptr);
    abandon();
    if (onPassed)
        onPassed();
}

} // namespace vellumry
