// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/PasteKeys.h"

#include <functional>
#include <memory>

namespace vellumry {

class KeyboardLayout;

/// Tells when the user is about to paste, and holds the key until the listener is done with the pasteboard. All
/// other presses go on their way at once. Main thread.
class PasteKeyListener {
public:
    /// Both must outlive the listener. `ownPID`: this process.
    PasteKeyListener(PasteKeys& keys, const KeyboardLayout& layout, qint64 ownPID);
    ~PasteKeyListener();
    PasteKeyListener(const PasteKeyListener&) = delete;
    PasteKeyListener& operator=(const PasteKeyListener&) = delete;

    /// False when the paste keys cannot be listened to; nothing has changed then. A second call gives true.
    [[nodiscard]] bool start();
    /// Safe to call when not listening.
    void stop();
    [[nodiscard]] bool isListening() const { return m_isListening; }

    /// Does this press paste, and is it the stack's concern? Ctrl must be down and Super up, Shift and Alt may be
    /// either; Shift+Insert pastes as well. A repeated press, one of our own, and one into our own windows is none.
    [[nodiscard]] static bool shouldPaste(const KeyPress& press, KeyCode vKeyCode, qint64 ownPID);

    /// The user pastes. The key waits as long as it is kept, within its own limit.
    std::function<void(std::shared_ptr<HeldKey> key)> onPaste;
    /// Keys reach a window of ours now.
    std::function<bool()> isOwnWindowFocused = [] { return false; };

private:
    void handle(KeyPress press, std::shared_ptr<HeldKey> key);

    PasteKeys* m_keys;
    const KeyboardLayout* m_layout;
    qint64 m_ownPID;
    KeyCode m_vKeyCode = KeyCode::v;
    bool m_isListening = false;
};

} // namespace vellumry
