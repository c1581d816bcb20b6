// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/PasteKeys.h"

#include <memory>

namespace vellumry {

class DataControlThread;

/// The user's pastes on Wayland, where no program sees the keys of others: told by the readings of what we hold on the
/// clipboard. What a paste is to get stands there before its key is pressed (`expect`), and is fetched by the time it
/// is told of. Main thread.
class WaylandPasteKeys final : public PasteKeys {
public:
    explicit WaylandPasteKeys(std::weak_ptr<DataControlThread> pasteboard);
    ~WaylandPasteKeys() override;

    /// False once the pasteboard has gone.
    [[nodiscard]] bool start() override;
    void stop() override;
    [[nodiscard]] bool wantsNext() const override { return true; }
    void expect(std::optional<std::vector<PasteboardItem>> items) override;

private:
    class Key;
    struct Link {
        WaylandPasteKeys* keys = nullptr;
    };

    void receive();

    std::weak_ptr<DataControlThread> m_pasteboard;
    std::shared_ptr<Link> m_link; ///< how pastes that were told find back to us; one for each start; main thread
};

} // namespace vellumry
