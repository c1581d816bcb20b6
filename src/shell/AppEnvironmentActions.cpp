// SPDX-License-Identifier: GPL-3.0-or-later
// What the user asks of the program outside its windows: by a menu, a key binding of the desktop, or `--action`.
#include "shell/AppEnvironment.h"

#include "foundation/Localisation.h"
#include "shell/AlertWindow.h"
#include "shell/StatusReport.h"

#include <algorithm>

namespace vellumry {

bool AppEnvironment::isPaused() const {
    return m_watcher->pausedUntil && *m_watcher->pausedUntil > m_platform->clock();
}

void AppEnvironment::togglePause() {
    if (!isPaused()) {
        m_watcher->pause(std::nullopt, m_platform->clock());
        showToast({QStringLiteral("eye.slash.fill"), localised("Paused. Nothing you copy is saved until you resume"),
                   ToastMessage::Tone::info});
        return;
    }
    m_watcher->pausedUntil.reset();
    // What was copied meanwhile stays out of the history.
    m_watcher->lastChangeCount = m_platform->pasteboard->changeCount();
    showToast({QStringLiteral("checkmark.circle.fill"), localised("Resumed. What you copy is saved again"),
               ToastMessage::Tone::success});
}

void AppEnvironment::toggleIgnoreNext() {
    m_watcher->ignoreNextCopy = !m_watcher->ignoreNextCopy;
    showToast({QStringLiteral("eye.slash.fill"),
               m_watcher->ignoreNextCopy ? localised("Your next copy won't be saved")
                                         : localised("Your next copy will be saved"),
               ToastMessage::Tone::info});
}

void AppEnvironment::toggleScreenshots() {
    m_screenshotSaving->toggle();
}

void AppEnvironment::askToClear() {
    // It lies above all windows, the question among them.
    m_panel->hide();
    if (m_question) {
        m_question->show();
        return;
    }
    m_question =
        std::make_unique<AlertWindow>(AlertWindow::Question{localised("Clear your clipboard history?"),
                                                            localised("Pinned clips are kept. This can't be undone."),
                                                            localised("Clear History"), localised("Cancel")},
                                      m_views);
    m_question->onConfirmed = [this] { m_store->clearHistory(true); };
    m_question->onDone = [this] { m_question.release()->deleteLater(); };
    m_question->show();
}

void AppEnvironment::describe(StatusReport& report) const {
    const auto& clips = m_store->clips();
    StatusReport::History history;
    history.clips = static_cast<qsizetype>(clips.size());
    history.pinned = std::ranges::count_if(clips, [](const ClipRef& clip) { return clip->isPinned; });
    history.sensitive = std::ranges::count_if(clips, [](const ClipRef& clip) { return clip->isSensitive(); });
    history.isMemoryOnly = m_store->isMemoryOnly();
    if (const auto failure = m_opening ? m_opening->failure() : std::nullopt)
        history.reason = reasonOf(*failure);
    history.isBehind = m_store->isBehind();
    report.history = history;
    if (!history.isMemoryOnly)
        report.bytesOnDisk = historyBytes(m_imageVolume);
    report.capture = {isPaused(), m_watcher->ignoreNextCopy, m_screenshots->isWatching(), m_watcher->overtakenCopies()};
    report.takenShortcuts = m_shortcuts->takenKeys();
    report.refusedSettings = m_platform->defaults->refusedKeys();
}

} // namespace vellumry
