// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/selection/XcbConnection.h"
#include "platform/display/DragSource.h"

/// The source's side of the X Direct Save Protocol, version 0: a picture that is dropped on a folder becomes a file
/// where the target wants it. The name proposed and the address chosen stand in one property of the source's window. On
/// the thread of the connection.
namespace vellumry::directsave {

/// The property, and the target that is asked for when the address is there.
inline const QString selectionTarget = QStringLiteral("XdndDirectSave0");

/// Tells the name that the file should have.
void propose(XcbConnection& connection, const QString& name);

/// Writes the file to the address that stands in the property now; answers whether it lies there whole. False without
/// an address of this machine, when a file of that name exists (none is replaced), and when it cannot be written, which
/// leaves nothing. Any client could write the address: it is for the caller to know that the one dropped on asks.
[[nodiscard]] bool save(XcbConnection& connection, const DragSource::File& file);

} // namespace vellumry::directsave
