// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/PasteboardItem.h"

#include <QCoroTask>
#include <functional>
#include <memory>
#include <vector>

namespace vellumry {

/// One look at what the pasteboard held at one change count. Reading ends when another owner takes the pasteboard, or
/// when the deadline for the whole copy has passed: from then on `data` gives nothing at once. Main thread; every wait
/// is a suspension.
class PasteboardReading {
public:
    virtual ~PasteboardReading() = default;

    /// The types that are declared, of all items together, in the owner's order. Known before any content was asked
    /// for.
    [[nodiscard]] virtual QStringList types() const = 0;
    /// The types of each item in the owner's order. May read a file list to learn how many items there are; reads
    /// nothing else. Empty when reading has ended.
    [[nodiscard]] virtual QCoro::Task<std::vector<QStringList>> itemTypes() = 0;
    /// The bytes of one representation; nothing when the owner does not give it, hangs, dies, or gives more than
    /// `maxBytes`. A representation that fails leaves the others readable.
    [[nodiscard]] virtual QCoro::Task<std::optional<QByteArray>> data(qsizetype item, QString type,
                                                                      qint64 maxBytes) = 0;
    /// True when the answer of `data` that came last was nothing because there was more than `maxBytes`. An adapter
    /// that cannot tell says false.
    [[nodiscard]] virtual bool wasLarger() const { return false; }
    /// False once the pasteboard has another owner or the deadline has passed.
    [[nodiscard]] virtual bool isCurrent() const = 0;
};

/// The general pasteboard. Main thread; never waits for another client.
class Pasteboard {
public:
    virtual ~Pasteboard() = default;

    /// Differs from any earlier value after each change of owner, our own writes included. Costs nothing to ask.
    [[nodiscard]] virtual qint64 changeCount() const = 0;
    /// Returns once `changeCount` tells of every change that other programs made before the call.
    [[nodiscard]] virtual QCoro::Task<void> catchUp() { co_return; }
    /// Asks the present owner what it offers. Null when there is no owner or it does not answer in time.
    [[nodiscard]] virtual QCoro::Task<std::shared_ptr<PasteboardReading>> beginReading() = 0;

    /// Replaces the contents with `items`. True when the pasteboard is ours with them; false when it refused, and then
    /// the contents are empty or another owner's.
    virtual bool write(std::vector<PasteboardItem> items) = 0;
    /// As `write`, but only as long as the pasteboard has had no other owner since its owner went: a copy that another
    /// program makes meanwhile stands, and this is false.
    virtual bool takeOver(std::vector<PasteboardItem> items) = 0;
    /// Empties the pasteboard and lets go of the bytes if we wrote what it held at `changeCount` and nothing has come
    /// since; otherwise what is there stands. What is offered of it beside the pasteboard, for programs that paste from
    /// elsewhere, goes in either case. Returns at once, the pasteboard follows.
    virtual void giveUp(qint64 changeCount) = 0;
    /// What we wrote at `changeCount` is a secret: what is offered of it beside the pasteboard goes as soon as
    /// something else is on the pasteboard, and not only when another program takes its place there.
    virtual void markSecret(qint64 changeCount) { Q_UNUSED(changeCount) }
    /// Capture has done with what the pasteboard held at `changeCount`: `wasKept` tells whether the history has it. A
    /// program that asked for its copy to be kept before it quits gets its answer by this.
    virtual void settle(qint64 changeCount, bool wasKept) {
        Q_UNUSED(changeCount)
        Q_UNUSED(wasKept)
    }
    /// How many times other programs have taken the pasteboard. Grows by one for each such change, also for those that
    /// `onChanged` tells of together. An adapter that cannot tell says 0.
    [[nodiscard]] virtual qint64 copyCount() const { return 0; }

    /// Called after the change count moved, on the main thread; several changes may come as one call.
    std::function<void()> onChanged;
    /// Called when the owner went away and left the pasteboard without one; `changeCount` is the count of what it held.
    std::function<void(qint64 changeCount)> onOwnerGone;
    /// True when `onChanged` is called for each change, so that polling is not needed.
    [[nodiscard]] virtual bool notifiesChanges() const = 0;
};

} // namespace vellumry
