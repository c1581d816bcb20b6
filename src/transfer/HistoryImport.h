// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/DraftBuilder.h"
#include "foundation/SerialExecutor.h"
#include "history/clips/ClipStore.h"
#include "platform/files/PeerHistories.h"
#include "transfer/ImportOutcome.h"
#include "transfer/ImportSource.h"

#include <QObject>
#include <QStringList>

namespace vellumry {

/// Takes the histories of other programs, and what this one exported, into its own. Files are read on a thread of low
/// priority, one entry at a time, so that nothing waits for them; each entry goes the way of a copy from there on. Main
/// thread.
class HistoryImport : public QObject {
    Q_OBJECT

public:
    struct Hooks {
        Clock clock = currentDate;
        std::function<bool()> hasRoomForImages = [] { return true; };
        /// Identifiers of applications that nothing is saved from.
        std::function<QStringList()> ignoredApps = [] { return QStringList(); };
    };

    /// `peers` may be null: there are no other programs then. All must outlive this.
    HistoryImport(ClipStore& store, PeerHistories* peers, DraftBuilder builder, Hooks hooks);
    ~HistoryImport() override;

    /// What other programs left here.
    [[nodiscard]] QCoro::Task<std::vector<PeerHistory>> find();
    /// Takes over the history of that identifier. `onProgress` hears how far it is.
    QCoro::Task<ImportOutcome> importPeer(QString identifier);
    /// The same of a folder that this program exported.
    QCoro::Task<ImportOutcome> importFolder(QString folder);
    /// The import under way ends with the entry at hand.
    void stop() { m_isStopped = true; }
    /// Takes away what an import added.
    QCoro::Task<void> undo(ImportOutcome outcome);

    /// After each entry.
    std::function<void(const ImportOutcome& soFar)> onProgress = [](const ImportOutcome&) {};

private:
    QCoro::Task<ImportOutcome> run(std::shared_ptr<ImportSource> source);
    QCoro::Task<void> takeIn(ImportEntry entry, std::shared_ptr<ImportOutcome> outcome);

    ClipStore* m_store;
    PeerHistories* m_peers;
    DraftBuilder m_builder;
    Hooks m_hooks;
    bool m_isStopped = false;
    SerialExecutor m_reader{"import", true};
};

} // namespace vellumry
