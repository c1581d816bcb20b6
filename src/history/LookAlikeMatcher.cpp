// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/LookAlikeMatcher.h"

#include "foundation/SecureBytes.h"
#include "history/ByteSearch.h"

#include <algorithm>
#include <limits>

namespace vellumry {

namespace {

/// No text of this width holds this key, so it stands in a query for all keys that are too great for the width.
template <typename Key>
constexpr Key outside = std::numeric_limits<Key>::max();

template <typename Key>
std::vector<Key> narrowed(std::span<const std::uint32_t> keys) {
    std::vector<Key> result;
    result.reserve(keys.size());
    for (const std::uint32_t key : keys)
        result.push_back(key < outside<Key> ? static_cast<Key>(key) : outside<Key>);
    return result;
}

template <typename Key>
LookAlikeQuery<Key> queryOf(std::span<const std::uint32_t> keys) {
    const std::vector<Key> query = narrowed<Key>(keys);
    return LookAlikeQuery<Key>(std::span<const Key>(query), [](Key key) {
        return key < 0x80 ? 255 - frequencyOfByte(static_cast<unsigned char>(key)) : 155;
    });
}

LookAlikeText::Storage storageOf(const LookAlikeKeys& keys) {
    const std::uint32_t greatest = keys.empty() ? 0 : *std::max_element(keys.begin(), keys.end());
    if (greatest < outside<std::uint8_t>)
        return narrowed<std::uint8_t>(keys);
    if (greatest < outside<std::uint16_t>)
        return narrowed<std::uint16_t>(keys);
    return keys;
}

} // namespace

LookAlikeText::LookAlikeText(const LookAlikeKeys& keys) : m_storage(storageOf(keys)) {}

LookAlikeText::~LookAlikeText() {
    std::visit([](auto& keys) { wipe(keys.data(), keys.size() * sizeof keys[0]); }, m_storage);
}

LookAlikeMatcher::LookAlikeMatcher(std::span<const std::uint32_t> query)
    : m_allowed(allowedMismatches(query.size())), m_narrow(queryOf<std::uint8_t>(query)),
      m_medium(queryOf<std::uint16_t>(query)), m_wide(queryOf<std::uint32_t>(query)) {}

template <typename Key>
std::optional<std::size_t> LookAlikeMatcher::findIn(std::span<const Key> text) const {
    const auto& query = [this]() -> const auto& {
        if constexpr (sizeof(Key) == 1)
            return m_narrow;
        else if constexpr (sizeof(Key) == 2)
            return m_medium;
        else
            return m_wide;
    }();
    switch (m_allowed) {
    case 0:
        return findLookAlike<Key, 0>(query, text);
    case 1:
        return findLookAlike<Key, 1>(query, text);
    default:
        return findLookAlike<Key, 2>(query, text);
    }
}

std::optional<std::size_t> LookAlikeMatcher::find(const LookAlikeText& text) const {
    return std::visit([this](const auto& keys) { return findIn(std::span(keys)); }, text.storage());
}

std::optional<std::size_t> LookAlikeMatcher::find(std::span<const std::uint32_t> text) const { return findIn(text); }

} // namespace vellumry
