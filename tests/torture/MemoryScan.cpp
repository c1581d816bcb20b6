// SPDX-License-Identifier: GPL-3.0-or-later
#include "torture/MemoryScan.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <stdexcept>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

namespace vellumry {

namespace {

constexpr std::size_t windowSize = std::size_t{1} << 20;
constexpr std::size_t guardSize = std::size_t{1} << 16;

/// A page-wise window onto memory that is not part of what is searched, and is empty afterwards. It lies between pages
/// that nobody may touch: the kernel would join it with its neighbours, and they would go unsearched with it.
class Window {
public:
    Window()
        : m_reserved(static_cast<unsigned char*>(
              mmap(nullptr, windowSize + 2 * guardSize, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)))
        , m_bytes(m_reserved + guardSize)
        , m_memory(open("/proc/self/mem", O_RDONLY | O_CLOEXEC)) {
        if (m_reserved == MAP_FAILED || mprotect(m_bytes, windowSize, PROT_READ | PROT_WRITE) != 0 || m_memory < 0)
            throw std::runtime_error("This process cannot look at its own memory.");
    }
    ~Window() {
        munmap(m_reserved, windowSize + 2 * guardSize);
        close(m_memory);
    }
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    [[nodiscard]] const unsigned char* bytes() const { return m_bytes; }
    [[nodiscard]] bool overlaps(std::uintptr_t first, std::uintptr_t last) const {
        const auto own = reinterpret_cast<std::uintptr_t>(m_bytes);
        return own < last && first < own + windowSize;
    }
    std::size_t readAt(std::uintptr_t address, std::size_t size) {
        const ssize_t got = pread(m_memory, m_bytes, std::min(size, windowSize), static_cast<off_t>(address));
        return got < 0 ? 0 : static_cast<std::size_t>(got);
    }

private:
    unsigned char* m_reserved;
    unsigned char* m_bytes;
    int m_memory;
};

struct Region {
    std::uintptr_t first;
    std::uintptr_t last;
};

std::vector<Region> readableRegions() {
    std::vector<Region> regions;
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        std::size_t dash = 0;
        const std::uintptr_t first = std::stoull(line, &dash, 16);
        std::size_t end = 0;
        const std::uintptr_t last = std::stoull(line.substr(dash + 1), &end, 16);
        if (line.at(dash + 1 + end + 1) == 'r' && line.find("[vvar") == std::string::npos)
            regions.push_back({first, last});
    }
    return regions;
}

} // namespace

HiddenNeedle::HiddenNeedle(QByteArrayView bytes) {
    for (const char byte : bytes)
        m_masked.push_back(static_cast<unsigned char>(byte) ^ mask);
}

std::size_t HiddenNeedle::countIn(const unsigned char* bytes, std::size_t size) const {
    std::size_t count = 0;
    if (m_masked.empty() || size < m_masked.size())
        return count;
    const unsigned char* const end = bytes + size - m_masked.size() + 1;
    for (const unsigned char* at = bytes; at < end; ++at) {
        at = static_cast<const unsigned char*>(
            std::memchr(at, m_masked.front() ^ mask, static_cast<std::size_t>(end - at)));
        if (!at)
            break;
        const auto isMasked = [](unsigned char masked, unsigned char byte) { return (masked ^ mask) == byte; };
        count += std::equal(m_masked.begin(), m_masked.end(), at, isMasked) ? 1 : 0;
    }
    return count;
}

std::size_t HiddenNeedle::countIn(QByteArrayView haystack) const {
    return countIn(reinterpret_cast<const unsigned char*>(haystack.data()), static_cast<std::size_t>(haystack.size()));
}

std::size_t HiddenNeedle::countInMemory() const {
    Window window;
    std::size_t count = 0;
    for (const Region& region : readableRegions()) {
        if (window.overlaps(region.first, region.last))
            continue;
        for (std::uintptr_t at = region.first; at < region.last;) {
            const std::size_t got = window.readAt(at, region.last - at);
            count += countIn(window.bytes(), got);
            if (got < windowSize)
                break;
            at += windowSize - m_masked.size() + 1;
        }
    }
    return count;
}

} // namespace vellumry
