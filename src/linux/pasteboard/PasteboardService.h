// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/OneShot.h"
#include "linux/pasteboard/ForeignOffer.h"
#include "linux/pasteboard/OfferedContents.h"

#include <atomic>
#include <functional>
#include <memory>
#include <optional>

namespace vellumry {

/// What a pasteboard service tells, on its own thread.
struct PasteboardNotices {
    std::function<void()> changed;
    /// The owner left without a successor; the count of what it held, and the count since.
    std::function<void(qint64 held, qint64 since)> ownerGone;
};

/// A wish to own selections. `isWithdrawn` may be set from any thread as long as the result is out.
struct PasteboardClaim {
    std::shared_ptr<const OfferedContents> contents;
    bool isPrimary = false;  ///< the primary selection instead of the clipboard
    bool isTakeover = false; ///< only if the clipboard has had no owner since its owner went
    std::shared_ptr<std::atomic<bool>> isWithdrawn = std::make_shared<std::atomic<bool>>(false);
    /// The change count of our ownership; nothing when it did not become ours.
    OneShot<std::optional<qint64>> result;
};

/// The conversation with a display server about its clipboard, on a thread and a connection of its own. What is asked
/// of it returns at once. Main thread, but for what says "any thread"; the destructor ends the thread.
class PasteboardService {
public:
    virtual ~PasteboardService() = default;

    /// Any thread.
    [[nodiscard]] virtual qint64 changeCount() const = 0;
    /// How many times another program has taken the clipboard. Any thread.
    [[nodiscard]] virtual qint64 copyCount() const = 0;
    /// True once a program that may be pasting took content of what we hold on the clipboard. Any thread.
    [[nodiscard]] virtual bool wasServed() const = 0;
    /// The same for anything of it, the list of its types included. Any thread.
    [[nodiscard]] virtual bool wasListed() const = 0;

    virtual void claim(PasteboardClaim claim) = 0;
    /// Delivers once all that the server has to tell of the time before the call was handled; false without a server.
    virtual void catchUp(OneShot<bool> result) = 0;
    /// Gives up the clipboard and the primary selection where they are still ours with `contents`. A program that takes
    /// them meanwhile keeps them.
    virtual void disown(std::shared_ptr<const OfferedContents> contents) = 0;
    /// Null when another program does not own the clipboard or does not say in time what it offers. The service may go
    /// while the answer is awaited.
    [[nodiscard]] virtual QCoro::Task<std::shared_ptr<const ForeignOffer>> readOffer() = 0;
    /// Capture has done with what was on the clipboard at `count`.
    virtual void settle(qint64 count, bool wasKept) = 0;
};

} // namespace vellumry
