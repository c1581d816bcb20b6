// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "paste/ToastMessage.h"
#include "shell/StatusMenu.h"

#include <QCoroTask>
#include <QObject>
#include <functional>

namespace vellumry {

class ClipboardWatcher;
class ClipStore;
class PasteEngine;
class Pasteboard;
class PasteStack;
class PasteTarget;
class UserDefaults;

/// The program's menu as it is when it opens, and what its entries do. Keeps nothing between two openings. Main thread.
class StatusItemController : public QObject {
    Q_OBJECT

public:
    /// What the menu shows and works on; all outlive the controller.
    struct Parts {
        ClipStore& store;
        ClipboardWatcher& watcher;
        PasteEngine& paster;
        const UserDefaults& defaults;
        const PasteStack& stack;
        Pasteboard& pasteboard;
        PasteTarget& target;
        Clock clock;
    };

    explicit StatusItemController(Parts parts);

    /// The menu now. Reads memory alone. Entries hold this weakly and clips by their identity: one that is chosen after
    /// its clip has gone does nothing.
    [[nodiscard]] std::vector<ActionMenuItem> menu() const;

    /// Pastes the clip where the user was typing before the menu opened.
    QCoro::Task<void> pasteRecent(QUuid clip);
    QCoro::Task<void> pastePinned(QUuid clip);
    /// No capture for `seconds`, or until the user resumes.
    void pauseCapture(std::optional<double> seconds);
    /// What was copied during the pause stays out of the history.
    void resumeCapture();
    void toggleIgnoreNext();
    /// Opens an address in the user's own program for it.
    void openLink(const QString& address);

    /// Without one of the first four the menu lacks the entry.
    std::function<void()> onOpenPanel;
    std::function<void()> onToggleStack;
    std::function<void()> onToggleScreenshots;
    std::function<void()> onSettings;
    std::function<void(const ToastMessage& message)> onToast = [](const ToastMessage&) {};
    /// Pastes the pinned clip of that number, from 1.
    std::function<void(int number)> onPastePinned = [](int) {};
    /// Clears the history after a confirmation dialog.
    std::function<void()> onClearHistory = [] {};
    std::function<void(const QString& address)> onOpenLink = [](const QString&) {};
    std::function<void()> onQuit = [] {};
    /// What is known of a newer version; the entries of updates, while there is something to check them with.
    std::function<std::optional<PendingUpdate>()> pendingUpdate = [] { return std::nullopt; };
    std::function<void()> onRestartToUpdate = [] {};
    /// Unset where updates are off.
    std::function<void()> onCheckForUpdates;

private:
    [[nodiscard]] StatusMenuState state() const;
    [[nodiscard]] StatusMenuActions actions() const;

    Parts m_parts;
};

} // namespace vellumry
