// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/KeyCode.h"
#include "platform/display/Modifiers.h"
#include "platform/display/PasteboardItem.h"

#include <QString>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace vellumry {

/// What keys that the program presses itself carry, where the platform lets them carry anything.
inline constexpr qint64 ownEventMark = 0x564C5259;

/// One press of a key, as far as it matters for telling a paste.
struct KeyPress {
    /// `v` is the key that types v in the layout in use, also where its letters are not Latin. Absent for a key that
    /// matters by what it types alone.
    std::optional<KeyCode> keyCode;
    Modifiers modifiers;
    /// The key is held down and repeats by itself.
    bool isRepeat = false;
    /// What the key types in the layout in use, without modifiers; empty where it types nothing.
    QString characters;
    /// `ownEventMark` for keys that the program pressed itself.
    qint64 sourceUserData = 0;
    /// The process that the key is meant for, 0 where it is unknown.
    qint64 targetPID = 0;

    bool operator==(const KeyPress&) const = default;
};

/// A press that waits: the program it is meant for gets it once it is let go of, and then finds on the pasteboard what
/// is there by that time. Main thread. Destroying it lets it go as it is.
class HeldKey {
public:
    enum class Contents : quint8 {
        same, ///< the pasteboard was left as it was
        fresh ///< it was written for this press
    };

    virtual ~HeldKey() = default;
    /// False once it has gone, let go of or by itself: no key waits longer than 150 ms from when it was told of,
    /// whatever happens. What is written then comes too late for it.
    [[nodiscard]] virtual bool isHeld() const = 0;
    /// How long it still waits at most; not positive once it has gone.
    [[nodiscard]] virtual std::chrono::milliseconds timeLeft() const = 0;
    /// A second call does nothing.
    virtual void letGo(Contents contents) = 0;
};

/// Holds the user's paste keys (Ctrl+V, with Shift or Alt too, and Shift+Insert) back for a moment, so that the
/// pasteboard can be changed ahead of them. Nothing is ever swallowed or rewritten. Main thread.
class PasteKeys {
public:
    virtual ~PasteKeys() = default;
    /// False when another program holds Ctrl+V, or the platform knows no such thing. True also when started already.
    [[nodiscard]] virtual bool start() = 0;
    /// A key that waits goes on its way. Does nothing when not started.
    virtual void stop() = 0;
    /// True where a press cannot be held back, and is told of when it has been served: what it is to paste must stand
    /// on the pasteboard before. False where it can.
    [[nodiscard]] virtual bool wantsNext() const { return false; }
    /// What the next press is to paste; absent for nothing new. For implementations that want it, while started.
    virtual void expect(std::optional<std::vector<PasteboardItem>> items) { Q_UNUSED(items) }
    /// Called on the main thread for each press of such a key; the next comes when this one was let go of. A press that
    /// follows a paste comes when the program in front has fetched what it was to paste, or is taken not to want it.
    std::function<void(const KeyPress& press, std::shared_ptr<HeldKey> key)> onPress;
};

} // namespace vellumry
