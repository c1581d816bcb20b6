// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/search/LookAlike.h"

#include <cstdint>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

namespace vellumry {

/// Gives the keys that texts really have one byte each, so that most texts can be kept and compared in bytes. It grows
/// with the texts; a byte that was given stays with its key. One thread.
class LookAlikeAlphabet {
public:
    /// No key has this byte.
    static constexpr std::uint8_t outside = 0xFF;

    /// The bytes of a text, its new keys taken up; nothing when there are too many different keys for bytes.
    [[nodiscard]] std::optional<std::vector<std::uint8_t>> encode(std::span<const std::uint32_t> keys);
    /// `outside` for a key that no text has brought.
    [[nodiscard]] std::uint8_t find(std::uint32_t key) const;

private:
    [[nodiscard]] std::uint8_t add(std::uint32_t key);

    std::unordered_map<std::uint32_t, std::uint8_t> m_bytes;
};

} // namespace vellumry
