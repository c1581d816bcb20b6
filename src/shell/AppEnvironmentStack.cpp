// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/AppEnvironment.h"

#include <QGuiApplication>
#include <QWindow>

namespace vellumry {

void AppEnvironment::makeStack() {
    const SystemHooks system = systemHooks();
    StackWiring::Hooks hooks;
    hooks.showToast = [this](const ToastMessage& message) { showToast(message); };
    hooks.closePanel = [this] { m_panel->hide(); };
    hooks.checkFileAccess = system.checkFileAccess;
    hooks.fileStatus = system.fileStatus;
    const StackWiring::Parts parts{*m_store,
                                   *m_watcher,
                                   *m_platform->pasteboard,
                                   *m_platform->pasteTarget,
                                   *m_platform->pasteKeys,
                                   *m_platform->keyboard,
                                   *m_platform->defaults};
    m_stack = std::make_unique<StackWiring>(parts, std::move(hooks));
    m_stackHUD = std::make_unique<StackHUDController>(m_stack->stack(), *m_platform->panelSurface, m_views);
}

void AppEnvironment::wireStack() {
    m_stack->listener().isOwnWindowFocused = [] {
        // A window that was just hidden counts as focused until the server's word of it is read.
        const QWindow* window = QGuiApplication::focusWindow();
        return window != nullptr && window->isVisible();
    };
    m_stack->stack().onWritten = [this](const PasteStack::Item& item) {
        m_survivingCopy->noteWritten(item.clipID, item.isSensitive);
    };
    m_stack->onStarted = [this] { m_stackHUD->show(); };
    m_stack->onFinished = [this] { m_stackHUD->showFinished(); };
    m_stack->onStopped = [this] { m_stackHUD->hide(); };
    m_stackHUD->onStop = [this] { m_stack->stop(); };
    m_panel->setStack(m_stack->stack());
    m_panel->model().onToggleStack = [this](const std::vector<ClipRef>& clips) { m_stack->toggle(clips); };
    m_panel->model().onAddToStack = [this](const std::vector<ClipRef>& clips) { m_stack->add(clips); };
}

void AppEnvironment::toggleStack() {
    m_stack->toggle(stackSeed());
}

/// What the shortcut starts the stack with: several selected clips of the open panel.
std::vector<ClipRef> AppEnvironment::stackSeed() {
    return m_panel->isVisible() ? m_panel->model().stackSeed() : std::vector<ClipRef>();
}

} // namespace vellumry
