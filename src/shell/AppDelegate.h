// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/Platform.h"

#include <QCoroTask>
#include <QObject>
#include <functional>
#include <memory>

class QKeyEvent;

namespace vellumry {

class AppEnvironment;
class SerialExecutor;

/// Receives what the system tells the program about its life: launch, a second start, an action asked from outside, the
/// end. Main thread.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    explicit AppDelegate(Platform platform);
    ~AppDelegate() override;

    /// False when another copy runs in this session: then nothing was built and the process is to end.
    [[nodiscard]] bool applicationDidFinishLaunching();
    /// The process is about to end: no answer of a window counts any more.
    void applicationShouldTerminate();

    /// Called once, when the clipboard is watched and the history is there, or is known not to be.
    std::function<void()> onStarted;

    /// Null before the launch.
    [[nodiscard]] AppEnvironment* environment() const { return m_environment.get(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void launch();
    [[nodiscard]] bool isWindowKey(const QKeyEvent& event);
    void findCapabilities();
    [[nodiscard]] QString status() const;
    void reopen();
    void perform(const QString& action);

    Platform m_platform;
    std::unique_ptr<AppEnvironment> m_environment;
    std::unique_ptr<SerialExecutor> m_finder; ///< while capabilities are being looked for
    quint64 m_unknownActions = 0;
};

} // namespace vellumry
