// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"
#include "linux/pasteboard/PasteboardLimits.h"
#include "linux/pasteboard/PasteboardService.h"
#include "linux/wayland/selection/DataControlThread.h"

namespace vellumry {

/// Hands what is asked of the pasteboard to the engine on its thread.
class DataControlService final : public PasteboardService {
public:
    /// Fails when the system gives no event descriptor.
    [[nodiscard]] static OrReason<std::unique_ptr<DataControlService>>
    create(std::unique_ptr<SelectionControl> control, const PasteboardLimits& limits, PasteboardNotices notices);

    [[nodiscard]] qint64 changeCount() const override { return m_thread->engine().changeCount(); }
    [[nodiscard]] qint64 copyCount() const override { return m_thread->engine().copyCount(); }
    [[nodiscard]] bool wasServed() const override { return m_thread->engine().wasServed(); }
    /// The list of types is part of every selection and is not asked for.
    [[nodiscard]] bool wasListed() const override { return wasServed(); }
    void claim(PasteboardClaim claim) override;
    void catchUp(OneShot<bool> result) override;
    void disown(std::shared_ptr<const OfferedContents> contents) override;
    [[nodiscard]] QCoro::Task<std::shared_ptr<const ForeignOffer>> readOffer() override;
    /// Wayland has no request to keep a copy.
    void settle(qint64, bool) override {}

    /// For what is asked of a pasteboard on Wayland alone.
    [[nodiscard]] std::weak_ptr<DataControlThread> thread() const { return m_thread; }

private:
    explicit DataControlService(std::unique_ptr<DataControlThread> thread)
        : m_thread(std::move(thread)) {}

    const std::shared_ptr<DataControlThread> m_thread;
};

} // namespace vellumry
