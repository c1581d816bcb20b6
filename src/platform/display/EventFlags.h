// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

/// The bits of a key event's flags, as recorders, key equivalents and key listeners get them.
namespace vellumry::eventflag {

inline constexpr quint32 shift = 0x20000;
inline constexpr quint32 control = 0x40000;
inline constexpr quint32 option = 0x80000;
inline constexpr quint32 command = 0x100000;

} // namespace vellumry::eventflag
