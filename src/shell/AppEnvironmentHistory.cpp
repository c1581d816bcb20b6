// SPDX-License-Identifier: GPL-3.0-or-later

// The history's file, and what the user is told of it.

#include "foundation/Localisation.h"
#include "history/file/HistoryFile.h"
#include "shell/AlertWindow.h"
#include "shell/AppEnvironment.h"
#include "shell/StartupAlert.h"

#include <QFileInfo>
#include <chrono>
#include <utility>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

/// Behind a keyring's question the program is ready all the same.
constexpr auto longestWaitForHistory = 3s;
constexpr double lowDiskSilence = 3600.0;

} // namespace

void AppEnvironment::openHistory() {
    m_opening = std::make_unique<HistoryOpening>(*m_store, *m_platform->keyStore,
                                                 [home = m_platform->dataHome] { return historyFolder(home); });
    m_opening->onOpened = [this] { historyOpened(); };
    m_opening->mayAsk = [this] { return mayKeyringAsk(); };
    m_opening->onFailed = [this](HistoryFailure failure) {
        // The first run says it in its own place.
        if (m_onboardingModel->isKeyringClosed()) {
            tellReady();
            return;
        }
        showAlert(memoryOnlyAlert(failure, m_platform->dataHome + QStringLiteral("/Vellumry")), [] {});
        tellReady();
    };
    connect(m_store.get(), &ClipStore::storageChanged, this, &AppEnvironment::tellStorage);
    m_opening->start();
    QTimer::singleShot(longestWaitForHistory, this, &AppEnvironment::tellReady);
}

void AppEnvironment::historyOpened() {
    m_alert.reset();
    m_onboardingModel->setKeyringClosed(false);
    // Its pictures may have been waiting for their text since the last run.
    m_textReading->scheduleBacklog();
    showBackupAlert();
    tellReady();
}

/// What was put aside is told at each start, until the user has dismissed the alert.
void AppEnvironment::showBackupAlert() {
    m_store->setRecoveredFromDamage(false);
    const QString key = QStringLiteral("dismissedBackups");
    const QStringList dismissed = m_platform->defaults->stringArray(key).value_or(QStringList());
    QStringList backups = historyfile::backups(m_platform->dataHome + QStringLiteral("/Vellumry"));
    const QStringList all = backups;
    erase_if(backups, [&](const QString& path) { return dismissed.contains(QFileInfo(path).fileName()); });
    const auto alert = backupAlert(backups);
    if (!alert)
        return;
    showAlert(*alert, [this, key, all] {
        if (m_isQuitting)
            return;
        QStringList names;
        for (const QString& path : all)
            names.append(QFileInfo(path).fileName());
        m_platform->defaults->setObject(key, names);
    });
}

void AppEnvironment::showAlert(const StartupAlert& alert, std::function<void()> onDismissed) {
    m_alert = std::make_unique<AlertWindow>(alert, m_views);
    m_alert->onDone = [this, onDismissed = std::move(onDismissed)] {
        onDismissed();
        m_alert.release()->deleteLater();
    };
    // The panel lies above all windows, the alert among them.
    m_panel->hide();
    m_alert->show();
}

void AppEnvironment::tellReady() {
    if (onReady)
        std::exchange(onReady, nullptr)();
}

/// Copies that the file refuses are told once, and again when the file has taken everything and refuses anew.
void AppEnvironment::tellStorage() {
    if (!std::exchange(m_wasBehind, m_store->isBehind()) && m_store->isBehind())
        showToast({QStringLiteral("externaldrive.badge.exclamationmark"),
                   localised("The history can't be saved now. Vellumry tries again"), ToastMessage::Tone::warning});
}

void AppEnvironment::showLowDiskToast() {
    const Date now = m_platform->clock();
    if (m_lastLowDiskWarning && now - *m_lastLowDiskWarning < lowDiskSilence)
        return;
    m_lastLowDiskWarning = now;
    showToast({QStringLiteral("externaldrive.badge.exclamationmark"),
               localised("Your Mac is almost full. Vellumry saves text only for now"), ToastMessage::Tone::warning});
}

} // namespace vellumry
