// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"
#include "platform/display/HotKeyRegistrar.h"

#include <QString>
#include <vector>

namespace vellumry {

struct Capability;

/// What the session's compositor offers to us. A value.
struct WaylandSurvey {
    bool hasClipboard = false; ///< data control, of either name
    bool hasPanels = false;    ///< the layer shell
    bool hasPasteKey = false;
    bool hasWindows = false; ///< which window is in front
    bool isPlasma = false;
    QString clipboardProtocol;

    /// Asks the compositor named by $WAYLAND_DISPLAY. Fails outside of a Wayland session. Needs no application object.
    [[nodiscard]] static OrReason<WaylandSurvey> take();

    /// The program can do its work natively: with less it is of more use among X11 programs.
    [[nodiscard]] bool isEnough() const { return hasClipboard && hasPanels; }
    /// What there is, and what is missing with what to do about it. Asks the session bus, too.
    [[nodiscard]] std::vector<Capability> capabilities() const;
};

/// What binds keys to the program's actions in the configuration of this session's compositor.
[[nodiscard]] OwnBindings ownBindingsOfSession();

} // namespace vellumry
