// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/ActionMenuItem.h"

#include <functional>
#include <vector>

namespace vellumry {

/// The program's icon among those in the desktop's panel, and the menu behind it. Main thread.
class StatusItem {
public:
    virtual ~StatusItem() = default;

    /// Answers the menu as it is now; asked at each opening. Set before `install`.
    std::function<std::vector<ActionMenuItem>()> menu;
    /// The icon was clicked in a place that opens no menus: the program is to show its own.
    std::function<void()> onMenuWanted = [] {};
    /// `isShown` answers otherwise.
    std::function<void()> onShownChanged = [] {};

    /// From now on the icon is shown as soon as, and whenever, the desktop has a place for it. Once.
    virtual void install() = 0;
    /// The menu would be another one if it were opened now. Called as often as that happens; a menu that is open stays
    /// as it is.
    virtual void menuChanged() = 0;
    /// The desktop has a place for the icon.
    [[nodiscard]] virtual bool isShown() const = 0;
};

} // namespace vellumry
