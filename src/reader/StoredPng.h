// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace vellumry {

/// A PNG that was inflated at one go, given out as the same PNG with its rows stored as they are: the PNG library then
/// has nothing left to inflate. It would do so row by row with zlib, which takes three times as long. Costs the memory
/// of all its rows, so very large pictures are left to the library. One thread.
class StoredPng {
public:
    /// Nothing for what is no PNG, interlaced, damaged or has more than 128 MiB of rows: then the library is to read
    /// the file itself, and to judge it. `file` must outlive the result.
    [[nodiscard]] static std::optional<StoredPng> of(QByteArrayView file);

    /// Copies the next `count` bytes of the PNG; false when there are not so many.
    [[nodiscard]] bool read(unsigned char* to, std::size_t count);

private:
    static constexpr std::size_t frameBytes = 5;

    StoredPng(QByteArrayView head, std::size_t rowBytes);
    void frame(std::size_t rowBytes);
    void add(const void* bytes, std::size_t count);

    std::unique_ptr<unsigned char, void (*)(void*)> m_rows;
    std::vector<std::array<unsigned char, frameBytes>> m_frames; ///< before each block of rows
    std::vector<unsigned char> m_ends;    ///< the beginning and the end of the only IDAT and the stream in it
    std::vector<QByteArrayView> m_pieces; ///< of the file and of the above, none of which moves with this
    std::size_t m_piece = 0;
    std::size_t m_position = 0; ///< in that piece
};

} // namespace vellumry
