// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFlags>
#include <Qt>

namespace vellumry {

/// A key that is held while another is pressed; locks are none. On this desktop Command is Ctrl, Option is Alt and
/// Control is the Super key. The values are those of stored shortcuts.
enum class Modifier : quint32 {
    command = 0x100,
    shift = 0x200,
    option = 0x800,
    control = 0x1000,
};
Q_DECLARE_FLAGS(Modifiers, Modifier)
Q_DECLARE_OPERATORS_FOR_FLAGS(Modifiers)

/// Qt's names for the same keys. What Qt reports beside them (keypad, group switch) is left out.
[[nodiscard]] inline Modifiers modifiersOf(Qt::KeyboardModifiers held) {
    Modifiers modifiers;
    modifiers.setFlag(Modifier::command, held.testFlag(Qt::ControlModifier));
    modifiers.setFlag(Modifier::control, held.testFlag(Qt::MetaModifier));
    modifiers.setFlag(Modifier::option, held.testFlag(Qt::AltModifier));
    modifiers.setFlag(Modifier::shift, held.testFlag(Qt::ShiftModifier));
    return modifiers;
}

} // namespace vellumry
