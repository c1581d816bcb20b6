// SPDX-License-Identifier: GPL-3.0-or-later
// The program's menu.
#include "shell/AppEnvironment.h"
#include "shell/Ending.h"

#include <QPointer>

namespace vellumry {

void AppEnvironment::makeStatusItem() {
    m_statusItem = std::make_unique<StatusItemController>(
        StatusItemController::Parts{*m_store, *m_watcher, *m_paster, *m_platform->defaults, m_stack->stack(),
                                    *m_platform->pasteboard, *m_platform->pasteTarget, m_platform->clock});
    m_statusItem->onOpenPanel = [this] { openPanel(); };
    m_statusItem->onToast = [this](const ToastMessage& message) { showToast(message); };
    m_statusItem->onToggleStack = [this] { m_stack->toggle({}); };
    m_statusItem->onPastePinned = [this](int number) { m_panel->model().pastePinned(number); };
    m_statusItem->onToggleScreenshots = [this] { toggleScreenshots(); };
    m_statusItem->onClearHistory = [this] { askToClear(); };
    m_statusItem->onSettings = [this] { openSettings(); };
    m_statusItem->onOpenLink = [this](const QString& address) { openLink(address); };
    m_statusItem->onQuit = &endProgram;
}

void AppEnvironment::installStatusItem() {
    StatusItem& item = *m_platform->statusItem;
    item.menu = [self = QPointer(this)] { return self ? self->statusMenu() : std::vector<ActionMenuItem>(); };
    connect(m_store.get(), &ClipStore::clipsChanged, this, [&item] { item.menuChanged(); });
    item.install();
}

} // namespace vellumry
