// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/DesktopLook.h"

#include <QString>
#include <vector>

namespace vellumry {

/// What one place says of the desktop's look; nothing where it is silent. A value.
struct SaidLook {
    std::optional<bool> isDark{};
    std::optional<quint32> accent{}; ///< 0xRRGGBB
    std::optional<bool> isHighContrast{};
    std::optional<bool> reducesMotion{};
    std::optional<double> textScale{};
    bool operator==(const SaidLook&) const = default;
};

/// Each choice from the first of `places` that says it. Pure.
[[nodiscard]] DesktopLook lookOf(const std::vector<SaidLook>& places);

/// How much larger a desktop's font of so many points is than what desktops begin with, which is 10 or 11. Nothing for
/// what is no size.
[[nodiscard]] std::optional<double> textScaleOf(double points);

/// From the names of a theme and of a font as GTK writes them: "Greybird-dark", "Noto Sans Bold 12". Pure.
[[nodiscard]] SaidLook lookOfNames(const QString& theme, const QString& font);

} // namespace vellumry
