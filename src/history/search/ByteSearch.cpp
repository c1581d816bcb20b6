// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/search/ByteSearch.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>
#include <utility>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace vellumry {

namespace {

constexpr std::array<unsigned char, 256> byteFrequencies() {
    std::array<unsigned char, 256> steps{};
    constexpr std::string_view fromCommon = " etaoinsrhldcumfpgwybvkxjqz01.,2-3/945687:_\n\"'()=;";
    for (std::size_t index = 0; index < fromCommon.size(); ++index)
        steps[static_cast<unsigned char>(fromCommon[index])] = static_cast<unsigned char>(200 - 3 * index);
    for (std::size_t byte = 0x80; byte < 0xC0; ++byte)
        steps[byte] = 100;
    // What opens a Cyrillic letter, and the characters of East Asia, stands before each of them.
    for (std::size_t byte : {0xC3, 0xD0, 0xD1, 0xD8, 0xD9, 0xE3, 0xE4, 0xE5, 0xE6, 0xE7, 0xE8, 0xE9})
        steps[byte] = 190;
    return steps;
}

constexpr std::array<unsigned char, 256> frequencies = byteFrequencies();

} // namespace

unsigned char frequencyOfByte(unsigned char byte) {
    return frequencies[byte];
}

namespace {

char lowerAscii(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte | 0x20) : byte;
}

/// What makes a capital the small letter; nothing for a byte that has no capital.
char caseBitOf(char small) {
    return small >= 'a' && small <= 'z' ? 0x20 : 0;
}

std::size_t rarestPosition(const QByteArray& needle, std::size_t exceptAt) {
    std::size_t best = exceptAt == 0 ? 1 : 0;
    for (std::size_t at = best; at < static_cast<std::size_t>(needle.size()); ++at) {
        const auto rank = [&](std::size_t position) {
            return frequencyOfByte(static_cast<unsigned char>(needle[static_cast<qsizetype>(position)]));
        };
        if (at != exceptAt && rank(at) < rank(best))
            best = at;
    }
    return best;
}

} // namespace

ByteSearch::ByteSearch(QByteArray needle)
    : m_needle(std::move(needle)) {
    m_rare = rarestPosition(m_needle, static_cast<std::size_t>(m_needle.size()));
    m_second = m_needle.size() > 1 ? rarestPosition(m_needle, m_rare) : m_rare;
    m_isAscii = std::none_of(m_needle.begin(), m_needle.end(),
                             [](char byte) { return static_cast<unsigned char>(byte) >= 0x80; });
}

template <ByteSearch::Case letters>
bool ByteSearch::isAt(const char* place) const {
    if constexpr (letters == Case::asItIs)
        return std::memcmp(place, m_needle.constData(), static_cast<std::size_t>(m_needle.size())) == 0;
    return std::equal(m_needle.begin(), m_needle.end(), place,
                      [](char wanted, char byte) { return wanted == lowerAscii(byte); });
}

const char* ByteSearch::find(const char* begin, const char* end) const {
    const auto length = static_cast<std::size_t>(m_needle.size());
    if (static_cast<std::size_t>(end - begin) < length)
        return nullptr;
    if (length == 1)
        return static_cast<const char*>(std::memchr(begin, m_needle[0], static_cast<std::size_t>(end - begin)));
    if (const char* hit = findInBlocks<Case::asItIs>(begin, end))
        return hit;
    const std::string_view rest(begin, static_cast<std::size_t>(end - begin));
    const std::size_t at = rest.find(std::string_view(m_needle.constData(), length));
    return at == std::string_view::npos ? nullptr : begin + at;
}

const char* ByteSearch::findInAnyCase(const char* begin, const char* end) const {
    const auto length = static_cast<std::ptrdiff_t>(m_needle.size());
    if (!m_isAscii || end - begin < length)
        return nullptr;
    if (const char* hit = findInBlocks<Case::any>(begin, end))
        return hit;
    for (; end - begin >= length; ++begin) {
        if (isAt<Case::any>(begin))
            return begin;
    }
    return nullptr;
}

#ifdef __SSE2__

template <ByteSearch::Case letters>
const char* ByteSearch::findInBlocks(const char*& begin, const char* end) const {
    constexpr std::ptrdiff_t lane = 16;
    const auto length = static_cast<std::size_t>(m_needle.size());
    const char rareByte = m_needle[static_cast<qsizetype>(m_rare)];
    const char secondByte = m_needle[static_cast<qsizetype>(m_second)];
    const __m128i rare = _mm_set1_epi8(rareByte);
    const __m128i second = _mm_set1_epi8(secondByte);
    const __m128i rareCase = _mm_set1_epi8(caseBitOf(rareByte));
    const __m128i secondCase = _mm_set1_epi8(caseBitOf(secondByte));
    const auto candidates = [&](const char* at) {
        __m128i first = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at + m_rare));
        __m128i other = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at + m_second));
        if constexpr (letters == Case::any) {
            first = _mm_or_si128(first, rareCase);
            other = _mm_or_si128(other, secondCase);
        }
        return _mm_and_si128(_mm_cmpeq_epi8(first, rare), _mm_cmpeq_epi8(other, second));
    };
    const char* const lastStart = end - length;
    for (; lastStart - begin >= 2 * lane; begin += 2 * lane) {
        const __m128i low = candidates(begin);
        const __m128i high = candidates(begin + lane);
        if (_mm_movemask_epi8(_mm_or_si128(low, high)) == 0) [[likely]]
            continue;
        auto places = static_cast<unsigned>(_mm_movemask_epi8(low)) | static_cast<unsigned>(_mm_movemask_epi8(high))
                                                                          << lane;
        for (; places != 0; places &= places - 1) {
            const char* const place = begin + __builtin_ctz(places);
            if (isAt<letters>(place))
                return place;
        }
    }
    return nullptr;
}

#else

template <ByteSearch::Case letters>
const char* ByteSearch::findInBlocks(const char*& begin, const char* end) const {
    const auto length = static_cast<std::size_t>(m_needle.size());
    if constexpr (letters == Case::any)
        return nullptr; // the caller looks at each place
    const auto* const hit =
        static_cast<const char*>(memmem(begin, static_cast<std::size_t>(end - begin), m_needle.constData(), length));
    if (hit == nullptr)
        begin = end - (length - 1);
    return hit;
}

#endif

} // namespace vellumry
