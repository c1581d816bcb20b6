// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/keys/X11PassiveGrabs.h"
#include "linux/x11/windows/XlibConnection.h"
#include "platform/display/HotKeyRegistrar.h"

#include <QObject>
#include <QTimer>
#include <memory>

namespace vellumry {

class X11Keymap;

/// Hot keys as passive grabs of the X Input extension on the root window. They follow a change of the keyboard layout,
/// work whatever lock is on, and are taken anew when the window manager is replaced. Another program's combination is
/// found taken whichever kind of grab it uses, save for X Input grabs on other master keyboards.
class X11HotKeys : public QObject, public HotKeyRegistrar {
    Q_OBJECT
public:
    explicit X11HotKeys(std::shared_ptr<XlibConnection> connection);
    ~X11HotKeys() override;

    [[nodiscard]] bool grab(quint32 id, KeyCode keyCode, Modifiers modifiers) override;
    void release(quint32 id) override;

private:
    using Combination = passivegrabs::Combination;
    struct HotKey {
        KeyCode keyCode{};
        Modifiers modifiers;
        /// Absent while the keyboard has no such key or another program took it.
        std::optional<Combination> held;
    };

    [[nodiscard]] const X11Keymap& currentKeymap();
    [[nodiscard]] std::optional<Combination> combinationFor(const X11Keymap& keymap, const HotKey& key) const;
    [[nodiscard]] bool hold(const Combination& combination);
    void letGo(const Combination& combination);
    void listenForChanges();
    void handleEvent(XEvent* event);
    void handleKey(XEvent* event);
    /// Holds back every key until the ungrab that must follow in the same call.
    void freeze(int device);
    void answer(quint32 keycode, unsigned int modifiers);
    void grabAgain();

    std::shared_ptr<XlibConnection> m_connection;
    std::map<quint32, HotKey> m_keys;
    std::unique_ptr<const X11Keymap> m_keymap; ///< of this turn of the event loop
    unsigned int m_shortcutMask = 0;
    int m_keyboard = 0;
    QTimer m_grabAgain;
    /// The window manager was replaced: all are taken anew, changed or not.
    bool m_managerChanged = false;
};

} // namespace vellumry
