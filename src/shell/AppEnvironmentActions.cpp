// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/AppEnvironment.h"
#include "shell/StatusReport.h"

#include <algorithm>

namespace vellumry {

void AppEnvironment::describe(StatusReport& report) const {
    const auto& clips = m_store->clips();
    StatusReport::History history;
    history.clips = static_cast<qsizetype>(clips.size());
    history.pinned = std::ranges::count_if(clips, [](const ClipRef& clip) { return clip->isPinned; });
    history.sensitive = std::ranges::count_if(clips, [](const ClipRef& clip) { return clip->isSensitive(); });
    history.isMemoryOnly = m_store->isMemoryOnly();
    report.history = history;
    if (!history.isMemoryOnly)
        report.bytesOnDisk = historyBytes(m_imageVolume);
    StatusReport::Capture capture;
    capture.isPaused = m_watcher->pausedUntil && *m_watcher->pausedUntil > m_platform->clock();
    capture.ignoresNext = m_watcher->ignoreNextCopy;
    capture.savesScreenshots = m_screenshots->isWatching();
    capture.overtakenCopies = m_watcher->overtakenCopies();
    report.capture = capture;
    report.takenShortcuts = m_shortcuts->takenKeys();
}

} // namespace vellumry
