// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/Platform.h"

#include <optional>

namespace vellumry {

/// The implementations for this session. Nothing when there is no display that the program can work on. Main thread,
/// after the application object.
[[nodiscard]] std::optional<Platform> makeLinuxPlatform();

} // namespace vellumry
