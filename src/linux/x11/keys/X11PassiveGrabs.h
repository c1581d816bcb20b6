// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/windows/XlibConnection.h"

#include <vector>

/// Key combinations that a connection hears of whatever window has the keyboard: passive grabs of the X Input extension
/// on the root window. The connection must have the extension; its thread.
namespace vellumry::passivegrabs {

/// What is asked of the server: an X key code and a modifier mask without locks.
struct Combination {
    quint32 keycode = 0;
    unsigned int mask = 0;
    std::vector<unsigned int> locks; ///< the lock bits that do not matter, in all combinations
    bool operator==(const Combination&) const = default;
};

enum class Mode {
    passOn, ///< the press is ours
    hold    ///< the keyboard stands still behind the press until it is told how to go on
};

/// The master keyboard that goes with the pointer of the session.
[[nodiscard]] int masterKeyboard(XlibConnection& connection);
/// The keyboards that keys pressed by programs come from (the XTEST extension).
[[nodiscard]] std::vector<int> testKeyboards(XlibConnection& connection);

/// The server finds no conflict between core grabs and X Input grabs: the later one silently wins. So a core grab is
/// tried for a moment; window managers and desktop shortcuts mostly hold core grabs.
[[nodiscard]] bool isFreeOfCoreGrabs(XlibConnection& connection, const Combination& combination);
/// False when another program has a grab of the X Input extension on it; nothing is held then.
[[nodiscard]] bool hold(XlibConnection& connection, int keyboard, const Combination& combination, Mode mode);
void letGo(XlibConnection& connection, int keyboard, const Combination& combination);

} // namespace vellumry::passivegrabs
