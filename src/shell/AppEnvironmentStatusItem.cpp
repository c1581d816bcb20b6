// SPDX-License-Identifier: GPL-3.0-or-later
// The program's menu.
#include "shell/AppEnvironment.h"
#include "shell/Ending.h"

#include <QPointer>
#include <algorithm>
#include <iterator>

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

// A panel comes and goes, so that this one is looked at anew each time.
std::vector<Capability> AppEnvironment::capabilities() const {
    const QString tray = QStringLiteral("tray");
    std::vector<Capability> capabilities = m_platform->capabilities;
    std::erase_if(capabilities, [&tray](const Capability& capability) { return capability.name == tray; });
    std::ranges::move(m_platform->standing(), std::back_inserter(capabilities));
    capabilities.push_back(
        (isInTray() ? Capability::found(tray, QStringLiteral("the icon is in the desktop's panel"))
                    : Capability::without(tray, QStringLiteral("no panel or tray that shows icons: the "
                                                               "menu is behind a button of the panel of clips")))
            .serving({Feature::tray}));
    return capabilities;
}

void AppEnvironment::installStatusItem() {
    StatusItem& item = *m_platform->statusItem;
    item.menu = [self = QPointer(this)] { return self ? self->statusMenu() : std::vector<ActionMenuItem>(); };
    item.onMenuWanted = [self = QPointer(this)] {
        if (self)
            self->m_panel->showStatusMenu();
    };
    connect(m_store.get(), &ClipStore::clipsChanged, this, [&item] { item.menuChanged(); });
    item.install();
}

} // namespace vellumry
