// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace vellumry {

/// Some of the numbers below a bound, one bit for each. A value.
class BitSet {
public:
    /// Empty.
    explicit BitSet(std::size_t bound)
        : m_words((bound + wordSize - 1) / wordSize) {}

    /// `number` must be below the bound, here and in `contains`.
    void set(std::size_t number) { m_words[number / wordSize] |= std::uint64_t{1} << number % wordSize; }
    [[nodiscard]] bool contains(std::size_t number) const {
        return (m_words[number / wordSize] >> number % wordSize & 1U) != 0;
    }
    /// All that are set, ascending.
    [[nodiscard]] std::vector<std::size_t> positions() const {
        std::size_t count = 0;
        for (const std::uint64_t word : m_words)
            count += static_cast<std::size_t>(std::popcount(word));
        std::vector<std::size_t> result;
        result.reserve(count);
        for (std::size_t index = 0; index < m_words.size(); ++index)
            for (std::uint64_t word = m_words[index]; word != 0; word &= word - 1)
                result.push_back(index * wordSize + static_cast<std::size_t>(std::countr_zero(word)));
        return result;
    }

private:
    static constexpr std::size_t wordSize = 64;

    std::vector<std::uint64_t> m_words;
};

} // namespace vellumry
