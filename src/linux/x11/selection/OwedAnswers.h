// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

namespace vellumry {

class SelectionReader;
class XcbConnection;

/// Mutter owns the clipboard of X11 for the programs of Wayland. It ends, and the user's session with it, when it
/// refuses a request whose window is gone: it handles no error of that. So our window stays until it has answered.
namespace owedanswers {

/// Waits until the window manager of the connection's screen owes us nothing, `limit` at most. Does nothing about other
/// owners of selections: what they do about a window that is gone is theirs alone. Reads the connection's events.
void await(XcbConnection& connection, SelectionReader& reader, std::chrono::milliseconds limit);

} // namespace owedanswers

} // namespace vellumry
