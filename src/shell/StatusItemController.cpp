// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/StatusItemController.h"

#include "capture/ClipboardWatcher.h"
#include "foundation/InterfaceLocale.h"
#include "foundation/Localisation.h"
#include "paste/PasteEngine.h"
#include "paste/PasteStack.h"
#include "platform/display/PasteTarget.h"
#include "settings/Preferences.h"

#include <QPointer>
#include <QUrl>
#include <algorithm>

namespace vellumry {

namespace {

/// `method` of the controller, if that is still there when an entry is chosen.
template <typename... Arguments>
auto weakly(const StatusItemController* controller, auto method) {
    return [target = QPointer(const_cast<StatusItemController*>(controller)), method](Arguments... arguments) {
        if (target)
            (target->*method)(arguments...);
    };
}

} // namespace

StatusItemController::StatusItemController(Parts parts)
    : m_parts(std::move(parts)) {}

std::vector<ActionMenuItem> StatusItemController::menu() const {
    return statusMenu(state(), actions());
}

StatusMenuState StatusItemController::state() const {
    StatusMenuState state;
    state.now = m_parts.clock();
    state.clipCount = static_cast<qsizetype>(m_parts.store.clips().size());
    state.pinned = m_parts.store.pinnedClips();
    state.recent = m_parts.store.recentClips(Preferences::recentInMenu(m_parts.defaults), state.pinned.empty());
    state.pausedUntil = m_parts.watcher.pausedUntil;
    state.ignoresNextCopy = m_parts.watcher.ignoreNextCopy;
    state.savesScreenshots = m_parts.defaults.boolean(QStringLiteral("saveNewScreenshots"));
    state.isTrusted = m_parts.target.isTrusted();
    state.isStackActive = m_parts.stack.isActive();
    state.stackItems = m_parts.stack.count();
    state.update = pendingUpdate();
    state.canCheckForUpdates = static_cast<bool>(onCheckForUpdates);
    state.locale = interfaceLocale();
    return state;
}

StatusMenuActions StatusItemController::actions() const {
    StatusMenuActions actions;
    actions.openPanel = onOpenPanel;
    actions.toggleStack = onToggleStack;
    actions.toggleScreenshots = onToggleScreenshots;
    actions.openSettings = onSettings;
    actions.pastePinned = weakly<QUuid>(this, &StatusItemController::pastePinned);
    actions.pasteRecent = weakly<QUuid>(this, &StatusItemController::pasteRecent);
    actions.pauseCapture = weakly<std::optional<double>>(this, &StatusItemController::pauseCapture);
    actions.resumeCapture = weakly(this, &StatusItemController::resumeCapture);
    actions.toggleIgnoreNext = weakly(this, &StatusItemController::toggleIgnoreNext);
    actions.clearHistory = onClearHistory;
    actions.allowPasting = [target = &m_parts.target] { target->requestTrust(); };
    actions.restartToUpdate = onRestartToUpdate;
    actions.checkForUpdates = onCheckForUpdates;
    actions.openLink = weakly<const QString&>(this, &StatusItemController::openLink);
    actions.quit = onQuit;
    return actions;
}

QCoro::Task<void> StatusItemController::pasteRecent(QUuid clip) {
    const QPointer<StatusItemController> self(this);
    // The menu that was open has the keyboard until it has gone, and would be taken for a password prompt.
    auto closing = m_parts.target.keyboardFree();
    co_await closing;
    if (!self)
        co_return;
    const ClipRef chosen = m_parts.store.find(clip);
    if (!chosen)
        co_return;
    auto pasting = m_parts.paster.paste(chosen, std::nullopt, std::nullopt);
    const PasteOutcome outcome = co_await pasting;
    if (!self)
        co_return;
    if (const auto message = toastFor(outcome))
        onToast(*message);
}

QCoro::Task<void> StatusItemController::pastePinned(QUuid clip) {
    const QPointer<StatusItemController> self(this);
    auto closing = m_parts.target.keyboardFree();
    co_await closing;
    if (!self)
        co_return;
    const auto pinned = m_parts.store.pinnedClips();
    const auto place = std::ranges::find(pinned, clip, [](const ClipRef& each) { return each->id; });
    if (place != pinned.end())
        onPastePinned(static_cast<int>(place - pinned.begin()) + 1);
}

void StatusItemController::pauseCapture(std::optional<double> seconds) {
    m_parts.watcher.pause(seconds, m_parts.clock());
}

void StatusItemController::resumeCapture() {
    m_parts.watcher.pausedUntil.reset();
    m_parts.watcher.lastChangeCount = m_parts.pasteboard.changeCount();
}

void StatusItemController::toggleIgnoreNext() {
    m_parts.watcher.ignoreNextCopy = !m_parts.watcher.ignoreNextCopy;
    if (m_parts.watcher.ignoreNextCopy)
        onToast(
            {QStringLiteral("eye.slash.fill"), localised("Your next copy won't be saved"), ToastMessage::Tone::info});
}

void StatusItemController::openLink(const QString& address) {
    const QUrl url(address, QUrl::StrictMode);
    if (url.isValid() && !url.scheme().isEmpty())
        onOpenLink(address);
}

} // namespace vellumry
