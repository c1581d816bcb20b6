// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/StartupAlert.h"

#include <QObject>
#include <QVariantMap>
#include <functional>
#include <memory>

class QQuickView;

namespace vellumry {

class ViewEngine;

/// One message with a button, or a question with two, in a window of its own that stays until it is answered. Main
/// thread.
class AlertWindow : public QObject {
    Q_OBJECT

public:
    /// `views` must outlive the window.
    AlertWindow(const StartupAlert& alert, ViewEngine& views);
    /// Something that cannot be undone, asked for first: the way out has the keyboard.
    struct Question {
        QString title;
        QString text;
        QString confirm;
        QString cancel;
    };
    AlertWindow(const Question& question, ViewEngine& views);
    ~AlertWindow() override;

    void show();
    /// Called before `onDone` when the user has chosen to go on.
    std::function<void()> onConfirmed;
    /// Called when the user has answered or closed the window.
    std::function<void()> onDone;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void confirm();

private:
    AlertWindow(const QVariantMap& properties, ViewEngine& views);
    void finish();
    std::unique_ptr<QQuickView> m_view;
};

} // namespace vellumry
