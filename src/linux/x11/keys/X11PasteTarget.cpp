// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/keys/X11PasteTarget.h"

#include "foundation/OneShot.h"
#include "linux/keys/FocusReturn.h"
#include "linux/keys/TerminalApps.h"
#include "linux/x11/keys/X11Keymap.h"
#include "linux/x11/windows/XErrorTrap.h"
#include "linux/x11/windows/XWindowProperties.h"

#include <QCoreApplication>
#include <QPointer>
#include <linux/input-event-codes.h>

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <xkbcommon/xkbcommon-names.h>

namespace vellumry {

namespace {

/// Menus let the keyboard go as they disappear; nothing tells of that.
constexpr std::chrono::milliseconds keyboardLook{15};
constexpr int mostKeyboardLooks = 40;

constexpr quint32 placeOf(quint32 evdevCode) {
    return evdevCode + keycodes::xOffset;
}

} // namespace

X11PasteTarget::X11PasteTarget(std::shared_ptr<XlibConnection> connection, std::shared_ptr<X11Focus> focus,
                               Options options)
    : m_connection(std::move(connection))
    , m_focus(std::move(focus))
    , m_options(std::move(options)) {}

bool X11PasteTarget::isTrusted() const {
    if (!m_options.everywhere || !m_options.everywhere->isThere())
        return m_connection->hasTestExtension();
    return m_options.everywhere->isReady() || (m_connection->hasTestExtension() && m_focus->isProgramRemembered());
}

void X11PasteTarget::requestTrust() {
    if (m_options.everywhere)
        m_options.everywhere->requestPermission();
}

KeyInjector* X11PasteTarget::injector() const {
    return m_options.everywhere && m_options.everywhere->isReady() ? m_options.everywhere.get() : nullptr;
}

QCoro::Task<bool> X11PasteTarget::isSecureInput() {
    if (isKeyboardTaken())
        co_return true;
    if (!m_options.isPasswordField)
        co_return false;
    auto asking = m_options.isPasswordField(windowproperties::processOf(*m_connection, windowInFront()));
    co_return co_await asking;
}

// Screen lockers and password prompts keep the keyboard to themselves, and only a try tells. Taking it succeeds where a
// hot key of our own holds it.
bool X11PasteTarget::isKeyboardTaken() const {
    Display* display = m_connection->display();
    const int result = XGrabKeyboard(display, m_connection->root(), False, GrabModeAsync, GrabModeAsync, CurrentTime);
    if (result == GrabSuccess)
        XUngrabKeyboard(display, CurrentTime);
    XSync(display, False);
    return result == AlreadyGrabbed || result == GrabFrozen;
}

QCoro::Task<bool> X11PasteTarget::regainFocus() {
    const QPointer<QObject> self(this);
    if (KeyInjector* keys = injector()) {
        auto preparing = keys->prepare();
        const bool isPrepared = co_await preparing;
        if (self == nullptr || !isPrepared)
            co_return false;
    }
    auto returning = focusReturned(m_focus, self, m_options.focusDeadline);
    co_return co_await returning;
}

QCoro::Task<void> X11PasteTarget::keyboardFree() {
    const QPointer<X11PasteTarget> guard(this);
    for (int looks = 0; looks < mostKeyboardLooks && guard != nullptr && isKeyboardTaken(); ++looks) {
        const OneShot<void> next;
        next.deliverAfter(keyboardLook);
        co_await next;
    }
}

void X11PasteTarget::pressPaste() {
    if (!isTrusted())
        return;
    const X11Keymap keymap = X11Keymap::read(*m_connection);
    const quint32 control = keymap.keycodeOf(XK_Control_L, placeOf(KEY_LEFTCTRL));
    const quint32 shift = keymap.keycodeOf(XK_Shift_L, placeOf(KEY_LEFTSHIFT));
    const quint32 letter = keymap.keycodeTyping(u'v', placeOf(KEY_V));
    const bool isTerminal = isTerminalInFront();
    const bool hasPrimary = isTerminal && m_options.offerAsPrimary && m_options.offerAsPrimary();
    if (KeyInjector* keys = injector()) {
        const quint32 paste = hasPrimary ? KEY_INSERT : letter - keycodes::xOffset;
        std::vector<KeyInjector::Modifier> modifiers;
        if (!hasPrimary)
            modifiers.push_back({KEY_LEFTCTRL, XKB_MOD_NAME_CTRL});
        if (isTerminal)
            modifiers.push_back({KEY_LEFTSHIFT, XKB_MOD_NAME_SHIFT});
        m_options.willPress();
        keys->press(modifiers, paste);
        return;
    }
    releaseHeldKeys();
    m_options.willPress();
    if (hasPrimary)
        pressChord({shift, keymap.keycodeOf(XK_Insert, placeOf(KEY_INSERT))});
    else if (isTerminal)
        // Most terminals paste the clipboard on this one; Shift+Insert would paste what the primary selection holds.
        pressChord({control, shift, letter});
    else
        pressChord({control, letter});
    XSync(m_connection->display(), False);
}

XWindow X11PasteTarget::windowInFront() const {
    const XWindow client = windowproperties::clientOf(*m_connection, windowproperties::focusWindow(*m_connection));
    return client != 0 ? client : windowproperties::activeWindow(*m_connection);
}

QStringList X11PasteTarget::namesInFront() const {
    const auto windowClass = windowproperties::windowClass(*m_connection, windowInFront());
    return {windowClass.name, windowClass.instance};
}

bool X11PasteTarget::isTerminalInFront() const {
    const QStringList userNames = m_options.terminalApps ? m_options.terminalApps() : QStringList();
    return terminalapps::contains(namesInFront(), userNames);
}

bool X11PasteTarget::looksFirst() const {
    return terminalapps::looksFirst(namesInFront());
}

// Every key, not only the modifiers: a key that is down cannot be pressed once more. The user's own release later goes
// unnoticed. They are not pressed again: a modifier pressed by us would stay down when the user lets go of the real
// one.
void X11PasteTarget::releaseHeldKeys() {
    char down[X11Keymap::keyCount / 8];
    XQueryKeymap(m_connection->display(), down);
    for (quint32 key = keycodes::xOffset; key < X11Keymap::keyCount; ++key) {
        if ((down[key / 8] & (1 << (key % 8))) != 0)
            XTestFakeKeyEvent(m_connection->display(), key, False, CurrentTime);
    }
}

void X11PasteTarget::pressChord(const std::vector<quint32>& keycodes) {
    Display* display = m_connection->display();
    for (const quint32 key : keycodes)
        XTestFakeKeyEvent(display, key, True, CurrentTime);
    for (auto key = keycodes.rbegin(); key != keycodes.rend(); ++key)
        XTestFakeKeyEvent(display, *key, False, CurrentTime);
}

} // namespace vellumry
