// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/pasteboard/OwnerWatch.h"
#include "linux/pasteboard/PasteboardLimits.h"
#include "linux/pasteboard/PasteboardService.h"
#include "platform/display/Pasteboard.h"

#include <memory>
#include <optional>

namespace vellumry {

/// The main thread's side of a pasteboard whose conversation with the display server and with other programs runs on a
/// thread of its own, so what we hold is served while the main thread is busy. What a service is for, its subclasses
/// say. Main thread.
class ThreadedPasteboard : public Pasteboard {
public:
    ~ThreadedPasteboard() override;
    ThreadedPasteboard(const ThreadedPasteboard&) = delete;
    ThreadedPasteboard& operator=(const ThreadedPasteboard&) = delete;

    [[nodiscard]] qint64 changeCount() const override;
    [[nodiscard]] QCoro::Task<void> catchUp() override;
    [[nodiscard]] QCoro::Task<std::shared_ptr<PasteboardReading>> beginReading() override;
    /// Waits for the display server's word, a fraction of a millisecond as a rule and 250 ms at most.
    bool write(std::vector<PasteboardItem> items) override;
    bool takeOver(std::vector<PasteboardItem> items) override;
    void giveUp(qint64 changeCount) override;
    void markSecret(qint64 changeCount) override;
    void settle(qint64 changeCount, bool wasKept) override;
    [[nodiscard]] qint64 copyCount() const override;
    [[nodiscard]] bool notifiesChanges() const override { return true; }

    /// Offers what was last written on the primary selection too, for programs that paste from there. False when
    /// nothing of ours is on the pasteboard or the server refused. Losing the primary selection changes nothing here.
    /// Waits as `write`.
    bool offerAsPrimary();
    /// True once the program that has the keyboard took content, not just the list of types, of what was last written;
    /// any program where the service cannot tell which one has it. Any thread.
    [[nodiscard]] bool wasServed() const;
    /// The same for anything of it, the list of types included. Any thread.
    [[nodiscard]] bool wasListed() const;
    /// Asked before `onOwnerGone` is called, where the display server's word is not enough. Once, before the first
    /// copy.
    void setOwnerWatch(std::shared_ptr<OwnerWatch> watch) { m_ownerWatch = std::move(watch); }

protected:
    explicit ThreadedPasteboard(const PasteboardLimits& limits);
    /// What the service is made with; it may tell before it was handed over.
    [[nodiscard]] PasteboardNotices notices();
    /// Once, before the pasteboard is used.
    void setService(std::unique_ptr<PasteboardService> service);

private:
    struct Link;

    [[nodiscard]] bool own(PasteboardClaim claim);
    void announceChange();
    void dropOldSecret();
    QCoro::Task<void> announceOwnerGone(qint64 held, qint64 since);

    const PasteboardLimits m_limits;
    std::shared_ptr<Link> m_link; ///< how the service's notices find back to us
    std::shared_ptr<PasteboardService> m_service;
    std::shared_ptr<const OfferedContents> m_ownContents;
    qint64 m_ownChangeCount = 0; ///< the pasteboard is ours as long as this is the change count
    std::optional<qint64> m_secretChangeCount;
    /// What is on the primary selection, as long as the service serves it there, and when it was written.
    std::weak_ptr<const OfferedContents> m_primaryContents;
    qint64 m_primaryChangeCount = 0;
    std::shared_ptr<OwnerWatch> m_ownerWatch; ///< null where the service's word is enough
    qint64 m_copiesNoted = 0;
};

} // namespace vellumry
