// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/windows/XlibConnection.h"

#include <QByteArray>
#include <QByteArrayView>
#include <optional>

/// What the desktop tells its applications about the user's choices (freedesktop.org XSETTINGS registry 0.5). Nothing
/// where no desktop does.
namespace vellumry::xsettings {

/// The number under `name` in the manager's property. Nothing where there is none, for another kind of value, and for
/// bytes that are not such a property. Pure; any thread.
[[nodiscard]] std::optional<qint32> integerIn(QByteArrayView property, QByteArrayView name);

/// The text under `name`, in the same way.
[[nodiscard]] std::optional<QByteArray> textIn(QByteArrayView property, QByteArrayView name);

/// The window of the manager of the connection's screen; 0 without one.
[[nodiscard]] XWindow manager(XlibConnection& connection);
/// That manager's property as it is now; empty without one. Main thread; asks the server alone.
[[nodiscard]] QByteArray property(XlibConnection& connection);

/// The number that the manager of the connection's screen has under `name` now. Main thread; asks the server alone.
[[nodiscard]] std::optional<qint32> integer(XlibConnection& connection, QByteArrayView name);

} // namespace vellumry::xsettings
