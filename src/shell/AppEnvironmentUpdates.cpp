// SPDX-License-Identifier: GPL-3.0-or-later
// Newer versions of the program.
#include "foundation/Localisation.h"
#include "shell/AppEnvironment.h"

#include <QGuiApplication>
#include <QWindow>
#include <algorithm>

namespace vellumry {

void AppEnvironment::makeUpdates() {
    m_updates = std::make_unique<UpdateController>(m_platform->updateConfiguration, m_platform->updater.get());
    m_updates->now = m_platform->clock;
    m_updates->idleSeconds = m_platform->idleSeconds;
    m_updates->isBusy = [this] { return isInUse(); };
    m_updates->onOutcome = [this](SoftwareUpdater::Outcome outcome) {
        if (outcome == SoftwareUpdater::Outcome::upToDate)
            showToast({QStringLiteral("checkmark.circle.fill"), localised("Vellumry is up to date"),
                       ToastMessage::Tone::success});
        else
            showToast({QStringLiteral("exclamationmark.triangle.fill"),
                       localised("The update couldn't be loaded. Nothing has changed"), ToastMessage::Tone::warning});
    };
    m_statusItem->pendingUpdate = [this] { return m_updates->pendingVersion(); };
    m_statusItem->onRestartToUpdate = [this] { m_updates->requestInstall(); };
    if (m_updates->isEnabled())
        m_statusItem->onCheckForUpdates = [this] { m_updates->checkNow(); };
}

/// A window in which the user may be at work: the panel, settings, the first run, a question.
bool AppEnvironment::isInUse() const {
    const auto isAtWork = [](const QWindow* window) {
        return window->isVisible() && (window->type() == Qt::Window || window->type() == Qt::Dialog);
    };
    return m_panel->isVisible() || m_stack->stack().isActive() ||
           std::ranges::any_of(QGuiApplication::topLevelWindows(), isAtWork);
}

} // namespace vellumry
