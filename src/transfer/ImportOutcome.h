// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSet>
#include <QString>
#include <QUuid>

namespace vellumry {

/// What an import has done so far.
struct ImportOutcome {
    int added = 0;
    int alreadyThere = 0;
    int secrets = 0;      ///< passwords, codes and keys: a copy of them would have deleted itself long since
    int excluded = 0;     ///< of applications that are never saved from
    int beyondLimits = 0; ///< older than the history keeps, or too many
    int withoutRoom = 0;  ///< pictures, while the disk is almost full
    int unusable = 0;     ///< empty, or of no kind that the history knows
    bool isDamaged = false;
    bool isMissing = false; ///< there is nothing to import from any more
    bool isStopped = false; ///< by the user
    QSet<QUuid> clips{};    ///< those that were added

    [[nodiscard]] int looked() const {
        return added + alreadyThere + secrets + excluded + beyondLimits + withoutRoom + unusable;
    }
    /// What is told of it at the end, in whole sentences.
    [[nodiscard]] QString text() const;

    bool operator==(const ImportOutcome&) const = default;
};

} // namespace vellumry
