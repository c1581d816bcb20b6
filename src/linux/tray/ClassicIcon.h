// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace vellumry {

/// An icon in a tray of the older kind, which takes windows in and knows nothing of menus. Main thread.
class ClassicIcon {
public:
    virtual ~ClassicIcon() = default;

    /// It was clicked, with whatever button.
    std::function<void()> onClicked = [] {};
    /// `isShown` answers otherwise.
    std::function<void()> onShownChanged = [] {};

    /// From now on it is in the tray whenever there is one, or is not.
    virtual void setWanted(bool isWanted) = 0;
    [[nodiscard]] virtual bool isShown() const = 0;
};

} // namespace vellumry
