// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/tray/ClassicIcon.h"
#include "platform/desktop/StatusItem.h"

#include <QTimer>
#include <chrono>
#include <memory>

namespace vellumry {

/// The one icon of the program: over the session bus where the desktop's panel shows icons that way, else in a tray of
/// the older kind where there is one. Never in both. Main thread.
class SessionTray : public StatusItem {
public:
    /// What a panel takes to answer over the bus; the classic icon is not shown before, so that it does not come and
    /// go.
    static constexpr std::chrono::milliseconds usualPatience{1500};

    /// `classic` may be null: there are no such trays then.
    SessionTray(std::unique_ptr<StatusItem> overTheBus, std::unique_ptr<ClassicIcon> classic,
                std::chrono::milliseconds patience = usualPatience);

    void install() override;
    void menuChanged() override { m_overTheBus->menuChanged(); }
    [[nodiscard]] bool isShown() const override;

private:
    void follow();

    std::unique_ptr<StatusItem> m_overTheBus;
    std::unique_ptr<ClassicIcon> m_classic;
    QTimer m_patience;
    bool m_wasShown = false;
};

} // namespace vellumry
