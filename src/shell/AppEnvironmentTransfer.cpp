// SPDX-License-Identifier: GPL-3.0-or-later
// How clips come from other programs and go into folders.
#include "shell/AppEnvironment.h"

namespace vellumry {

void AppEnvironment::makeTransfer() {
    HistoryImport::Hooks importHooks;
    importHooks.clock = m_platform->clock;
    importHooks.hasRoomForImages = [this] { return m_platform->hasRoomForImages(m_imageVolume); };
    importHooks.ignoredApps = [this] { return m_preferences->ignoredApps(); };
    m_import = std::make_unique<HistoryImport>(*m_store, m_platform->peers.get(),
                                               DraftBuilder(*m_platform->bookmarks, *m_platform->images),
                                               std::move(importHooks));
    m_export = std::make_unique<HistoryExport>(*m_store);
    const QString key = QStringLiteral("importedHistories");
    UserDefaults* defaults = m_platform->defaults.get();
    const auto imported = [defaults, key] { return defaults->stringArray(key).value_or(QStringList()); };
    TransferModel::Hooks hooks;
    hooks.imported = imported;
    hooks.noteImported = [defaults, key, imported](const QString& identifier) {
        QStringList identifiers = imported();
        if (!identifiers.contains(identifier))
            defaults->setObject(key, identifiers << identifier);
    };
    hooks.onImported = [this] { m_textReading->scheduleBacklog(); };
    hooks.home = m_platform->home;
    m_transfer = std::make_unique<TransferModel>(*m_import, *m_export, std::move(hooks));
}

} // namespace vellumry
