// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <vector>

namespace vellumry {

/// A query whose places are looked at in the order in which they rule out most.
template <typename Key>
class LookAlikeQuery {
public:
    struct Place {
        std::size_t offset;
        Key key;
    };

    /// `rarities` tells of each place how seldom its character is; only the order counts, and only for speed.
    LookAlikeQuery(std::span<const Key> keys, std::span<const int> rarities) {
        for (std::size_t offset = 0; offset < keys.size(); ++offset)
            m_places.push_back({offset, keys[offset]});
        std::stable_sort(m_places.begin(), m_places.end(), [&](const Place& left, const Place& right) {
            return rarities[left.offset] > rarities[right.offset];
        });
    }

    [[nodiscard]] std::size_t size() const { return m_places.size(); }
    [[nodiscard]] const std::vector<Place>& places() const { return m_places; }

private:
    std::vector<Place> m_places;
};

/// Compares a query with as many starts at once as keys of this width fit into 64 bytes.
template <typename Key, int allowed>
class LookAlikeBlock {
public:
    static constexpr std::size_t width = 64 / sizeof(Key);

    /// The first of the `width` starts from `text` on that fits. Reads no key behind the longest of these stretches.
    [[nodiscard]] static std::optional<std::size_t> firstFit(const LookAlikeQuery<Key>& query, const Key* text) {
        std::array<Within, vectorCount> within;
        std::size_t compared = 0;
        for (const auto& place : query.places()) {
            const Vector sought = Vector{} + place.key;
            Vector alive{};
#pragma GCC unroll 4
            for (std::size_t index = 0; index < vectorCount; ++index) {
                Vector keys;
                std::memcpy(&keys, text + place.offset + index * lanes, sizeof keys);
                within[index].count(static_cast<Vector>(keys == sought));
                alive |= within[index].limits[allowed];
            }
            if (++compared > static_cast<std::size_t>(allowed) && !hasAny(alive))
                return std::nullopt;
        }
        for (std::size_t lane = 0; lane < width; ++lane)
            if (within[lane / lanes].limits[allowed][lane % lanes] != 0)
                return lane;
        return std::nullopt;
    }

private:
    using Vector [[gnu::vector_size(16)]] = Key;
    static constexpr std::size_t lanes = 16 / sizeof(Key);
    static constexpr std::size_t vectorCount = 4;

    /// For each lane, whether it has had at most 0, 1, … mismatches: all ones for yes.
    struct Within {
        Vector limits[allowed + 1]; // std::array would drop the attribute of the vector type

        Within() {
            for (Vector& limit : limits)
                limit = ~Vector{};
        }
        void count(const Vector& equal) {
#pragma GCC unroll 2
            for (int limit = allowed; limit > 0; --limit)
                limits[limit] = (limits[limit] & equal) | limits[limit - 1];
            limits[0] &= equal;
        }
    };

    [[nodiscard]] static bool hasAny(const Vector& vector) {
        std::array<std::uint64_t, 2> words;
        std::memcpy(words.data(), &vector, sizeof words);
        return (words[0] | words[1]) != 0;
    }
};

/// True when the keys from `text` on differ from the query in no more places than `allowed`.
template <typename Key>
[[nodiscard]] bool fitsAt(const LookAlikeQuery<Key>& query, const Key* text, int allowed) {
    int mismatches = 0;
    for (const auto& place : query.places())
        if (text[place.offset] != place.key && ++mismatches > allowed)
            return false;
    return true;
}

/// The first start in `text` from which the query differs in no more places than `allowed`. Nothing for an empty query
/// and for one that is longer than the text.
template <typename Key, int allowed>
[[nodiscard]] std::optional<std::size_t> findLookAlike(const LookAlikeQuery<Key>& query, std::span<const Key> text) {
    using Block = LookAlikeBlock<Key, allowed>;
    if (query.size() == 0 || text.size() < query.size())
        return std::nullopt;
    const std::size_t starts = text.size() - query.size() + 1;
    if (starts < Block::width) {
        for (std::size_t start = 0; start < starts; ++start)
            if (fitsAt(query, text.data() + start, allowed))
                return start;
        return std::nullopt;
    }
    for (std::size_t start = 0; start < starts; start += Block::width) {
        // The last block reaches back over starts that are known not to fit.
        const std::size_t from = std::min(start, starts - Block::width);
        if (const auto lane = Block::firstFit(query, text.data() + from))
            return from + *lane;
    }
    return std::nullopt;
}

} // namespace vellumry
