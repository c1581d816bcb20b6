// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/keys/X11HotKeys.h"

#include "linux/x11/keys/X11Keymap.h"
#include "linux/x11/windows/XErrorTrap.h"

#include <array>

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/extensions/XInput2.h>

namespace vellumry {

namespace {

/// A change of layout comes as a handful of notices.
constexpr int grabAgainMilliseconds = 50;

} // namespace

X11HotKeys::X11HotKeys(std::shared_ptr<XlibConnection> connection)
    : m_connection(std::move(connection)) {
    m_grabAgain.setSingleShot(true);
    m_grabAgain.setInterval(grabAgainMilliseconds);
    connect(&m_grabAgain, &QTimer::timeout, this, &X11HotKeys::grabAgain);
    if (!m_connection->inputExtension().has_value())
        return;
    m_keyboard = passivegrabs::masterKeyboard(*m_connection);
    listenForChanges();
    connect(m_connection.get(), &XlibConnection::eventArrived, this, &X11HotKeys::handleEvent);
}

X11HotKeys::~X11HotKeys() {
    for (const auto& [id, key] : m_keys) {
        if (key.held.has_value())
            letGo(*key.held);
    }
    m_connection->flush();
}

void X11HotKeys::listenForChanges() {
    m_connection->listen(m_connection->root(), PropertyChangeMask);
    if (!m_connection->keyboardEvents().has_value())
        return;
    const unsigned int events = XkbNewKeyboardNotifyMask | XkbMapNotifyMask;
    XkbSelectEvents(m_connection->display(), XkbUseCoreKbd, events, events);
}

bool X11HotKeys::grab(quint32 id, KeyCode keyCode, Modifiers modifiers) {
    if (!m_connection->inputExtension().has_value() || m_keys.contains(id))
        return false;
    const X11Keymap& keymap = currentKeymap();
    HotKey key{keyCode, modifiers, {}};
    const auto combination = combinationFor(keymap, key);
    if (!combination.has_value())
        return false;
    for (const auto& [otherID, other] : m_keys) {
        if (other.held == combination)
            return false;
    }
    if (!passivegrabs::isFreeOfCoreGrabs(*m_connection, *combination) || !hold(*combination))
        return false;
    key.held = combination;
    m_shortcutMask = keymap.shortcutMask();
    m_keys.emplace(id, key);
    return true;
}

/// Many keys are registered at once: they share a look.
const X11Keymap& X11HotKeys::currentKeymap() {
    if (!m_keymap) {
        m_keymap = std::make_unique<const X11Keymap>(X11Keymap::read(*m_connection));
        QMetaObject::invokeMethod(
            this, [this] { m_keymap.reset(); }, Qt::QueuedConnection);
    }
    return *m_keymap;
}

void X11HotKeys::release(quint32 id) {
    const auto found = m_keys.find(id);
    if (found == m_keys.end())
        return;
    if (found->second.held.has_value())
        letGo(*found->second.held);
    m_keys.erase(found);
    m_connection->flush();
}

std::optional<X11HotKeys::Combination> X11HotKeys::combinationFor(const X11Keymap& keymap, const HotKey& key) const {
    const auto keycode = keymap.keycodeFor(key.keyCode);
    const auto mask = keymap.maskFor(key.modifiers);
    if (!keycode.has_value() || !mask.has_value())
        return std::nullopt;
    return Combination{*keycode, *mask, keymap.lockCombinations()};
}

bool X11HotKeys::hold(const Combination& combination) {
    return passivegrabs::hold(*m_connection, m_keyboard, combination, passivegrabs::Mode::passOn);
}

void X11HotKeys::letGo(const Combination& combination) {
    passivegrabs::letGo(*m_connection, m_keyboard, combination);
}

void X11HotKeys::handleEvent(XEvent* event) {
    if (event->type == GenericEvent && event->xcookie.extension == m_connection->inputExtension() &&
        event->xcookie.evtype == XI_KeyPress) {
        handleKey(event);
        return;
    }
    const bool managerChanged = event->type == PropertyNotify && event->xproperty.window == m_connection->root() &&
                                event->xproperty.atom == m_connection->atom("_NET_SUPPORTING_WM_CHECK");
    const bool keysChanged = event->type == MappingNotify || event->type == m_connection->keyboardEvents();
    if (!managerChanged && !keysChanged)
        return;
    if (event->type == MappingNotify)
        XRefreshKeyboardMapping(&event->xmapping);
    m_managerChanged = m_managerChanged || managerChanged;
    m_grabAgain.start();
}

void X11HotKeys::handleKey(XEvent* event) {
    const auto* press = static_cast<const XIDeviceEvent*>(event->xcookie.data);
    if (press == nullptr)
        return;
    const int device = press->deviceid;
    if ((press->flags & XIKeyRepeat) == 0) {
        // What is typed before the answer stands on the screen waits for it: the panel's first letter must not land in
        // the window below.
        freeze(device);
        answer(quint32(press->detail), unsigned(press->mods.effective));
    }
    // The held key keeps the whole keyboard for us; the panel could not be typed into, nor could anybody grab.
    XIUngrabDevice(m_connection->display(), device, CurrentTime);
    XSync(m_connection->display(), False);
}

void X11HotKeys::freeze(int device) {
    std::array<unsigned char, XIMaskLen(XI_LASTEVENT)> bits{};
    XIEventMask mask{device, int(bits.size()), bits.data()};
    XErrorTrap trap(m_connection->display());
    XIGrabDevice(m_connection->display(), device, m_connection->root(), CurrentTime, 0, XIGrabModeSync, XIGrabModeAsync,
                 False, &mask);
}

void X11HotKeys::answer(quint32 keycode, unsigned int modifiers) {
    const unsigned int mask = modifiers & m_shortcutMask;
    for (const auto& [id, key] : m_keys) {
        if (key.held.has_value() && key.held->keycode == keycode && key.held->mask == mask) {
            const quint32 pressed = id;
            if (onPressed)
                onPressed(pressed);
            return;
        }
    }
}

void X11HotKeys::grabAgain() {
    const X11Keymap keymap = X11Keymap::read(*m_connection);
    m_shortcutMask = keymap.shortcutMask();
    std::vector<HotKey*> changed;
    for (auto& [id, key] : m_keys) {
        if (!m_managerChanged && combinationFor(keymap, key) == key.held)
            continue;
        if (key.held.has_value())
            letGo(*key.held);
        key.held.reset();
        changed.push_back(&key);
    }
    // All old ones go first: a new layout may give one key's place to another.
    for (HotKey* key : changed) {
        const auto combination = combinationFor(keymap, *key);
        if (combination.has_value() && hold(*combination))
            key->held = combination;
    }
    m_managerChanged = false;
    m_connection->flush();
}

} // namespace vellumry
