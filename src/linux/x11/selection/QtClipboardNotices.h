// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace vellumry {

/// Ends Qt's own watching of CLIPBOARD and PRIMARY: the program reads the clipboard without it, and each copy and each
/// selected text of any program would wake two threads for nothing. Does nothing where Qt draws through something other
/// than X11. Main thread, behind the making of QGuiApplication.
void stopQtClipboardNotices();

} // namespace vellumry
