// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "paste/ToastMessage.h"
#include "platform/PanelSurface.h"

#include <QObject>
#include <QTimer>
#include <memory>

class QQuickView;

namespace vellumry {

/// One short message near the bottom of a display, which takes neither keyboard nor pointer. A second one replaces the
/// first and gets its full time. The window is made at the first message and kept. Main thread.
class ToastController : public QObject {
    Q_OBJECT

public:
    static constexpr double usualSeconds = 2.2;

    explicit ToastController(PanelSurface& surface);
    ~ToastController() override;

    /// Without a display the message stands where the last one stood.
    void show(const ToastMessage& message, double seconds, const std::optional<ScreenPlace>& screen);
    void setDark(bool isDark) { m_isDark = isDark; }

private:
    void makeView();

    PanelSurface* m_surface;
    std::unique_ptr<QQuickView> m_view;
    QTimer m_hide;
    bool m_isDark = false;
};

} // namespace vellumry
