// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"
#include "linux/pasteboard/ThreadedPasteboard.h"

#include <QByteArray>
#include <memory>

namespace vellumry {

class DataControlThread;
class SelectionControl;

/// The clipboard of a Wayland session as the general pasteboard: seen and owned in the background, whichever window has
/// the keyboard.
///
/// An emptied clipboard and one whose owner has died look alike: `onOwnerGone` tells of both.
class WaylandPasteboard final : public ThreadedPasteboard {
public:
    /// By one of the two data-control protocols. Fails when there is no such display or it has neither. An empty name
    /// stands for $WAYLAND_DISPLAY.
    [[nodiscard]] static OrReason<std::unique_ptr<WaylandPasteboard>> create(const QByteArray& displayName,
                                                                             const PasteboardLimits& limits = {});
    /// By another way than data control.
    [[nodiscard]] static OrReason<std::unique_ptr<WaylandPasteboard>>
    createOn(std::unique_ptr<SelectionControl> control, const PasteboardLimits& limits = {});

    /// For the Paste Stack, which counts readings.
    [[nodiscard]] std::weak_ptr<DataControlThread> thread() const { return m_conversation; }

private:
    using ThreadedPasteboard::ThreadedPasteboard;

    std::weak_ptr<DataControlThread> m_conversation;
};

} // namespace vellumry
