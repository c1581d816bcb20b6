// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace vellumry {

/// Ends the program with the next turn of the event loop. Unlike `QCoreApplication::quit` it asks no window: one that
/// is open neither keeps the program nor counts as answered. Any thread.
void endProgram();

/// What the event loop ends with when the program is to start again.
inline constexpr int restartStatus = 75;

/// Ends the program in the same way, for it to start again in the same process. Any thread.
void restartProgram();

} // namespace vellumry
