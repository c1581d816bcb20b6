// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/search/ByteSearch.h"

#include <QByteArray>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

namespace vellumry {

/// The folded texts of many clips, laid side by side, so that one scan of memory searches them all. Each text is known
/// by the slot it was given. A byte that UTF-8 never has stands between two texts, so no needle reaches from one into
/// the next. Texts that were removed are overwritten at once. One thread.
class FoldedIndex {
public:
    using Slot = std::uint32_t;

    FoldedIndex();
    ~FoldedIndex();
    FoldedIndex(const FoldedIndex&) = delete;
    FoldedIndex& operator=(const FoldedIndex&) = delete;

    /// Keeps `text`, which is valid UTF-8. The slot is one that no living text has and that was not removed since
    /// `recycle`.
    Slot append(const QByteArray& text);
    /// Wipes the text. Its slot stays out of use until `recycle`.
    void remove(Slot slot);
    [[nodiscard]] bool contains(Slot slot) const;
    [[nodiscard]] std::size_t lengthOf(Slot slot) const { return m_places[slot].length; }

    /// Gives removed slots free for new texts, and moves texts together where much was removed.
    void recycle();

    /// One more than the greatest slot in use.
    [[nodiscard]] std::size_t slotCount() const { return m_places.size(); }
    /// Bytes of all living texts.
    [[nodiscard]] std::size_t byteCount() const { return m_byteCount; }
    /// Bytes of the texts that were removed since `recycle`.
    [[nodiscard]] std::size_t removedBytes() const { return m_removedBytes; }
    /// Bytes that are held, for living texts or not.
    [[nodiscard]] std::size_t capacity() const;

    /// Calls `onHit` once for each text that has the needle.
    void scan(const ByteSearch& search, const std::function<void(Slot)>& onHit) const;
    /// True when this one text has the needle.
    [[nodiscard]] bool matches(const ByteSearch& search, Slot slot) const;

private:
    struct Chunk;
    struct Place {
        std::uint32_t chunk = 0;
        std::uint32_t offset = 0;
        std::uint32_t length = 0;
        bool isAlive = false;
    };

    std::uint32_t chunkWithRoomFor(std::size_t needed);
    Place store(std::span<const char> text, Slot slot);
    void scanChunk(const Chunk& chunk, const ByteSearch& search, const std::function<void(Slot)>& onHit) const;
    void empty(std::uint32_t chunkNumber);

    std::vector<std::unique_ptr<Chunk>> m_chunks; ///< null where a chunk was given back
    std::uint32_t m_current = 0;                  ///< the chunk that takes the next text
    std::vector<Place> m_places;                  ///< by slot
    std::vector<Slot> m_removed;
    std::vector<Slot> m_free;
    std::size_t m_byteCount = 0;
    std::size_t m_removedBytes = 0;
};

} // namespace vellumry
