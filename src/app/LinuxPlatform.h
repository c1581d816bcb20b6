// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"
#include "shell/Platform.h"

class QProcessEnvironment;

namespace vellumry {

/// The kinds of display that the program works on.
enum class DisplayKind : quint8 { x11, wayland };

/// The implementations for this session. Fails when the display lacks what the program cannot do without. Main thread,
/// after the application object. Programs that are started for the user get the environment `given`: what we chose for
/// our own windows is not for theirs.
[[nodiscard]] OrReason<Platform> makeLinuxPlatform(DisplayKind display, const QProcessEnvironment& given);

/// Where the program that opens pictures stands: beside this one.
[[nodiscard]] QString readerPath();

} // namespace vellumry
