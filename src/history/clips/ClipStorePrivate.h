// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/SerialExecutor.h"
#include "history/clips/ClipHasher.h"
#include "history/clips/ClipJoining.h"
#include "history/clips/ClipList.h"
#include "history/clips/ClipStore.h"
#include "history/clips/ExpiryTimer.h"
#include "history/clips/HistoryWriter.h"
#include "history/file/ClipDatabase.h"
#include "history/search/ClipSearch.h"

#include <QPointer>
#include <QTimer>
#include <atomic>
#include <memory>
#include <vector>

namespace vellumry {

/// A search that is made ready for what was loaded.
struct LoadedSearch {
    ~LoadedSearch() { *isUnwanted = true; }

    std::vector<QUuid> forgotten; ///< clips whose text has changed or gone since it was begun
    std::shared_ptr<std::atomic<bool>> isUnwanted = std::make_shared<std::atomic<bool>>(false);
    SerialExecutor thread{"Folding"}; // last: it ends before the others go
};

struct ClipStore::Private {
    Private(ClipCrypto historyCrypto, RetentionPolicy limits, ClipStore* store)
        : crypto(std::make_shared<const ClipCrypto>(std::move(historyCrypto)))
        , policy(limits)
        , expiry(currentDate, [this, store] { store->enforceRetention(clock()); })
        , writer([this](const QUuid& id) { return list.find(id); }) {
        QObject::connect(&folding, &QTimer::timeout, store, [store] { store->prepareSearch(); });
    }

    /// Replaced as a whole when the history joins, so that a hash under way keeps the one it began with.
    std::shared_ptr<const ClipCrypto> crypto;
    RetentionPolicy policy;
    ClipList list;
    qint64 revision = 0;
    qint64 deletions = 0;
    quint64 era = 0; ///< grows when what was taken out must not come back
    bool isOpening = false;
    bool isLoading = false;
    std::optional<ClearedBefore> cleared; ///< what was cleared without the file
    bool recoveredFromDamage = false;
    double sensitiveLifetime = 60;
    bool autoExpire = false;
    /// What was folded of the clip is no longer true.
    void forgetText(const QUuid& id) {
        search->forgetText(id);
        if (loadedSearch)
            loadedSearch->forgotten.push_back(id);
    }

    /// Folds the texts of `clips`, which are those of the list, and takes the search over. What was folded of clips
    /// that have changed until then is thrown away.
    QCoro::Task<void> foldLoaded(std::vector<ClipRef> clips, QPointer<ClipStore> store);

    std::shared_ptr<ClipSearch> search = std::make_shared<ClipSearch>();
    /// Exists while the texts of a history that was just loaded are folded on a thread of their own.
    std::unique_ptr<LoadedSearch> loadedSearch;
    QTimer folding;              ///< runs while the search has something to prepare
    bool isSearchAsleep = false; ///< nothing is prepared for it
    Clock clock = currentDate;
    ExpiryTimer expiry;
    ClipHasher hasher;
    HistoryWriter writer;
};

} // namespace vellumry
