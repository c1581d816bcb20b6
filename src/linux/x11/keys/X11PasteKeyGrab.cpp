// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/keys/X11PasteKeyGrab.h"

#include "linux/keys/KeyCodes.h"

#include <algorithm>
#include <linux/input-event-codes.h>
#include <utility>

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/extensions/XInput2.h>
#include <X11/keysym.h>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

constexpr quint32 placeOfV = KEY_V + keycodes::xOffset;
constexpr quint32 placeOfInsert = KEY_INSERT + keycodes::xOffset;

/// A change of layout comes as a handful of notices.
constexpr auto grabAgainDelay = 50ms;
constexpr auto servedLookInterval = 1ms;
/// A program that has not fetched a paste by then is taken not to want it.
constexpr auto pasteIsRecent = 1s;

} // namespace

X11PasteKeyGrab::X11PasteKeyGrab(Options options)
    : m_options(std::move(options))
    , m_grabAgain(this)
    , m_watchdog(this)
    , m_servedLook(this)
    , m_listedLook(this) {
    m_grabAgain.setSingleShot(true);
    m_grabAgain.setInterval(grabAgainDelay);
    connect(&m_grabAgain, &QTimer::timeout, this, &X11PasteKeyGrab::grabAgain);
    m_watchdog.setSingleShot(true);
    m_watchdog.setTimerType(Qt::PreciseTimer);
    connect(&m_watchdog, &QTimer::timeout, this, &X11PasteKeyGrab::replay);
    m_servedLook.setTimerType(Qt::PreciseTimer);
    m_servedLook.setInterval(servedLookInterval);
    connect(&m_servedLook, &QTimer::timeout, this, &X11PasteKeyGrab::tellWhenServed);
    m_listedLook.setTimerType(Qt::PreciseTimer);
    m_listedLook.setInterval(servedLookInterval);
    connect(&m_listedLook, &QTimer::timeout, this, &X11PasteKeyGrab::replayWhenListed);
}

X11PasteKeyGrab::~X11PasteKeyGrab() {
    if (!m_connection)
        return;
    replay();
    releaseAll();
    m_connection->flush();
}

bool X11PasteKeyGrab::start() {
    m_connection = XlibConnection::create(m_options.displayName).value_or(nullptr);
    if (!m_connection || !m_connection->inputExtension().has_value())
        return false;
    m_keyboard = passivegrabs::masterKeyboard(*m_connection);
    m_testKeyboards = passivegrabs::testKeyboards(*m_connection);
    listenForChanges();
    readKeyboard();
    connect(m_connection.get(), &XlibConnection::eventArrived, this, &X11PasteKeyGrab::handleEvent);
    // What we pressed before is not held up here; left announced it would stand for a key of the user.
    if (m_options.injected)
        m_options.injected->forget();
    const bool isHolding = grabAll(true);
    m_connection->flush();
    return isHolding;
}

void X11PasteKeyGrab::listenForChanges() {
    m_connection->listen(m_connection->root(), PropertyChangeMask);
    if (!m_connection->keyboardEvents().has_value())
        return;
    const unsigned int events = XkbNewKeyboardNotifyMask | XkbMapNotifyMask;
    XkbSelectEvents(m_connection->display(), XkbUseCoreKbd, events, events);
}

void X11PasteKeyGrab::readKeyboard() {
    m_keymap = X11Keymap::read(*m_connection);
}

// The grabs

/// Every key that types v in one of the user's layouts: which of them pastes is seen when it is pressed.
std::vector<passivegrabs::Combination> X11PasteKeyGrab::wanted() const {
    std::vector<quint32> letters = m_keymap.keycodesTyping(u'v');
    if (const quint32 usual = m_keymap.keycodeTyping(u'v', placeOfV); std::ranges::count(letters, usual) == 0)
        letters.push_back(usual);
    const auto locks = m_keymap.lockCombinations();
    std::vector<passivegrabs::Combination> combinations;
    using enum Modifier;
    for (const Modifiers modifiers :
         {Modifiers(command), command | shift, command | option, command | shift | option}) {
        const auto mask = m_keymap.maskFor(modifiers);
        for (const quint32 letter : letters) {
            if (mask.has_value())
                combinations.push_back({letter, *mask, locks});
        }
    }
    combinations.push_back({m_keymap.keycodeOf(XK_Insert, placeOfInsert), ShiftMask, locks});
    return combinations;
}

bool X11PasteKeyGrab::isTheUsual(const passivegrabs::Combination& combination) const {
    return combination.mask == ControlMask && combination.keycode == m_keymap.keycodeTyping(u'v', placeOfV);
}

/// Ctrl+V must be had; without another of them the rest still works. Where another client's core grab is in the way is
/// looked at once: it would be found taken for good where the layout changes back and forth.
bool X11PasteKeyGrab::grabAll(bool isFirst) {
    for (const auto& combination : wanted()) {
        const bool isFree = !isFirst || passivegrabs::isFreeOfCoreGrabs(*m_connection, combination);
        if (isFree && passivegrabs::hold(*m_connection, m_keyboard, combination, passivegrabs::Mode::hold))
            m_grabs.push_back(combination);
        else if (isFirst && isTheUsual(combination))
            return false;
    }
    return true;
}

void X11PasteKeyGrab::releaseAll() {
    for (const auto& combination : std::exchange(m_grabs, {}))
        passivegrabs::letGo(*m_connection, m_keyboard, combination);
}

void X11PasteKeyGrab::grabAgain() {
    releaseAll();
    readKeyboard();
    (void)grabAll(false);
    m_connection->flush();
}

// The presses

void X11PasteKeyGrab::handleEvent(XEvent* event) {
    if (event->type == GenericEvent && event->xcookie.extension == m_connection->inputExtension()) {
        if (event->xcookie.evtype == XI_KeyPress)
            handleKey(event);
        return;
    }
    handleKeyboardChange(event);
}

void X11PasteKeyGrab::handleKeyboardChange(XEvent* event) {
    const bool managerChanged = event->type == PropertyNotify && event->xproperty.window == m_connection->root() &&
                                event->xproperty.atom == m_connection->atom("_NET_SUPPORTING_WM_CHECK");
    const bool keysChanged = event->type == MappingNotify || event->type == m_connection->keyboardEvents();
    if (event->type == MappingNotify)
        XRefreshKeyboardMapping(&event->xmapping);
    if (managerChanged || keysChanged)
        m_grabAgain.start();
}

void X11PasteKeyGrab::handleKey(XEvent* event) {
    const auto* press = static_cast<const XIDeviceEvent*>(event->xcookie.data);
    if (press == nullptr)
        return;
    replay(); // the server holds one press at a time; one that was taken for held has gone
    const Instant now = std::chrono::steady_clock::now();
    m_heldDevice = press->deviceid;
    m_heldTime = press->time;
    m_heldSince = now;
    m_held = heldFor(quint32(press->detail), unsigned(press->mods.effective), unsigned(press->group.effective));
    // Neither is a paste, and neither may wait for the main thread.
    const bool isRepeat = (press->flags & XIKeyRepeat) != 0;
    const bool isOurs = !isRepeat && isOwn(press->sourceid);
    if (isRepeat || isOurs) {
        if (isOurs)
            m_lastPaste = now;
        replay();
        return;
    }
    tellWhenServed();
}

bool X11PasteKeyGrab::isOwn(int device) const {
    return std::ranges::count(m_testKeyboards, device) > 0 && m_options.injected &&
           m_options.injected->claim(std::chrono::steady_clock::now());
}

X11PasteKeyGrab::Held X11PasteKeyGrab::heldFor(quint32 keycode, unsigned int modifiers, unsigned int group) const {
    X11Keymap keymap = m_keymap;
    keymap.setActiveGroup(group);
    const bool isInsert = keycode == keymap.keycodeOf(XK_Insert, placeOfInsert);
    Held held;
    if (keycode == keymap.keycodeTyping(u'v', placeOfV))
        held.press.keyCode = KeyCode::v;
    else if (isInsert)
        held.press.keyCode = KeyCode::insert;
    held.press.characters = keymap.charactersFor(keycode, group).value_or(QString());
    for (const Modifier modifier : {Modifier::command, Modifier::control, Modifier::option, Modifier::shift}) {
        const auto mask = m_keymap.maskFor(modifier);
        held.press.modifiers.setFlag(modifier, mask.has_value() && (modifiers & *mask) != 0);
    }
    held.pastesPrimary = isInsert;
    held.isHeld = std::make_shared<std::atomic<bool>>(true);
    return held;
}

// What replaces the contents too early is pasted twice, and what was there is lost: programs fetch a paste a while
// after its key.
void X11PasteKeyGrab::tellWhenServed() {
    const Instant now = std::chrono::steady_clock::now();
    const bool isAwaited = m_lastPaste && now - *m_lastPaste < pasteIsRecent && m_options.wasServed;
    if (isAwaited && !m_options.wasServed() && now - m_heldSince < m_options.servedLimit) {
        m_servedLook.start();
        return;
    }
    m_servedLook.stop();
    m_held->serial = ++m_lastSerial;
    m_held->until = now + m_options.holdLimit;
    m_watchdog.start(m_options.holdLimit);
    m_options.onHeld(*m_held);
}

void X11PasteKeyGrab::letGo(quint64 serial, HeldKey::Contents contents, bool looksFirst) {
    if (!m_held || m_held->serial != serial)
        return;
    m_lastPaste.reset();
    if (contents == HeldKey::Contents::fresh)
        m_lastPaste = std::chrono::steady_clock::now();
    if (looksFirst && m_options.wasListed)
        replayWhenListed();
    else
        replay();
}

void X11PasteKeyGrab::retire(std::function<void()> whenGone) {
    m_grabAgain.stop();
    if (!m_connection) {
        whenGone();
        return;
    }
    releaseAll();
    m_connection->flush();
    if (m_held && m_listedLook.isActive()) {
        m_whenGone = std::move(whenGone);
        return;
    }
    replay();
    whenGone();
}

void X11PasteKeyGrab::replayWhenListed() {
    if (m_options.wasListed())
        replay();
    else
        m_listedLook.start();
}

void X11PasteKeyGrab::replay() {
    m_watchdog.stop();
    m_servedLook.stop();
    m_listedLook.stop();
    if (!m_held)
        return;
    m_held->isHeld->store(false);
    m_held.reset();
    XIAllowEvents(m_connection->display(), m_heldDevice, XIReplayDevice, m_heldTime);
    m_connection->flush();
    if (const auto whenGone = std::exchange(m_whenGone, nullptr))
        whenGone();
}

} // namespace vellumry
