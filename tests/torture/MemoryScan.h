// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <cstddef>
#include <vector>

namespace vellumry {

/// Bytes to look for, kept in a form in which the search does not find them itself.
class HiddenNeedle {
public:
    explicit HiddenNeedle(QByteArrayView bytes);

    /// How often the bytes lie anywhere in this process's memory: heap, stacks of all threads, mapped files.
    /// Throws std::runtime_error when the memory cannot be read.
    [[nodiscard]] std::size_t countInMemory() const;
    [[nodiscard]] std::size_t countIn(QByteArrayView haystack) const;

private:
    static constexpr unsigned char mask = 0xA5;
    [[nodiscard]] std::size_t countIn(const unsigned char* bytes, std::size_t size) const;
    std::vector<unsigned char> m_masked;
};

} // namespace vellumry
