// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/PasteKeyListener.h"

#include "platform/display/KeyboardLayout.h"

#include <utility>

namespace vellumry {

PasteKeyListener::PasteKeyListener(PasteKeys& keys, const KeyboardLayout& layout, qint64 ownPID)
    : m_keys(&keys)
    , m_layout(&layout)
    , m_ownPID(ownPID) {}

PasteKeyListener::~PasteKeyListener() {
    stop();
}

bool PasteKeyListener::start() {
    if (m_isListening)
        return true;
    m_vKeyCode = m_layout->keyCodeFor(u'v').value_or(KeyCode::v);
    m_keys->onPress = [this](const KeyPress& press, std::shared_ptr<HeldKey> key) { handle(press, std::move(key)); };
    m_isListening = m_keys->start();
    if (!m_isListening)
        m_keys->onPress = nullptr;
    return m_isListening;
}

void PasteKeyListener::stop() {
    if (!std::exchange(m_isListening, false))
        return;
    m_keys->stop();
    m_keys->onPress = nullptr;
}

void PasteKeyListener::handle(KeyPress press, std::shared_ptr<HeldKey> key) {
    if (press.targetPID == 0 && isOwnWindowFocused())
        press.targetPID = m_ownPID;
    if (onPaste && shouldPaste(press, m_vKeyCode, m_ownPID))
        onPaste(std::move(key));
    else
        key->letGo(HeldKey::Contents::same);
}

bool PasteKeyListener::shouldPaste(const KeyPress& press, KeyCode vKeyCode, qint64 ownPID) {
    // Holding the keys down pastes once.
    if (press.isRepeat)
        return false;
    // What we press ourselves was written for it just now.
    if (press.sourceUserData == ownEventMark)
        return false;
    if (press.targetPID != 0 && press.targetPID == ownPID)
        return false;
    if (press.keyCode == KeyCode::insert && press.modifiers == Modifier::shift)
        return true;
    if ((press.modifiers & (Modifier::command | Modifier::control)) != Modifier::command)
        return false;
    if (press.characters.toLower() == u"v")
        return true;
    // Layouts whose letters are not Latin type something else.
    return press.keyCode == vKeyCode;
}

} // namespace vellumry
