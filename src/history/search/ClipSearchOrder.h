// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"
#include "history/clips/ClipFilter.h"
#include "history/search/FoldedIndex.h"
#include "history/search/LookAlikeMatcher.h"

#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <vector>

namespace vellumry {

/// What a search needs to know of each clip, in the clips' order and close together, so that a keystroke does not touch
/// the clips themselves. Recognises clips that it has seen before without looking into them; keeps none of them alive.
/// Main thread.
class ClipSearchOrder {
public:
    using Slot = FoldedIndex::Slot;
    /// Stands in for a sensitive clip: it has no text in the index.
    static constexpr Slot noSlot = std::numeric_limits<Slot>::max();

    /// A clip with text that was read out of its picture. The keys are made when they are first needed.
    struct Picture {
        std::uint32_t position = 0;
        std::shared_ptr<const LookAlikeText> keys;
    };

    /// Follows `clips`. `slotOf` gives the slot of a clip that is not sensitive; it is asked only about clips that are
    /// new here or whose slot has gone from `index`. Clips of the same `revision` as the last are taken for the same.
    /// True when anything differs from the last time.
    bool follow(const std::vector<ClipRef>& clips, const FoldedIndex& index,
                const std::function<Slot(const Clip&)>& slotOf, std::optional<qint64> revision = std::nullopt);
    /// The same a few clips at a time, for the first time that there are any: the next `count` of `clips`, whose first
    /// are here already. What was begun may be left as it is; `follow` completes it.
    void begin(const std::vector<ClipRef>& clips, std::size_t count, const std::function<Slot(const Clip&)>& slotOf);
    /// All of `clips` are here.
    void finish(std::optional<qint64> revision);
    /// The slots of some clips have gone: the next `follow` looks at each.
    void invalidate() { m_isStale = true; }
    /// Drops this order's references to all keys.
    void forgetPictures();

    [[nodiscard]] std::size_t size() const { return m_slots.size(); }
    [[nodiscard]] Slot slotAt(std::size_t position) const { return m_slots[position]; }
    /// Where the clip with that text stands; nothing when it has gone.
    [[nodiscard]] std::optional<std::size_t> positionOf(Slot slot) const {
        if (slot >= m_positions.size() || m_positions[slot] == noPosition)
            return std::nullopt;
        return m_positions[slot];
    }
    /// The positions of the sensitive clips.
    [[nodiscard]] const std::vector<std::uint32_t>& withoutText() const { return m_withoutText; }
    [[nodiscard]] bool passes(std::size_t position, ClipFilter filter) const {
        return (m_traits[position] >> static_cast<unsigned>(filter) & 1U) != 0;
    }
    /// By position.
    [[nodiscard]] std::vector<Picture>& pictures() { return m_pictures; }

private:
    static constexpr std::uint32_t noPosition = std::numeric_limits<std::uint32_t>::max();

    /// The address alone could be that of a later clip; the owner alone could be shared by many.
    struct Known {
        std::weak_ptr<const Clip> owner;
        const Clip* address = nullptr;

        explicit Known(const ClipRef& clip)
            : owner(clip)
            , address(clip.get()) {}
        [[nodiscard]] bool is(const ClipRef& clip) const {
            return address == clip.get() && !owner.owner_before(clip) && !clip.owner_before(owner);
        }
    };

    [[nodiscard]] bool isUnchanged(const std::vector<ClipRef>& clips) const;
    void takeOver(ClipSearchOrder& old, std::size_t position);
    void append(const ClipRef& clip, const std::function<Slot(const Clip&)>& slotOf);
    void notePositions();

    std::vector<Known> m_known;
    std::vector<Slot> m_slots;
    std::vector<std::uint8_t> m_traits;     ///< one bit for each filter that the clip passes
    std::vector<std::uint32_t> m_positions; ///< by slot
    std::vector<std::uint32_t> m_withoutText;
    std::vector<Picture> m_pictures;
    std::size_t m_nextPicture = 0; ///< of those that are being taken over
    std::optional<qint64> m_revision;
    bool m_isStale = false;
};

} // namespace vellumry
