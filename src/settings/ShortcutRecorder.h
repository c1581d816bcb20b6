// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "paste/Shortcut.h"

#include <QObject>
#include <functional>
#include <qqmlregistration.h>

namespace vellumry {

class KeyboardLayout;

/// Takes a new shortcut from the keyboard. What was pressed is shown with the letters of the layout in use. Main
/// thread.
class ShortcutRecorder : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The settings have them.")
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(bool isRecording READ isRecording NOTIFY changed)
    Q_PROPERTY(bool wasRefused READ wasRefused NOTIFY changed)

public:
    struct Hooks {
        std::function<void(const Shortcut& shortcut)> onChange = [](const Shortcut&) {};
        /// Global shortcuts must not fire, or keep a key to themselves, while one is recorded.
        std::function<void(bool isRecording)> onRecording = [](bool) {};
        std::function<void()> beep = [] {};
    };

    /// `fallback` is what Backspace brings back. `layout` must outlive this.
    ShortcutRecorder(const Shortcut& fallback, const KeyboardLayout& layout, Hooks hooks);

    /// The shortcut, or what to do while recording.
    [[nodiscard]] QString title() const;
    [[nodiscard]] bool isRecording() const { return m_isRecording; }
    /// The keys that were pressed last make no shortcut.
    [[nodiscard]] bool wasRefused() const { return m_wasRefused; }
    [[nodiscard]] const Shortcut& shortcut() const { return m_shortcut; }
    void setShortcut(const Shortcut& shortcut);

    Q_INVOKABLE void toggle();
    /// Ends the recording without a change; nothing when there is none.
    Q_INVOKABLE void stop();
    /// A key as Qt tells it, with its place on the keyboard. True while recording: the key is used up.
    Q_INVOKABLE bool press(int key, int modifiers, quint32 nativeScanCode);

Q_SIGNALS:
    void changed();

private:
    void take(const Shortcut& shortcut);

    Shortcut m_fallback;
    const KeyboardLayout* m_layout;
    Hooks m_hooks;
    Shortcut m_shortcut;
    bool m_isRecording = false;
    bool m_wasRefused = false;
};

} // namespace vellumry
