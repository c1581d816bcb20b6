// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/WindowManagerFence.h"

#include <poll.h>
#include <utility>

#include <X11/Xlib.h>

namespace vellumry {

namespace {

constexpr std::size_t mostOwed = 16;
constexpr int lookMilliseconds = 20;

} // namespace

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
    // The windows may go with the connection now.
    Display* display = m_connection->display();
    const auto end = std::chrono::steady_clock::now() + lastWait;
    XEvent event;
    while (!m_owed.empty() && std::chrono::steady_clock::now() < end) {
        if (XCheckIfEvent(
                display, &event, [](Display*, XEvent* one, XPointer) -> Bool { return one->type == SelectionNotify; },
                nullptr)) {
            takeAnswer(event.xselection.requestor);
            continue;
        }
        pollfd descriptor{ConnectionNumber(display), POLLIN, 0};
        poll(&descriptor, 1, lookMilliseconds);
    }
}

// Each window manager tells the time at which it became one (ICCCM 2.8). It answers in its turn: what the server told
// it before has been read by then.
void WindowManagerFence::await(std::function<void()> onPassed) {
    abandon();
    m_onPassed = std::move(onPassed);
    m_deadline.start();
    // One that has not answered so often is not asked any more.
    if (m_owed.size() >= mostOwed)
        return;
    Display* display = m_connection->display();
    m_window = XCreateWindow(display, m_connection->root(), -1, -1, 1, 1, 0, 0, InputOnly, nullptr, 0, nullptr);
    XConvertSelection(display, m_selection, m_connection->atom("TIMESTAMP"), m_connection->atom("VELLUMRY_FENCE"),
                      m_window, CurrentTime);
    m_connection->flush();
}

void WindowManagerFence::abandon() {
    m_onPassed = nullptr;
    m_deadline.stop();
    forgetQuestion();
}

void WindowManagerFence::forgetQuestion() {
    if (m_window != 0)
        m_owed.insert(std::exchange(m_window, 0));
}

void WindowManagerFence::takeAnswer(XWindow window) {
    if (m_owed.erase(window) > 0)
        XDestroyWindow(m_connection->display(), window);
}

void WindowManagerFence::handleEvent(XEvent* event) {
    if (event->type != SelectionNotify)
        return;
    const XWindow window = event->xselection.requestor;
    const bool isNow = m_window != 0 && window == m_window;
    if (isNow)
        forgetQuestion();
    takeAnswer(window);
    if (isNow)
        pass();
}

void WindowManagerFence::pass() {
    const auto onPassed = std::exchange(m_onPassed, nullptr);
    abandon();
    if (onPassed)
        onPassed();
}

} // namespace vellumry
