// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/ClipHasher.h"
#include "history/clips/ClipList.h"
#include "history/clips/ClipStore.h"
#include "history/clips/ExpiryTimer.h"
#include "history/file/ClipDatabase.h"
#include "history/search/ClipSearch.h"

#include <QHash>

namespace vellumry {

struct ClipStore::Private {
    Private(std::shared_ptr<ClipDatabase> file, ClipCrypto historyCrypto, RetentionPolicy limits, ClipStore* store)
        : database(std::move(file))
        , crypto(std::move(historyCrypto))
        , policy(limits)
        , expiry(currentDate, [this, store] { store->enforceRetention(clock()); }) {}

    std::shared_ptr<ClipDatabase> database; ///< null in memory-only mode
    ClipCrypto crypto;
    RetentionPolicy policy;
    ClipList list;
    qint64 revision = 0;
    bool recoveredFromDamage = false;
    double sensitiveLifetime = 60;
    bool autoExpire = false;
    QHash<QUuid, ClipPayload> memoryPayloads; ///< memory-only mode keeps them here
    std::unique_ptr<ClipSearch> search = std::make_unique<ClipSearch>();
    Clock clock = currentDate;
    ExpiryTimer expiry;
    ClipHasher hasher{crypto};
};

} // namespace vellumry
