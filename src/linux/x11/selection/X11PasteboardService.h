// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/pasteboard/PasteboardLimits.h"
#include "linux/pasteboard/PasteboardService.h"
#include "linux/x11/selection/PasteboardThread.h"

namespace vellumry {

/// Hands what is asked of the pasteboard to the engine on its thread.
class X11PasteboardService final : public PasteboardService {
public:
    /// Fails when there is no such display or it lacks XFixes. An empty name stands for $DISPLAY.
    [[nodiscard]] static OrReason<std::unique_ptr<X11PasteboardService>>
    create(const QByteArray& displayName, const PasteboardLimits& limits, PasteboardNotices notices);

    [[nodiscard]] qint64 changeCount() const override { return m_thread->engine().changeCount(); }
    [[nodiscard]] qint64 copyCount() const override { return m_thread->engine().copyCount(); }
    [[nodiscard]] bool wasServed() const override { return m_thread->engine().wasServed(); }
    [[nodiscard]] bool wasListed() const override { return m_thread->engine().wasListed(); }
    void claim(PasteboardClaim claim) override;
    void catchUp(OneShot<bool> result) override;
    void disown(std::shared_ptr<const OfferedContents> contents) override;
    [[nodiscard]] QCoro::Task<std::shared_ptr<const ForeignOffer>> readOffer() override;
    void settle(qint64 count, bool wasKept) override;

private:
    explicit X11PasteboardService(std::unique_ptr<PasteboardThread> thread)
        : m_thread(std::move(thread)) {}

    const std::shared_ptr<PasteboardThread> m_thread;
};

} // namespace vellumry
