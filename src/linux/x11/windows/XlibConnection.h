// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"

#include <QByteArray>
#include <QObject>
#include <map>
#include <memory>
#include <optional>

typedef struct _XDisplay Display;
typedef union _XEvent XEvent;

namespace vellumry {

/// An X resource; 0 is no window, 1 (as a focus) the window under the pointer.
using XWindow = unsigned long;
using XAtom = unsigned long;

/// Our own line to the X server for keys, focus and windows, apart from Qt's. Main thread. Its events arrive through
/// the event loop; nothing polls.
class XlibConnection : public QObject {
    Q_OBJECT
public:
    /// An empty name is the session's display. Fails when it cannot be opened.
    [[nodiscard]] static OrReason<std::shared_ptr<XlibConnection>> create(const QByteArray& displayName = {});
    /// True when the session's display lets us in. Needs no application object.
    [[nodiscard]] static bool canOpenDisplay();
    ~XlibConnection() override;

    [[nodiscard]] Display* display() const { return m_display; }
    [[nodiscard]] XWindow root() const { return m_root; }
    [[nodiscard]] int screen() const { return m_screen; }
    [[nodiscard]] XAtom atom(const char* name);

    /// Adds `mask` to the core events that this connection hears from `window`: Xlib would replace what another user of
    /// the connection asked for. A window that is gone is left alone.
    void listen(XWindow window, long mask);
    /// Takes back one `listen` with that very mask.
    void ignore(XWindow window, long mask);

    /// Hands out what has arrived already, without waiting for more.
    void dispatchPending();
    void flush();

    /// The major opcode of the X Input extension 2.2 or newer.
    [[nodiscard]] std::optional<int> inputExtension() const { return m_inputOpcode; }
    /// The first event number of the XFixes extension.
    [[nodiscard]] std::optional<int> fixesEvents() const { return m_fixesEvents; }
    /// The event number of the keyboard extension.
    [[nodiscard]] std::optional<int> keyboardEvents() const { return m_keyboardEvents; }
    /// True when the server lets clients press keys.
    [[nodiscard]] bool hasTestExtension() const { return m_hasTest; }

Q_SIGNALS:
    /// One event of the server, valid during the call.
    void eventArrived(XEvent* event);

private:
    explicit XlibConnection(Display* display);
    void queryExtensions();
    void select(XWindow window);

    Display* m_display;
    XWindow m_root;
    int m_screen;
    std::map<QByteArray, XAtom> m_atoms;
    std::multimap<XWindow, long> m_masks;
    std::optional<int> m_inputOpcode;
    std::optional<int> m_fixesEvents;
    std::optional<int> m_keyboardEvents;
    bool m_hasTest = false;
};

} // namespace vellumry
