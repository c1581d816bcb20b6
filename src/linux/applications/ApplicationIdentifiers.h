// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>

/// The identifiers that stand for applications in the program's lists (ignored applications, mail and chat programs,
/// code editors, screenshot tools), by the names that the same applications have on the Linux desktop. Pure functions;
/// any thread.
namespace vellumry::applicationids {

/// The identifier for a desktop-file id, a window class or a program's name; nothing when the lists do not know it.
[[nodiscard]] std::optional<QString> standing(const QString& linuxName);

} // namespace vellumry::applicationids
