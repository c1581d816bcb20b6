// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// Which applications are terminals: they paste on Shift+Insert, and leave Ctrl+V to the program that runs in them.
/// Pure function; any thread.
namespace vellumry::terminalapps {

/// True when one of an application's names (window class, instance) is known for a terminal's. `userNames` are the
/// user's own additions; one with "!" before it is no terminal whatever the built-in list says. Case does not count,
/// nor does what stands before the last dot of a name.
[[nodiscard]] bool contains(const QStringList& names, const QStringList& userNames);

/// True for those that take no notice of a paste key while they do not know yet whether what is new on the clipboard is
/// text.
[[nodiscard]] bool looksFirst(const QStringList& names);

} // namespace vellumry::terminalapps
