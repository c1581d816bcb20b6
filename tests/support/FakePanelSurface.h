// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/PanelSurface.h"

#include <QWindow>

namespace vellumry {

/// A desktop of one display: windows are shown and hidden at once, and what was asked of it is kept.
class FakePanelSurface : public PanelSurface {
public:
    void adopt(QWindow* window) override { adopted.append(window); }
    void present(QWindow* window, std::optional<QRect> frame) override {
        if (frame)
            window->setGeometry(*frame);
        frames.append(frame.value_or(QRect()));
        isShapedSincePresented = false;
        window->show();
    }
    void dismiss(QWindow* window) override {
        ++dismissals;
        window->hide();
    }
    void presentPassive(QWindow* window, QRect frame, bool clickThrough) override {
        frames.append(frame);
        lastClickThrough = clickThrough;
        window->setGeometry(frame);
        window->show();
    }
    void setInputArea(QWindow*, const QRect& area) override {
        inputArea = area;
        isShapedSincePresented = true;
    }
    [[nodiscard]] bool canBlend() const override { return blends; }
    [[nodiscard]] bool reducesMotion() const override { return stillness; }
    [[nodiscard]] std::optional<ScreenPlace> screenUnderPointer() const override { return under ? under : screen; }
    [[nodiscard]] std::optional<ScreenPlace> screenOf(const QRect&) const override { return screen; }

    bool blends = false;
    bool stillness = false; ///< the user wants no motion
    std::optional<ScreenPlace> screen =
        ScreenPlace{QStringLiteral("one"), QRect(0, 0, 1600, 1000), QRect(0, 0, 1600, 1000)};
    std::optional<ScreenPlace> under; ///< the display under the pointer, when it is not `screen`
    QList<QWindow*> adopted;
    QList<QRect> frames;
    QRect inputArea;
    bool isShapedSincePresented = false;
    int dismissals = 0;
    bool lastClickThrough = false;
};

} // namespace vellumry
