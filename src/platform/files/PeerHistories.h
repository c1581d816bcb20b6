// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Date.h"
#include "platform/display/PasteboardItem.h"

#include <QString>
#include <memory>
#include <optional>
#include <vector>

namespace vellumry {

/// One entry of another clipboard program's history, as a pasteboard would have held it.
struct PeerClip {
    std::vector<PasteboardItem> items{}; ///< empty for an entry that is not to be taken over
    std::optional<Date> copiedAt{};      ///< where the program remembers it
    bool isPinned = false;
    bool isLocked = false; ///< the program keeps it encrypted, or marked as a secret

    bool operator==(const PeerClip&) const = default;
};

/// The history that another clipboard program left on the disk, as far as it could be read.
struct PeerHistory {
    enum class State : quint8 {
        whole,
        damaged, ///< what could be read is counted
        locked,  ///< encrypted as a whole
        tooLarge,
        unreadable, ///< the disk refuses it
    };

    QString identifier{}; ///< stays the same from one run to the next
    QString program{};    ///< as the user knows it
    State state = State::whole;
    int clips = 0;
    int pictures = 0; ///< those of `clips` that are pictures and nothing else

    bool operator==(const PeerHistory&) const = default;
};

/// One history being read, from its newest entry on. May block; one thread at a time.
class PeerReading {
public:
    virtual ~PeerReading() = default;
    /// The next entry; nothing behind the last that can be read.
    [[nodiscard]] virtual std::optional<PeerClip> next() = 0;
    /// True when what was read so far ended before its end.
    [[nodiscard]] virtual bool isDamaged() const = 0;
    /// When the newest entry was made at the latest.
    [[nodiscard]] virtual Date newest() const = 0;
};

/// The histories of other clipboard programs. Nothing of theirs is ever changed, the times of their files included.
/// Blocks while it reads; any thread, one at a time.
class PeerHistories {
public:
    virtual ~PeerHistories() = default;
    /// Those that are there and hold anything, in a fixed order. Reads all of them.
    [[nodiscard]] virtual std::vector<PeerHistory> find() = 0;
    /// Null when there is none of that identifier any more.
    [[nodiscard]] virtual std::unique_ptr<PeerReading> open(const QString& identifier) = 0;
};

} // namespace vellumry
