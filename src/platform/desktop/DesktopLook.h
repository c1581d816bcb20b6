// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <functional>
#include <optional>

namespace vellumry {

/// What the user has chosen for the look of all programs, as far as the desktop says.
struct DesktopLook {
    std::optional<bool> isDark{};    ///< nothing where the desktop has no opinion
    std::optional<quint32> accent{}; ///< 0xRRGGBB
    bool isHighContrast = false;
    bool reducesMotion = false;
    double textScale = 1; ///< of texts alone, beyond the scale of the display
    bool operator==(const DesktopLook&) const = default;
};

/// Follows the desktop's look. Main thread; never waits for another process.
class DesktopLookSource {
public:
    virtual ~DesktopLookSource() = default;
    /// As it is known now; what is still being asked for counts as not chosen.
    [[nodiscard]] virtual DesktopLook look() const = 0;
    /// Something of it is different.
    std::function<void()> onChanged = [] {};
};

} // namespace vellumry
