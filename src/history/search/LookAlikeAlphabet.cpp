// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/search/LookAlikeAlphabet.h"

namespace vellumry {

namespace {

/// From here on there are the scripts of East Asia and the emoji: a few pages of them would use up all bytes.
constexpr std::uint32_t firstKeyOfLargeScripts = 0x2E80;

} // namespace

std::uint8_t LookAlikeAlphabet::find(std::uint32_t key) const {
    const auto known = m_bytes.find(key);
    return known == m_bytes.end() ? outside : known->second;
}

std::uint8_t LookAlikeAlphabet::add(std::uint32_t key) {
    const std::uint8_t known = find(key);
    if (known != outside || key >= firstKeyOfLargeScripts || m_bytes.size() == outside)
        return known;
    return m_bytes.emplace(key, static_cast<std::uint8_t>(m_bytes.size())).first->second;
}

std::optional<std::vector<std::uint8_t>> LookAlikeAlphabet::encode(std::span<const std::uint32_t> keys) {
    std::vector<std::uint8_t> bytes;
    bytes.reserve(keys.size());
    for (const std::uint32_t key : keys) {
        bytes.push_back(add(key));
        if (bytes.back() == outside)
            return std::nullopt;
    }
    return bytes;
}

} // namespace vellumry
