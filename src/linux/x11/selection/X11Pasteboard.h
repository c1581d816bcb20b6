// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/selection/PasteboardEngine.h"
#include "linux/x11/selection/PasteboardLimits.h"
#include "platform/display/Pasteboard.h"

#include <QByteArray>
#include <memory>
#include <optional>

namespace vellumry {

class OfferedContents;
class PasteboardThread;

/// The CLIPBOARD selection of an X server as the general pasteboard (ICCCM 2, the XFixes extension, and the freedesktop
/// conventions for lists of files and for clipboard managers). Main thread; the conversation with the server and with
/// other programs runs on a thread and a connection of its own, so what we hold is served while the main thread is
/// busy.
///
/// Where the session has no clipboard manager this is one: a program that quits is told by `settle` whether its copy is
/// safe, and `onOwnerGone` is where what was captured of it is put back.
class X11Pasteboard final : public Pasteboard {
public:
    /// Fails when there is no such display or it lacks XFixes. An empty name stands for $DISPLAY.
    [[nodiscard]] static OrReason<std::unique_ptr<X11Pasteboard>> create(const QByteArray& displayName,
                                                                         const PasteboardLimits& limits = {});
    ~X11Pasteboard() override;
    X11Pasteboard(const X11Pasteboard&) = delete;
    X11Pasteboard& operator=(const X11Pasteboard&) = delete;

    [[nodiscard]] qint64 changeCount() const override;
    [[nodiscard]] QCoro::Task<void> catchUp() override;
    [[nodiscard]] QCoro::Task<std::shared_ptr<PasteboardReading>> beginReading() override;
    /// Waits for the X server's word, a fraction of a millisecond as a rule and 250 ms at most.
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
    /// any program where no window has the keyboard. Any thread.
    [[nodiscard]] bool wasServed() const;
    /// The same for anything of it, be it the list of types. Any thread.
    [[nodiscard]] bool wasListed() const;

private:
    struct Link;

    explicit X11Pasteboard(const PasteboardLimits& limits);

    [[nodiscard]] bool own(PasteboardEngine::Claim claim);
    void announceChange();
    void dropOldSecret();
    void announceOwnerGone(qint64 held, qint64 since);

    const PasteboardLimits m_limits;
    std::shared_ptr<Link> m_link; ///< how the pasteboard thread's notices find back to us
    std::shared_ptr<PasteboardThread> m_thread;
    std::shared_ptr<const OfferedContents> m_ownContents;
    qint64 m_ownChangeCount = 0; ///< the pasteboard is ours as long as this is the change count
    std::optional<qint64> m_secretChangeCount;
    /// What is on the primary selection, as long as the pasteboard thread serves it there, and when it was written.
    std::weak_ptr<const OfferedContents> m_primaryContents;
    qint64 m_primaryChangeCount = 0;
};

} // namespace vellumry
