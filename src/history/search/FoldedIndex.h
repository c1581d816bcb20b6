// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/search/ByteSearch.h"

#include <QByteArray>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <unordered_map>
#include <vector>

namespace vellumry {

/// The folded texts of many clips, laid side by side, so that one scan of memory searches them all. Each text is known
/// by the slot it was given. A byte that UTF-8 never has stands between two texts, so no needle reaches from one into
/// the next. Texts that were removed are overwritten at once. One thread.
///
/// A long text that folds to its own lower case is not copied: it is shared with the clip, and searched where it lies.
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
    /// Keeps the text that `before`, `body` in lower case and `behind` make together. `body` is ASCII; it is not
    /// copied. `before` ends with a line feed and `behind` begins with one.
    Slot append(const QByteArray& before, QByteArray body, const QByteArray& behind);
    /// Wipes the text. Its slot stays out of use until `recycle`.
    void remove(Slot slot);
    [[nodiscard]] bool contains(Slot slot) const;
    [[nodiscard]] std::size_t lengthOf(Slot slot) const;

    /// Gives removed slots free for new texts, and moves texts together where much was removed.
    void recycle();

    /// One more than the greatest slot in use.
    [[nodiscard]] std::size_t slotCount() const { return m_places.size(); }
    /// Bytes of all living texts, those elsewhere included.
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
        bool isParted = false; ///< its middle is in `m_bodies`
    };
    /// What stands between the first `split` bytes of a slot's text and the others.
    struct Body {
        QByteArray text;
        std::size_t split = 0;
    };

    std::uint32_t chunkWithRoomFor(std::size_t needed);
    Place store(std::span<const char> text, Slot slot);
    void scanChunk(const Chunk& chunk, const ByteSearch& search, const std::function<void(Slot)>& onHit) const;
    void empty(std::uint32_t chunkNumber);
    [[nodiscard]] std::span<const char> storedText(Slot slot) const;
    [[nodiscard]] bool isInStored(const ByteSearch& search, Slot slot) const;
    [[nodiscard]] bool isInBody(const ByteSearch& search, Slot slot, const Body& body) const;

    std::vector<std::unique_ptr<Chunk>> m_chunks; ///< null where a chunk was given back
    std::uint32_t m_current = 0;                  ///< the chunk that takes the next text
    std::vector<Place> m_places;                  ///< by slot
    std::unordered_map<Slot, Body> m_bodies;
    std::vector<Slot> m_removed;
    std::vector<Slot> m_free;
    std::size_t m_byteCount = 0;
    std::size_t m_removedBytes = 0;
};

} // namespace vellumry
