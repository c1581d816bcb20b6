// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <memory>

class QQuickView;

namespace vellumry {

class SettingsModel;
class TransferModel;
class ViewEngine;

/// The window "Vellumry Settings": made when it is shown, gone when it is closed. Main thread.
class SettingsWindowController : public QObject {
    Q_OBJECT

public:
    /// All must outlive this.
    SettingsWindowController(SettingsModel& model, TransferModel& transfer, ViewEngine& views);
    ~SettingsWindowController() override;

    /// Brings the window to the front with that pane, 0 to 4.
    void show(int pane);
    /// The window, which is open, comes to the front as it is.
    void bringForward();
    void close();
    [[nodiscard]] bool isVisible() const;
    /// Null unless it is open.
    [[nodiscard]] QQuickView* window() const { return m_view.get(); }

protected:
    /// A recording ends when the window loses the keyboard or goes.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void make();

    SettingsModel* m_model;
    TransferModel* m_transfer;
    ViewEngine* m_views;
    std::unique_ptr<QQuickView> m_view;
};

} // namespace vellumry
