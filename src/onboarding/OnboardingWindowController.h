// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>
#include <memory>

class QQuickView;

namespace vellumry {

class OnboardingModel;
class TransferModel;
class ViewEngine;

/// The window "Welcome to Vellumry": made when it is shown, gone when it is closed. Main thread.
class OnboardingWindowController : public QObject {
    Q_OBJECT

public:
    /// Both must outlive this.
    OnboardingWindowController(OnboardingModel& model, TransferModel& transfer, ViewEngine& views);
    ~OnboardingWindowController() override;

    /// Brings the window to the front.
    void show();
    void close();
    [[nodiscard]] bool isVisible() const;
    /// Null unless it is open.
    [[nodiscard]] QQuickView* window() const { return m_view.get(); }

    /// Called when the window was closed, by the user or by `close`, but not by the end of the program.
    std::function<void()> onClose = [] {};
    std::function<bool()> isQuitting = [] { return false; };

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void make();

    OnboardingModel* m_model;
    TransferModel* m_transfer;
    ViewEngine* m_views;
    std::unique_ptr<QQuickView> m_view;
};

} // namespace vellumry
