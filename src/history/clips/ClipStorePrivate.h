// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/ClipHasher.h"
#include "history/clips/ClipJoining.h"
#include "history/clips/ClipList.h"
#include "history/clips/ClipStore.h"
#include "history/clips/ExpiryTimer.h"
#include "history/clips/HistoryWriter.h"
#include "history/file/ClipDatabase.h"
#include "history/search/ClipSearch.h"

#include <QTimer>

namespace vellumry {

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
    std::unique_ptr<ClipSearch> search = std::make_unique<ClipSearch>();
    QTimer folding; ///< runs while the search has something to prepare
    Clock clock = currentDate;
    ExpiryTimer expiry;
    ClipHasher hasher;
    HistoryWriter writer;
};

} // namespace vellumry
