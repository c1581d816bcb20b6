// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "paste/ToastMessage.h"
#include "shell/Alarm.h"
#include "views/PassiveWindow.h"

#include <memory>

namespace vellumry {

/// One short message near the bottom of a display, which takes neither keyboard nor pointer. A second one replaces the
/// first and gets its full time. The window is made at the first message and kept. Main thread.
class ToastController {
public:
    static constexpr double usualSeconds = 2.2;

    /// `surface` and `views` must outlive this.
    ToastController(PanelSurface& surface, ViewEngine& views);
    /// `alarm` is what the hiding waits with.
    ToastController(PanelSurface& surface, ViewEngine& views, std::unique_ptr<Alarm> alarm);

    /// Without a display the message stands where the last one stood.
    void show(const ToastMessage& message, double seconds, const std::optional<ScreenPlace>& screen);

private:
    PassiveWindow m_window;
    std::unique_ptr<Alarm> m_hide;
};

} // namespace vellumry
