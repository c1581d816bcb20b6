// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/keys/InjectedPresses.h"
#include "linux/x11/keys/X11Keymap.h"
#include "linux/x11/keys/X11PassiveGrabs.h"
#include "platform/display/PasteKeys.h"

#include <QObject>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace vellumry {

/// The grabs behind `X11PasteKeys`: synchronous passive grabs of the X Input extension, which stop the keyboard behind
/// the press until it is replayed to the program in front. Lives on a thread of its own, which waits for nothing but
/// the X server, so that a busy main thread cannot hold the user's keyboard for longer than `holdLimit`. Before that a
/// press waits for the paste before it to be fetched: a slow program would else paste one item twice and another never.
class X11PasteKeyGrab : public QObject {
    Q_OBJECT
public:
    /// One press that waits, as the main thread gets it.
    struct Held {
        quint64 serial = 0;
        KeyPress press;
        bool pastesPrimary = false; ///< programs may take the primary selection for it
        std::shared_ptr<std::atomic<bool>> isHeld;
        std::chrono::steady_clock::time_point until; ///< when it goes by itself
    };
    struct Options {
        QByteArray displayName;
        /// The program in front has fetched what was last written. Any thread.
        std::function<bool()> wasServed;
        /// Some program has asked for the types of what was last written. Any thread.
        std::function<bool()> wasListed;
        std::shared_ptr<InjectedPresses> injected;
        /// A press waits. This thread.
        std::function<void(const Held&)> onHeld;
        /// No press waits longer once it was told of, whatever happens.
        std::chrono::milliseconds holdLimit{150};
        /// How long it waits before that for the paste before it to be fetched. Programs under load were seen to fetch
        /// 200 ms after their key.
        std::chrono::milliseconds servedLimit{600};
    };

    explicit X11PasteKeyGrab(Options options);
    /// A key that waits goes on its way; all grabs go.
    ~X11PasteKeyGrab() override;

    /// False when there is no such display, it lacks the extension, or another program has Ctrl+V.
    [[nodiscard]] bool start();
    /// Nothing for a press that has gone.
    /// With `looksFirst` it goes once the types of what was written have been asked for, or with the limit.
    void letGo(quint64 serial, HeldKey::Contents contents, bool looksFirst);
    /// Holds no key any more. One that was let go and waits for the look of the program in front goes when it would
    /// have gone; any other goes at once. `whenGone` is called then. Once, last.
    void retire(std::function<void()> whenGone);

private:
    using Instant = std::chrono::steady_clock::time_point;

    [[nodiscard]] std::vector<passivegrabs::Combination> wanted() const;
    [[nodiscard]] bool isTheUsual(const passivegrabs::Combination& combination) const;
    [[nodiscard]] bool grabAll(bool isFirst);
    void releaseAll();
    void grabAgain();
    void readKeyboard();
    void listenForChanges();

    void handleEvent(XEvent* event);
    void handleKey(XEvent* event);
    void handleKeyboardChange(XEvent* event);
    [[nodiscard]] bool isOwn(int device) const;
    [[nodiscard]] Held heldFor(quint32 keycode, unsigned int modifiers, unsigned int group) const;
    void tellWhenServed();
    void replayWhenListed();
    void replay();

    Options m_options;
    std::shared_ptr<XlibConnection> m_connection;
    X11Keymap m_keymap;
    std::vector<int> m_testKeyboards;
    int m_keyboard = 0;
    std::vector<passivegrabs::Combination> m_grabs;
    QTimer m_grabAgain;

    std::optional<Held> m_held;
    Instant m_heldSince;
    unsigned long m_heldTime = 0; ///< the server's
    int m_heldDevice = 0;
    quint64 m_lastSerial = 0;
    QTimer m_watchdog;
    QTimer m_servedLook;
    QTimer m_listedLook;
    std::optional<Instant> m_lastPaste;
    std::function<void()> m_whenGone; ///< set by `retire`
};

} // namespace vellumry
