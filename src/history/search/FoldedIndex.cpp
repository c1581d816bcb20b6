// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/search/FoldedIndex.h"

#include "foundation/SecureBytes.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace vellumry {

namespace {

/// Never part of UTF-8.
constexpr char separator = '\xFF';
constexpr std::size_t chunkSize = std::size_t{1} << 20;
/// So many texts ahead their first bytes are fetched.
constexpr std::ptrdiff_t textsAhead = 8;

struct Entry {
    std::uint32_t offset;
    FoldedIndex::Slot slot;
};

} // namespace

/// Texts one after the other, each followed by a separator.
struct FoldedIndex::Chunk {
    explicit Chunk(std::size_t size)
        : bytes(new char[size])
        , capacity(size) {}
    ~Chunk() { wipe(bytes.get(), used); }
    Chunk(const Chunk&) = delete;
    Chunk& operator=(const Chunk&) = delete;

    std::unique_ptr<char[]> bytes;
    std::size_t capacity;
    std::size_t used = 0;
    std::size_t wasted = 0;     ///< of `used`
    std::vector<Entry> entries; ///< by offset, removed texts included
};

FoldedIndex::FoldedIndex() = default;
FoldedIndex::~FoldedIndex() = default;

FoldedIndex::Slot FoldedIndex::append(const QByteArray& text) {
    Slot slot = static_cast<Slot>(m_places.size());
    if (m_free.empty()) {
        m_places.emplace_back();
    } else {
        slot = m_free.back();
        m_free.pop_back();
    }
    m_places[slot] = store({text.constData(), static_cast<std::size_t>(text.size())}, slot);
    m_byteCount += m_places[slot].length;
    return slot;
}

FoldedIndex::Slot FoldedIndex::append(const QByteArray& before, QByteArray body, const QByteArray& behind) {
    const Slot slot = append(before + behind);
    m_places[slot].isParted = true;
    m_byteCount += static_cast<std::size_t>(body.size());
    m_bodies.insert_or_assign(slot, Body{std::move(body), static_cast<std::size_t>(before.size())});
    return slot;
}

FoldedIndex::Place FoldedIndex::store(std::span<const char> text, Slot slot) {
    const std::size_t needed = text.size() + 1;
    const std::uint32_t number = chunkWithRoomFor(needed);
    Chunk& chunk = *m_chunks[number];
    const auto offset = static_cast<std::uint32_t>(chunk.used);
    std::copy(text.begin(), text.end(), chunk.bytes.get() + offset);
    chunk.bytes[offset + text.size()] = separator;
    chunk.used += needed;
    chunk.entries.push_back({offset, slot});
    return {number, offset, static_cast<std::uint32_t>(text.size()), true, false};
}

std::uint32_t FoldedIndex::chunkWithRoomFor(std::size_t needed) {
    if (m_current < m_chunks.size() && m_chunks[m_current] != nullptr &&
        m_chunks[m_current]->capacity - m_chunks[m_current]->used >= needed)
        return m_current;
    const auto hole = std::find(m_chunks.begin(), m_chunks.end(), nullptr);
    const auto number = static_cast<std::uint32_t>(hole - m_chunks.begin());
    if (hole == m_chunks.end())
        m_chunks.emplace_back();
    m_chunks[number] = std::make_unique<Chunk>(std::max(chunkSize, needed));
    // A long text has a chunk to itself, and the shorter ones go on filling theirs.
    if (needed <= chunkSize / 4 || m_current >= m_chunks.size() || m_chunks[m_current] == nullptr)
        m_current = number;
    return number;
}

bool FoldedIndex::contains(Slot slot) const {
    return slot < m_places.size() && m_places[slot].isAlive;
}

void FoldedIndex::remove(Slot slot) {
    Place& place = m_places[slot];
    Chunk& chunk = *m_chunks[place.chunk];
    wipe(chunk.bytes.get() + place.offset, place.length);
    // Zeros could be searched for; separators cannot.
    std::memset(chunk.bytes.get() + place.offset, separator, place.length);
    chunk.wasted += place.length + 1;
    m_byteCount -= place.length;
    m_removedBytes += place.length;
    place.isAlive = false;
    if (std::exchange(place.isParted, false)) {
        m_byteCount -= static_cast<std::size_t>(m_bodies.at(slot).text.size());
        m_bodies.erase(slot);
    }
    m_removed.push_back(slot);
}

void FoldedIndex::recycle() {
    if (m_removed.empty())
        return;
    std::vector<std::uint32_t> touched;
    for (const Slot slot : m_removed)
        touched.push_back(m_places[slot].chunk);
    std::sort(touched.begin(), touched.end());
    touched.erase(std::unique(touched.begin(), touched.end()), touched.end());
    for (const std::uint32_t number : touched)
        if (m_chunks[number]->wasted > m_chunks[number]->used / 2)
            empty(number);
    m_free.insert(m_free.end(), m_removed.begin(), m_removed.end());
    m_removed.clear();
    m_removedBytes = 0;
}

void FoldedIndex::empty(std::uint32_t chunkNumber) {
    const std::unique_ptr<Chunk> old = std::move(m_chunks[chunkNumber]);
    for (const Entry& entry : old->entries) {
        const Place place = m_places[entry.slot];
        if (!place.isAlive || place.chunk != chunkNumber || place.offset != entry.offset)
            continue;
        m_places[entry.slot] = store({old->bytes.get() + place.offset, place.length}, entry.slot);
        m_places[entry.slot].isParted = place.isParted;
    }
}

std::size_t FoldedIndex::capacity() const {
    std::size_t bytes = 0;
    for (const auto& chunk : m_chunks)
        bytes += chunk == nullptr ? 0 : chunk->capacity;
    return bytes;
}

std::size_t FoldedIndex::lengthOf(Slot slot) const {
    const Place& place = m_places[slot];
    return place.length + (place.isParted ? static_cast<std::size_t>(m_bodies.at(slot).text.size()) : 0);
}

std::span<const char> FoldedIndex::storedText(Slot slot) const {
    const Place& place = m_places[slot];
    return {m_chunks[place.chunk]->bytes.get() + place.offset, place.length};
}

bool FoldedIndex::isInStored(const ByteSearch& search, Slot slot) const {
    const std::span<const char> text = storedText(slot);
    return search.find(text.data(), text.data() + text.size()) != nullptr;
}

/// In the body, or across one of its ends, which only a line feed can reach.
bool FoldedIndex::isInBody(const ByteSearch& search, Slot slot, const Body& body) const {
    const char* const begin = body.text.constData();
    if (search.findInAnyCase(begin, begin + body.text.size()) != nullptr)
        return true;
    if (!search.needle().contains('\n'))
        return false;
    const std::span<const char> stored = storedText(slot);
    QByteArray whole(stored.data(), static_cast<qsizetype>(body.split));
    whole += body.text.toLower();
    whole.append(stored.data() + body.split, static_cast<qsizetype>(stored.size() - body.split));
    const bool isFound = search.find(whole.constData(), whole.constData() + whole.size()) != nullptr;
    wipe(whole.data(), static_cast<std::size_t>(whole.size()));
    return isFound;
}

bool FoldedIndex::matches(const ByteSearch& search, Slot slot) const {
    if (!m_places[slot].isParted)
        return isInStored(search, slot);
    const bool mayCross = search.needle().contains('\n');
    return (!mayCross && isInStored(search, slot)) || isInBody(search, slot, m_bodies.at(slot));
}

void FoldedIndex::scan(const ByteSearch& search, const std::function<void(Slot)>& onHit) const {
    for (const auto& chunk : m_chunks)
        if (chunk != nullptr)
            scanChunk(*chunk, search, [&](Slot slot) {
                if (!m_places[slot].isParted)
                    onHit(slot);
            });
    for (const auto& [slot, body] : m_bodies)
        if (matches(search, slot))
            onHit(slot);
}

void FoldedIndex::scanChunk(const Chunk& chunk, const ByteSearch& search,
                            const std::function<void(Slot)>& onHit) const {
    const char* const begin = chunk.bytes.get();
    const char* const end = begin + chunk.used;
    auto entry = chunk.entries.begin();
    const char* at = begin;
    while ((at = search.find(at, end)) != nullptr) {
        // Hits come in order, so the text is near the one before; the step doubles until it has gone past.
        const auto offset = static_cast<std::uint32_t>(at - begin);
        std::ptrdiff_t step = 1;
        auto beyond = entry;
        while (beyond != chunk.entries.end() && beyond->offset <= offset) {
            entry = beyond;
            beyond += std::min(step, chunk.entries.end() - beyond);
            step *= 2;
        }
        entry = std::prev(std::upper_bound(entry, beyond, offset, [](std::uint32_t sought, const Entry& candidate) {
            return sought < candidate.offset;
        }));
        onHit(entry->slot);
        if (++entry == chunk.entries.end())
            return;
        // Where hits are frequent each text is left behind its first bytes: the next ones lie too far apart to be
        // fetched by the processor itself.
        if (chunk.entries.end() - entry > textsAhead)
            __builtin_prefetch(begin + entry[textsAhead].offset);
        at = begin + entry->offset;
    }
}

} // namespace vellumry
