// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/search/LookAlikeMatcher.h"

#include "foundation/SecureBytes.h"
#include "history/search/ByteSearch.h"

#include <algorithm>
#include <limits>

namespace vellumry {

namespace {

/// No text of 16-bit keys holds this one, so in a query it stands for all greater keys.
constexpr std::uint16_t outsideUnits = std::numeric_limits<std::uint16_t>::max();

std::vector<std::uint16_t> unitsOf(std::span<const std::uint32_t> keys) {
    std::vector<std::uint16_t> units(keys.size());
    std::transform(keys.begin(), keys.end(), units.begin(), [](std::uint32_t key) {
        return static_cast<std::uint16_t>(std::min<std::uint32_t>(key, outsideUnits));
    });
    return units;
}

std::vector<std::uint8_t> bytesOf(std::span<const std::uint32_t> keys, const LookAlikeAlphabet& alphabet) {
    std::vector<std::uint8_t> bytes(keys.size());
    std::transform(keys.begin(), keys.end(), bytes.begin(), [&](std::uint32_t key) { return alphabet.find(key); });
    return bytes;
}

std::vector<int> raritiesOf(std::span<const std::uint32_t> keys) {
    std::vector<int> rarities(keys.size());
    std::transform(keys.begin(), keys.end(), rarities.begin(), [](std::uint32_t key) {
        return key < 0x80 ? 255 - frequencyOfByte(static_cast<unsigned char>(key)) : 155;
    });
    return rarities;
}

LookAlikeText::Storage storageOf(const LookAlikeKeys& keys, LookAlikeAlphabet& alphabet) {
    if (auto bytes = alphabet.encode(keys))
        return std::move(*bytes);
    if (std::all_of(keys.begin(), keys.end(), [](std::uint32_t key) { return key < outsideUnits; }))
        return unitsOf(keys);
    return keys;
}

template <typename Key>
std::optional<std::size_t> findIn(std::span<const Key> text, const LookAlikeQuery<Key>& query, int allowed) {
    switch (allowed) {
    case 0:
        return findLookAlike<Key, 0>(query, text);
    case 1:
        return findLookAlike<Key, 1>(query, text);
    default:
        return findLookAlike<Key, 2>(query, text);
    }
}

} // namespace

LookAlikeText::LookAlikeText(const LookAlikeKeys& keys, LookAlikeAlphabet& alphabet)
    : m_storage(storageOf(keys, alphabet)) {}

LookAlikeText::~LookAlikeText() {
    std::visit([](auto& keys) { wipe(keys.data(), keys.size() * sizeof keys[0]); }, m_storage);
}

void LookAlikeText::prefetch() const {
    constexpr std::size_t line = 64;
    constexpr std::size_t lines = 8; // from there on the processor sees what is coming
    std::visit(
        [](const auto& keys) {
            const auto* const bytes = reinterpret_cast<const char*>(keys.data());
            const std::size_t end = std::min(keys.size() * sizeof keys[0], lines * line);
            for (std::size_t at = 0; at < end; at += line)
                __builtin_prefetch(bytes + at);
        },
        m_storage);
}

LookAlikeMatcher::LookAlikeMatcher(std::span<const std::uint32_t> query, const LookAlikeAlphabet& alphabet)
    : m_allowed(allowedMismatches(query.size()))
    , m_bytes(bytesOf(query, alphabet), raritiesOf(query))
    , m_units(unitsOf(query), raritiesOf(query))
    , m_scalars(query, raritiesOf(query)) {}

std::optional<std::size_t> LookAlikeMatcher::find(const LookAlikeText& text) const {
    if (const auto* bytes = std::get_if<std::vector<std::uint8_t>>(&text.storage()))
        return findIn(std::span(*bytes), m_bytes, m_allowed);
    if (const auto* units = std::get_if<std::vector<std::uint16_t>>(&text.storage()))
        return findIn(std::span(*units), m_units, m_allowed);
    return find(std::span(std::get<std::vector<std::uint32_t>>(text.storage())));
}

std::optional<std::size_t> LookAlikeMatcher::find(std::span<const std::uint32_t> text) const {
    return findIn(text, m_scalars, m_allowed);
}

} // namespace vellumry
