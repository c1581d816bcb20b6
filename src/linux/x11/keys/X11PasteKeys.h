// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/keys/X11PasteKeyGrab.h"
#include "platform/display/PasteKeys.h"

#include <QByteArray>
#include <QThread>
#include <functional>
#include <memory>

namespace vellumry {

/// The user's paste keys on an X server: held by a thread and a connection of their own, which exist while it is
/// started, and handed to the main thread one by one. Follows changes of the keyboard layout; works whatever lock is
/// on. The server frees the keys by itself when the process ends.
class X11PasteKeys final : public PasteKeys {
public:
    struct Options {
        /// An empty name stands for $DISPLAY.
        QByteArray displayName;
        /// The program in front has fetched what was last written. Any thread.
        std::function<bool()> wasServed;
        /// Some program has asked for the types of what was last written. Any thread.
        std::function<bool()> wasListed;
        /// The program in front knows no paste before it has read the types of what is new. Main thread.
        std::function<bool()> looksFirst;
        /// Offers what was last written as the primary selection too, which terminals paste on Shift+Insert.
        std::function<void()> offerAsPrimary;
        /// Where code that presses paste keys for the program announces it.
        std::shared_ptr<InjectedPresses> injected;
        std::chrono::milliseconds holdLimit{150};
        std::chrono::milliseconds servedLimit{600};
    };

    explicit X11PasteKeys(Options options);
    ~X11PasteKeys() override;

    /// Waits for the X server, a few milliseconds as a rule and a second at most.
    [[nodiscard]] bool start() override;
    /// The same. A key that was let go and waits for the program in front to look goes when it would have gone: the
    /// last item of a stack is stopped behind right away.
    void stop() override;

private:
    class Key;
    struct Link {
        X11PasteKeys* keys = nullptr;
    };

    void endRetired();
    void receive(const X11PasteKeyGrab::Held& held);
    void letGo(const X11PasteKeyGrab::Held& held, HeldKey::Contents contents);
    [[nodiscard]] X11PasteKeyGrab::Options grabOptions() const;

    Options m_options;
    std::shared_ptr<Link> m_link; ///< how keys that wait find back to us; main thread
    std::unique_ptr<QThread> m_thread;
    std::unique_ptr<QThread> m_retired; ///< the thread of the last stop, which ends when its key has gone
    X11PasteKeyGrab* m_grab = nullptr;  ///< lives and dies on the thread; there as long as the thread is
};

} // namespace vellumry
