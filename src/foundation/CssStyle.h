// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/StyledText.h"

#include <QStringView>

/// The declarations of a `style` attribute (CSS Style Attributes, W3C) that a text without layout can show. Pure; any
/// thread; time linear in the input.
namespace vellumry::css {

/// The size of text that no element and no declaration changes, in pixels.
inline constexpr float usualSize = 16;

/// What else declarations say of an element.
struct Flow {
    bool isHidden = false;
    bool keepsBlanks = false;
    bool operator==(const Flow&) const = default;
};

/// Applies `declarations` to what an element inherits; sizes are pixels. What is not understood changes nothing.
void apply(QStringView declarations, TextStyle& style, Flow& flow);

/// A colour by name, "#rgb", "#rrggbb" or "rgb(r, g, b)"; nothing for another notation and for what cannot be seen.
[[nodiscard]] std::optional<quint32> colorOf(QStringView notation);

/// The size that the attribute of a `font` element says, 1 to 7, or +n and -n from the usual one.
[[nodiscard]] std::optional<float> fontElementSize(QStringView value);

/// True for a list of font names whose first known one has letters that are all as wide.
[[nodiscard]] bool isFixedWidth(QStringView families);

} // namespace vellumry::css
