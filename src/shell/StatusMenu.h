// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Date.h"
#include "history/clips/Clip.h"
#include "platform/desktop/ActionMenuItem.h"
#include "shell/PendingUpdate.h"

#include <QLocale>
#include <functional>
#include <optional>
#include <vector>

namespace vellumry {

/// What the program's menu shows, as it stands at one moment.
struct StatusMenuState {
    Date now = 0;
    qsizetype clipCount = 0;
    std::vector<ClipRef> pinned{}; ///< in pin order; the first nine are shown
    std::vector<ClipRef> recent{}; ///< newest first; all are shown
    std::optional<Date> pausedUntil{};
    bool ignoresNextCopy = false;
    bool savesScreenshots = false;
    bool isTrusted = true; ///< we may press keys
    bool isStackActive = false;
    qsizetype stackItems = 0; ///< waiting in the Paste Stack
    std::optional<PendingUpdate> update{};
    bool canCheckForUpdates = false;
    QLocale locale{}; ///< of the time that a pause ends
};

/// What choosing an entry does. The three at the top may be unset: then their entries are left out.
struct StatusMenuActions {
    std::function<void()> openPanel{};
    std::function<void()> toggleStack{};
    std::function<void()> toggleScreenshots{};
    std::function<void()> openSettings{};
    std::function<void(const QUuid& clip)> pastePinned{};
    std::function<void(const QUuid& clip)> pasteRecent{};
    std::function<void(std::optional<double> seconds)> pauseCapture{}; ///< without end when absent
    std::function<void()> resumeCapture{};
    std::function<void()> toggleIgnoreNext{};
    std::function<void()> clearHistory{};
    std::function<void()> allowPasting{};
    std::function<void()> restartToUpdate{};
    std::function<void()> checkForUpdates{};
    std::function<void(const QString& address)> openLink{};
    std::function<void()> quit{};
};

/// The program's menu, for the tray and for the panel's own button. Pure; main thread.
[[nodiscard]] std::vector<ActionMenuItem> statusMenu(const StatusMenuState& state, const StatusMenuActions& actions);

} // namespace vellumry
