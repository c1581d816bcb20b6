// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Date.h"

#include <QUuid>

namespace vellumry {

/// What is known of a clip that was not copied here: another program remembered it, or a folder it was exported to.
struct Provenance {
    Date createdAt = 0;
    Date lastUsedAt = 0;
    bool isPinned = false;
    qint64 pinOrder = 0; ///< 0 for a pin without a place, which goes behind the others

    bool operator==(const Provenance&) const = default;
};

/// What became of a clip that was to be taken in.
struct TakenIn {
    enum class Outcome : quint8 {
        added,
        isThere,      ///< its content is in the history already, where nothing changed
        beyondLimits, ///< it would be the first to go
        failed,
    };
    Outcome outcome = Outcome::failed;
    QUuid id{}; ///< of the clip that was added

    bool operator==(const TakenIn&) const = default;
};

} // namespace vellumry
