// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"

#include <functional>
#include <vector>

namespace vellumry {

/// Finds clips by a value of theirs that only one of them has. A flat table (open addressing, linear probing): 100,000
/// clips are entered in a few milliseconds without touching a clip twice. Does not own the clips. One thread.
class ClipIndex {
public:
    using Hash = std::size_t (*)(const Clip&);
    using Equal = bool (*)(const Clip&, const Clip&);
    ClipIndex(Hash hash, Equal equal)
        : m_hash(hash)
        , m_equal(equal) {}

    [[nodiscard]] std::size_t size() const { return m_size; }
    void clear();
    /// Makes room for so many clips at once.
    void reserve(std::size_t count);
    /// The clip with the value that `sample` has; null when there is none.
    [[nodiscard]] const Clip* find(const Clip& sample) const;
    /// False, and nothing changed, when a clip with that value is there.
    bool insert(const Clip& clip);
    /// Takes out this very clip; another one with its value stays.
    void erase(const Clip& clip);

private:
    struct Slot {
        std::size_t hash = 0;
        const Clip* clip = nullptr;
    };
    /// Where the clip with that value is, or would go.
    [[nodiscard]] std::size_t slotOf(const Clip& sample, std::size_t hash) const;

    Hash m_hash;
    Equal m_equal;
    std::vector<Slot> m_slots; ///< a power of two, at most half full
    std::size_t m_size = 0;
};

} // namespace vellumry
