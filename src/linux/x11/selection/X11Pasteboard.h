// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"
#include "linux/pasteboard/ThreadedPasteboard.h"

#include <QByteArray>
#include <memory>

namespace vellumry {

/// The CLIPBOARD selection of an X server as the general pasteboard (ICCCM 2, the XFixes extension, and the freedesktop
/// conventions for lists of files and for clipboard managers).
///
/// Where the session has no clipboard manager this is one: a program that quits is told by `settle` whether its copy is
/// safe, and `onOwnerGone` is where what was captured of it is put back. A program takes part in `wasServed` when it
/// has the keyboard, or when no window has it.
class X11Pasteboard final : public ThreadedPasteboard {
public:
    /// Fails when there is no such display or it lacks XFixes. An empty name stands for $DISPLAY.
    [[nodiscard]] static OrReason<std::unique_ptr<X11Pasteboard>> create(const QByteArray& displayName,
                                                                         const PasteboardLimits& limits = {});

private:
    using ThreadedPasteboard::ThreadedPasteboard;
};

} // namespace vellumry
