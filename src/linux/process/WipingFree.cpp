// SPDX-License-Identifier: GPL-3.0-or-later

// Overwrites every block of the heap when it is given back, for the whole program: Qt, SQLite, OpenSSL, the display
// connection and ourselves. Without it, what a deleted clip was made of would lie in free memory until chance
// overwrites it. The allocator stays glibc's own; only what it may hand to the next caller is cleared first. (glibc's
// M_PERTURB does not do this: it leaves out the blocks that go to the thread's own cache, which are all that are
// smaller than 1 KB.)
//
// A program gets this by linking the object library `vellumry_wiping_free`.

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <malloc.h>

extern "C" {

// Glibc's names for its own functions, for libraries that replace the public ones
void* __libc_realloc(void* memory, std::size_t size) noexcept;
void __libc_free(void* memory) noexcept;
}

namespace {

/// Whether the block has pages of its own, which go back to the kernel with it, or move as they are. The word before a
/// block is its size, whose second lowest bit says so.
bool hasOwnPages(const void* memory) {
    constexpr std::size_t isMapped = 2;
    std::size_t size = 0;
    std::memcpy(&size, static_cast<const char*>(memory) - sizeof size, sizeof size);
    return (size & isMapped) != 0;
}

/// What growing in place saves, the copy left behind would cost.
void* moveTo(std::size_t size, void* memory, std::size_t oldSize) {
    void* const larger = malloc(size);
    if (larger) {
        std::memcpy(larger, memory, oldSize);
        explicit_bzero(memory, oldSize);
        __libc_free(memory);
    }
    return larger;
}

} // namespace

extern "C" {

[[gnu::visibility("default")]] void free(void* memory) noexcept {
    if (!memory)
        return;
    const int error = errno;
    if (!hasOwnPages(memory))
        explicit_bzero(memory, malloc_usable_size(memory));
    __libc_free(memory);
    errno = error;
}

[[gnu::visibility("default")]] void* realloc(void* memory, std::size_t size) noexcept {
    if (!memory || hasOwnPages(memory))
        return __libc_realloc(memory, size);
    const std::size_t oldSize = malloc_usable_size(memory);
    if (size > oldSize)
        return moveTo(size, memory, oldSize);
    explicit_bzero(static_cast<char*>(memory) + size, oldSize - size);
    return __libc_realloc(memory, size);
}
}
