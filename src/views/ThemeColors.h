// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QObject>
#include <optional>
#include <qqmlregistration.h>

namespace vellumry {

/// What the colours of our windows are made from.
struct ColorChoice {
    bool isDark = false;
    bool isHighContrast = false;
    std::optional<QColor> accent{}; ///< the desktop's; ours without one
    bool operator==(const ColorChoice&) const = default;
};

/// Every colour of our windows. Whatever the accent, text on its ground has a contrast of at least 4.5 (7 with high
/// contrast), and the bar of the selected row, edges of what has the keyboard and symbols that are pressed at least 3
/// (WCAG 2.1, 1.4.3, 1.4.6 and 1.4.11). A value; any thread.
class ThemeColors {
    Q_GADGET
    QML_VALUE_TYPE(themeColors)
    Q_PROPERTY(QColor ground MEMBER ground CONSTANT)
    Q_PROPERTY(QColor edge MEMBER edge CONSTANT)
    Q_PROPERTY(QColor line MEMBER line CONSTANT)
    Q_PROPERTY(QColor text MEMBER text CONSTANT)
    Q_PROPERTY(QColor secondary MEMBER secondary CONSTANT)
    Q_PROPERTY(QColor accent MEMBER accent CONSTANT)
    Q_PROPERTY(QColor selected MEMBER selected CONSTANT)
    Q_PROPERTY(QColor hovered MEMBER hovered CONSTANT)
    Q_PROPERTY(QColor tile MEMBER tile CONSTANT)
    Q_PROPERTY(QColor selectedTile MEMBER selectedTile CONSTANT)
    Q_PROPERTY(QColor cap MEMBER cap CONSTANT)
    Q_PROPERTY(QColor capEdge MEMBER capEdge CONSTANT)
    Q_PROPERTY(QColor thumb MEMBER thumb CONSTANT)
    Q_PROPERTY(QColor success MEMBER success CONSTANT)
    Q_PROPERTY(QColor warning MEMBER warning CONSTANT)
    Q_PROPERTY(QColor danger MEMBER danger CONSTANT)
    Q_PROPERTY(QColor button MEMBER button CONSTANT)
    Q_PROPERTY(QColor pressedButton MEMBER pressedButton CONSTANT)
    Q_PROPERTY(QColor buttonText MEMBER buttonText CONSTANT)
    Q_PROPERTY(QColor card MEMBER card CONSTANT)
    Q_PROPERTY(QColor shade MEMBER shade CONSTANT)
    Q_PROPERTY(QColor paper MEMBER paper CONSTANT)

public:
    ThemeColors() = default;
    [[nodiscard]] static ThemeColors of(const ColorChoice& choice);
    bool operator==(const ThemeColors&) const = default;

    QColor ground;
    QColor edge; ///< of windows
    QColor line; ///< between parts of a window
    QColor text;
    QColor secondary;
    QColor accent;   ///< of text, symbols and bars
    QColor selected; ///< the ground of what is chosen
    QColor hovered;
    QColor tile; ///< beneath a symbol
    QColor selectedTile;
    QColor cap; ///< of a key
    QColor capEdge;
    QColor thumb; ///< of a scroll bar
    QColor success;
    QColor warning;
    QColor danger;
    QColor button;
    QColor pressedButton;
    QColor buttonText;
    QColor card;
    QColor shade; ///< over what waits behind a sheet
    QColor paper; ///< what pictures with clear parts lie on
};

/// The contrast of two opaque colours, 1 to 21 (WCAG 2.1, relative luminance).
[[nodiscard]] double contrastOf(const QColor& first, const QColor& second);

/// `color`, made darker or lighter until its contrast with `ground` is at least `least`; as it is where it is already.
[[nodiscard]] QColor legibleOn(const QColor& ground, const QColor& color, double least);

} // namespace vellumry
