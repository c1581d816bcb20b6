// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"
#include "platform/desktop/Capability.h"

#include <memory>
#include <vector>

namespace vellumry {

class XlibConnection;

/// What this session has of the things that the program would like.
namespace capabilities {

/// The X server, its extensions and the window manager. Main thread; asks the server only.
[[nodiscard]] std::vector<Capability> ofDisplay(const OrReason<std::shared_ptr<XlibConnection>>& connection);

/// The session bus, the keyring, the reader at `readerPath`, languages, sounds. Asks the bus and the disk, the bus for
/// a second at most; any thread.
[[nodiscard]] std::vector<Capability> ofSession(const QString& readerPath);

} // namespace capabilities

} // namespace vellumry
