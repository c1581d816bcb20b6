// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>

namespace vellumry {

/// What the user is told once after a start that did not go as usual.
struct StartupAlert {
    QString title;
    QString text;
    bool operator==(const StartupAlert&) const = default;
};

/// Nothing after an ordinary start. A history that could not be opened outweighs one that was put aside.
[[nodiscard]] std::optional<StartupAlert> startupAlert(bool isMemoryOnly, bool recoveredFromDamage);

} // namespace vellumry
