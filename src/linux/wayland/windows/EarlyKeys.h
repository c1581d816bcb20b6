// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QPointer>
#include <QWindow>
#include <memory>
#include <vector>

namespace vellumry {

/// Keeps what is typed into a window that has the keyboard and is not active yet, and hands it over when it is. Qt
/// makes a window active a round trip after the compositor gave it the keyboard, and a view without an active window
/// drops keys. Main thread.
class EarlyKeys final : public QObject {
    Q_OBJECT
public:
    EarlyKeys();

    /// From now on, for as long as the window exists.
    void follow(QWindow* window) { window->installEventFilter(this); }
    /// What is kept is meant for nothing any more.
    void forget() { m_kept.clear(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void handOver(QWindow* active);

    QPointer<QWindow> m_window; ///< that the kept keys were typed into
    std::vector<std::unique_ptr<QKeyEvent>> m_kept;
};

} // namespace vellumry
