// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/StoredPng.h"

#include <QtEndian>
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <libdeflate.h>
#include <png.h>
#include <sys/mman.h>

namespace vellumry {

namespace {

constexpr quint64 mostRowBytes = quint64{128} * 1024 * 1024;
constexpr qsizetype chunkFrame = 12; ///< length, name and checksum
constexpr qsizetype chunkHead = 8;
constexpr std::size_t largestBlock = 65535;

struct Header {
    quint64 rowBytes = 0; ///< the byte that names the filter included
    quint64 rows = 0;
};

std::optional<Header> headerOf(QByteArrayView file) {
    constexpr qsizetype headerBytes = 33; // signature and IHDR
    if (!file.startsWith(QByteArrayView("\x89PNG\r\n\x1a\n", 8)) || file.size() < headerBytes || file[28] != 0)
        return std::nullopt;
    constexpr std::array<quint64, 7> channelsOfType{1, 0, 3, 1, 2, 0, 4};
    const auto type = static_cast<quint8>(file[25]);
    const quint64 channels = type < channelsOfType.size() ? channelsOfType[type] : 0;
    const quint64 bits = channels * static_cast<quint8>(file[24]) * qFromBigEndian<quint32>(file.data() + 16);
    const Header header{(bits + 7) / 8 + 1, qFromBigEndian<quint32>(file.data() + 20)};
    if (bits == 0 || header.rows == 0 || header.rows > mostRowBytes / header.rowBytes)
        return std::nullopt;
    return header;
}

struct Stream {
    qsizetype begin = 0; ///< of the first IDAT
    std::vector<unsigned char> bytes;
};

/// The contents of all IDATs.
Stream streamOf(QByteArrayView file) {
    Stream stream;
    for (qsizetype place = 8; file.size() - place >= chunkFrame;) {
        const qsizetype length = qFromBigEndian<quint32>(file.data() + place);
        if (length > file.size() - place - chunkFrame)
            break;
        if (file.sliced(place + 4, 4) == QByteArrayView("IDAT", 4)) {
            if (stream.begin == 0) {
                stream.begin = place;
                stream.bytes.reserve(static_cast<std::size_t>(file.size() - place));
            }
            const QByteArrayView content = file.sliced(place + chunkHead, length);
            stream.bytes.insert(stream.bytes.end(), content.begin(), content.end());
        } else if (stream.begin != 0) {
            break;
        }
        place += chunkFrame + length;
    }
    return stream;
}

/// False for a stream that is not whole or does not fill the rows.
bool inflate(const std::vector<unsigned char>& stream, unsigned char* rows, std::size_t size) {
    constexpr std::size_t zlibHeader = 2;
    constexpr unsigned char isDeflate = 8;
    constexpr unsigned char hasDictionary = 0x20;
    if (stream.size() <= zlibHeader || (stream[0] & 0x0f) != isDeflate || (stream[1] & hasDictionary) != 0)
        return false;
    const std::unique_ptr<libdeflate_decompressor, void (*)(libdeflate_decompressor*)> decompressor(
        libdeflate_alloc_decompressor(), &libdeflate_free_decompressor);
    return decompressor != nullptr &&
           libdeflate_deflate_decompress(decompressor.get(), stream.data() + zlibHeader, stream.size() - zlibHeader,
                                         rows, size, nullptr) == LIBDEFLATE_SUCCESS;
}

/// Room that is not filled with zeros beforehand; null when there is none. In pages of two megabytes, where the system
/// has such: to get a page of 4 KiB takes as long as to inflate what it holds.
unsigned char* roomFor(std::size_t size) {
    constexpr std::size_t largePage = std::size_t{2} * 1024 * 1024;
    if (size < largePage)
        return static_cast<unsigned char*>(std::malloc(size));
    const std::size_t whole = (size + largePage - 1) / largePage * largePage;
    void* const room = std::aligned_alloc(largePage, whole);
    if (room)
        (void)madvise(room, whole, MADV_HUGEPAGE); // refused, the pages are small
    return static_cast<unsigned char*>(room);
}

/// The checksum of the stream, where the library cannot be told to leave it alone.
quint32 checksumOf([[maybe_unused]] const unsigned char* rows, [[maybe_unused]] std::size_t size) {
#ifdef PNG_IGNORE_ADLER32
    return 0;
#else
    return libdeflate_adler32(1, rows, size);
#endif
}

} // namespace

std::optional<StoredPng> StoredPng::of(QByteArrayView file) {
    const std::optional<Header> header = headerOf(file);
    if (!header)
        return std::nullopt;
    const Stream stream = streamOf(file);
    if (stream.begin == 0)
        return std::nullopt;
    const std::size_t size = header->rowBytes * header->rows;
    StoredPng png(file.first(stream.begin), size);
    if (!png.m_rows || !inflate(stream.bytes, png.m_rows.get(), size))
        return std::nullopt;
    png.frame(size);
    return png;
}

StoredPng::StoredPng(QByteArrayView head, std::size_t rowBytes)
    : m_rows(roomFor(rowBytes), &std::free)
    , m_pieces{head} {}

/// Blocks that are stored have no more than their length before them.
void StoredPng::frame(std::size_t rowBytes) {
    const std::size_t blocks = (rowBytes + largestBlock - 1) / largestBlock;
    constexpr std::size_t beginBytes = 10;
    constexpr std::size_t endBytes = 20;
    // Before anything points into them.
    m_frames.resize(blocks);
    m_ends.resize(beginBytes + endBytes);
    unsigned char* const begin = m_ends.data();
    qToBigEndian(static_cast<quint32>(2 + rowBytes + blocks * frameBytes + 4), begin);
    std::memcpy(begin + 4, "IDAT\x78\x01", 6);
    unsigned char* const end = begin + beginBytes;
    qToBigEndian(checksumOf(m_rows.get(), rowBytes), end);
    // The checksums of chunks are not looked at.
    std::memcpy(end + 8, "\0\0\0\0IEND\xae\x42\x60\x82", 12);
    add(begin, beginBytes);
    for (std::size_t block = 0; block < blocks; ++block) {
        const std::size_t offset = block * largestBlock;
        const auto length = static_cast<quint16>(std::min(largestBlock, rowBytes - offset));
        m_frames[block][0] = block + 1 == blocks ? 1 : 0;
        qToLittleEndian(length, m_frames[block].data() + 1);
        qToLittleEndian(static_cast<quint16>(~length), m_frames[block].data() + 3);
        add(m_frames[block].data(), frameBytes);
        add(m_rows.get() + offset, length);
    }
    add(end, endBytes);
}

void StoredPng::add(const void* bytes, std::size_t count) {
    m_pieces.emplace_back(static_cast<const char*>(bytes), static_cast<qsizetype>(count));
}

bool StoredPng::read(unsigned char* to, std::size_t count) {
    while (count > 0 && m_piece < m_pieces.size()) {
        const QByteArrayView piece = m_pieces[m_piece];
        const std::size_t taken = std::min(count, static_cast<std::size_t>(piece.size()) - m_position);
        std::memcpy(to, piece.data() + m_position, taken);
        to += taken;
        count -= taken;
        m_position += taken;
        if (m_position == static_cast<std::size_t>(piece.size())) {
            ++m_piece;
            m_position = 0;
        }
    }
    return count == 0;
}

} // namespace vellumry
