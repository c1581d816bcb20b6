// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/StartupAlert.h"

#include <QObject>
#include <functional>
#include <memory>

class QQuickView;

namespace vellumry {

class ViewEngine;

/// One message with one button, in a window of its own that stays until it is answered. Main thread.
class AlertWindow : public QObject {
    Q_OBJECT

public:
    /// `views` must outlive the window.
    AlertWindow(const StartupAlert& alert, ViewEngine& views);
    ~AlertWindow() override;

    void show();
    /// Called when the user has answered or closed the window.
    std::function<void()> onDone;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void finish();
    std::unique_ptr<QQuickView> m_view;
};

} // namespace vellumry
