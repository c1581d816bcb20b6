// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/AppDelegate.h"

#include "shell/AppEnvironment.h"

namespace vellumry {

AppDelegate::AppDelegate(Platform platform)
    : m_platform(std::move(platform)) {}

AppDelegate::~AppDelegate() = default;

bool AppDelegate::applicationDidFinishLaunching() {
    if (m_platform.singleInstance->isAnotherCopyRunning())
        return false;
    m_platform.singleInstance->onReopen = [this] { reopen(); };
    m_platform.singleInstance->onAction = [this](const QString& action) { perform(action); };
    launch();
    return true;
}

void AppDelegate::applicationShouldTerminate() {
    if (m_environment)
        m_environment->setQuitting();
}

QCoro::Task<void> AppDelegate::launch() {
    auto environment = co_await AppEnvironment::launch(m_platform);
    m_environment = std::move(environment);
    m_environment->start();
    if (onStarted)
        onStarted();
}

void AppDelegate::reopen() {
    if (m_environment)
        m_environment->openPanel();
}

void AppDelegate::perform(const QString& action) {
    if (!m_environment)
        return;
    if (action == QLatin1String("open-panel"))
        m_environment->togglePanel();
    else if (action == QLatin1String("toggle-stack"))
        m_environment->toggleStack();
}

} // namespace vellumry
