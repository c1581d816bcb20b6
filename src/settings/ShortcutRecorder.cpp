// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ShortcutRecorder.h"

#include "foundation/Localisation.h"
#include "platform/display/KeyboardLayout.h"

#include <algorithm>
#include <array>

namespace vellumry {

namespace {

bool isModifier(int key) {
    constexpr std::array modifiers{Qt::Key_Shift,      Qt::Key_Control,  Qt::Key_Alt,     Qt::Key_AltGr,
                                   Qt::Key_Meta,       Qt::Key_Super_L,  Qt::Key_Super_R, Qt::Key_Hyper_L,
                                   Qt::Key_Hyper_R,    Qt::Key_CapsLock, Qt::Key_NumLock, Qt::Key_ScrollLock,
                                   Qt::Key_Mode_switch};
    return std::ranges::find(modifiers, key) != modifiers.end();
}

} // namespace

ShortcutRecorder::ShortcutRecorder(const Shortcut& fallback, const KeyboardLayout& layout, Hooks hooks)
    : m_fallback(fallback)
    , m_layout(&layout)
    , m_hooks(std::move(hooks))
    , m_shortcut(fallback) {}

QString ShortcutRecorder::title() const {
    return m_isRecording ? localised("Press new shortcut…") : m_shortcut.display(*m_layout);
}

void ShortcutRecorder::setShortcut(const Shortcut& shortcut) {
    if (shortcut == m_shortcut)
        return;
    m_shortcut = shortcut;
    Q_EMIT changed();
}

void ShortcutRecorder::toggle() {
    if (m_isRecording) {
        stop();
        return;
    }
    m_isRecording = true;
    m_wasRefused = false;
    m_hooks.onRecording(true);
    Q_EMIT changed();
}

void ShortcutRecorder::stop() {
    if (!m_isRecording)
        return;
    m_isRecording = false;
    m_wasRefused = false;
    m_hooks.onRecording(false);
    Q_EMIT changed();
}

void ShortcutRecorder::take(const Shortcut& shortcut) {
    m_shortcut = shortcut;
    // The keys are given back first, so that what the change registers is not registered twice.
    stop();
    m_hooks.onChange(shortcut);
}

bool ShortcutRecorder::press(int key, int modifiers, quint32 nativeScanCode) {
    if (!m_isRecording)
        return false;
    if (isModifier(key))
        return true; // the key that it goes with is still to come
    if (key == Qt::Key_Backspace || key == Qt::Key_Delete) {
        take(m_fallback);
        return true;
    }
    if (key == Qt::Key_Escape) {
        stop();
        return true;
    }
    const std::optional<KeyCode> keyCode = m_layout->keyCodeOfScanCode(nativeScanCode);
    const auto shortcut =
        keyCode ? Shortcut::create(*keyCode, modifiersOf(Qt::KeyboardModifiers::fromInt(modifiers))) : std::nullopt;
    if (shortcut) {
        take(*shortcut);
        return true;
    }
    m_wasRefused = true;
    m_hooks.beep();
    Q_EMIT changed();
    return true;
}

} // namespace vellumry
