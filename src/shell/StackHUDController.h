// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/Alarm.h"
#include "shell/StackHUDModel.h"
#include "views/PassiveWindow.h"

#include <QObject>
#include <functional>
#include <memory>

namespace vellumry {

class PasteStack;

/// A small bar at the top of a display that says how much of a Paste Stack waits, with a button that turns the order
/// around and one that stops. Clicks on it work while another application stays active; where the pointer rests on a
/// button, what it does is told below. The window is made at the first
/// showing and kept. Main thread.
class StackHUDController : public QObject {
    Q_OBJECT

public:
    /// `stack`, `surface` and `views` must outlive this.
    StackHUDController(PasteStack& stack, PanelSurface& surface, ViewEngine& views);
    /// `alarm` is what the hiding of a finished stack waits with.
    StackHUDController(PasteStack& stack, PanelSurface& surface, ViewEngine& views, std::unique_ptr<Alarm> alarm);

    /// Brings it up on the display under the pointer; where it is up already, it stays on its display.
    void show();
    /// Keeps it up for a moment with the final count, then hides it.
    void showFinished();
    /// Hides it now; showing it while it fades wins.
    void hide();

    /// The stop button.
    std::function<void()> onStop = [] {};

private Q_SLOTS:
    void helpChanged();

private:
    void place();
    [[nodiscard]] QRect wantedFrame();

    StackHUDModel m_model;
    PanelSurface* m_surface;
    PassiveWindow m_window;
    PassiveWindow m_help;
    std::unique_ptr<Alarm> m_hide;
    bool m_isConnected = false;
};

} // namespace vellumry
