// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <QString>
#include <functional>
#include <optional>

class QWindow;

namespace vellumry {

/// A display as panels see it, in device-independent pixels, y pointing down.
struct ScreenPlace {
    QString key;   ///< names the display across runs
    QRect frame;   ///< all of it
    QRect visible; ///< without docks and bars
    bool operator==(const ScreenPlace&) const = default;
};

/// Puts a window of ours above everything without making us the active application, lets it take typing, and gives the
/// focus back to the exact window that had it. Main thread.
class PanelSurface {
public:
    virtual ~PanelSurface() = default;
    /// Called once before the window is first shown: not in task bars or switchers, no decoration, always above.
    virtual void adopt(QWindow* window) = 0;
    /// Maps the window at `frame` with the keyboard; remembers what had it. `frame` absent: where it last was.
    virtual void present(QWindow* window, std::optional<QRect> frame) = 0;
    /// Unmaps it; the keyboard goes back to what had it, unless the user focused something else meanwhile.
    virtual void dismiss(QWindow* window) = 0;
    /// Maps a window that never takes keyboard or (with `clickThrough`) pointer.
    virtual void presentPassive(QWindow* window, QRect frame, bool clickThrough) = 0;
    /// The pointer reaches `window` only within `area`, given in the window's own device-independent pixels; around it,
    /// what lies below gets the clicks. The window must have been adopted.
    virtual void setInputArea(QWindow* window, const QRect& area) = 0;
    /// True when windows may be translucent.
    [[nodiscard]] virtual bool canBlend() const = 0;
    /// True when the user asked the desktop for less motion.
    [[nodiscard]] virtual bool reducesMotion() const { return false; }
    /// The display under the pointer, else the primary one; nothing without any display.
    [[nodiscard]] virtual std::optional<ScreenPlace> screenUnderPointer() const = 0;
    /// The display that holds most of `frame`.
    [[nodiscard]] virtual std::optional<ScreenPlace> screenOf(const QRect& frame) const = 0;

    /// The presented window lost the keyboard to another one.
    std::function<void(QWindow*)> onFocusLost;
};

} // namespace vellumry
