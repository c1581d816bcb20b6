// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/SecureBytes.h"

#include <openssl/crypto.h>
#include <openssl/rand.h>

#include <cstring>
#include <new>
#include <stdexcept>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

namespace vellumry {

namespace {

/// Whole pages, so that locking and excluding them from dumps concerns this secret alone.
std::size_t pagesFor(std::size_t size) {
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    return (size + page - 1) / page * page;
}

unsigned char* allocate(std::size_t size) {
    if (size == 0)
        return nullptr;
    void* memory = mmap(nullptr, pagesFor(size), PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        throw std::bad_alloc();
    // Both are best effort: a small RLIMIT_MEMLOCK must not keep the program from working.
    (void)mlock(memory, pagesFor(size));
    (void)madvise(memory, pagesFor(size), MADV_DONTDUMP);
    return static_cast<unsigned char*>(memory);
}

} // namespace

void wipe(void* memory, std::size_t size) {
    OPENSSL_cleanse(memory, size);
}

SecureBytes::SecureBytes(std::size_t size)
    : m_data(allocate(size))
    , m_size(size) {}

SecureBytes::SecureBytes(QByteArrayView bytes)
    : SecureBytes(static_cast<std::size_t>(bytes.size())) {
    if (m_size > 0)
        std::memcpy(m_data, bytes.data(), m_size);
}

SecureBytes::SecureBytes(const SecureBytes& other)
    : SecureBytes(other.m_size) {
    if (m_size > 0)
        std::memcpy(m_data, other.m_data, m_size);
}

SecureBytes::SecureBytes(SecureBytes&& other) noexcept
    : m_data(std::exchange(other.m_data, nullptr))
    , m_size(std::exchange(other.m_size, 0)) {}

SecureBytes& SecureBytes::operator=(SecureBytes other) noexcept {
    std::swap(m_data, other.m_data);
    std::swap(m_size, other.m_size);
    return *this;
}

SecureBytes::~SecureBytes() {
    if (!m_data)
        return;
    wipe(m_data, m_size);
    munmap(m_data, pagesFor(m_size));
}

bool SecureBytes::operator==(const SecureBytes& other) const {
    return m_size == other.m_size && (m_size == 0 || CRYPTO_memcmp(m_data, other.m_data, m_size) == 0);
}

SymmetricKey SymmetricKey::random() {
    SecureBytes bytes(byteCount);
    if (RAND_priv_bytes(bytes.bytes().data(), static_cast<int>(byteCount)) != 1)
        throw std::runtime_error("the system gives no randomness");
    return SymmetricKey(std::move(bytes));
}

SymmetricKey::SymmetricKey(QByteArrayView bytes)
    : SymmetricKey(SecureBytes(bytes)) {}

SymmetricKey::SymmetricKey(SecureBytes bytes)
    : m_bytes(std::move(bytes)) {
    if (m_bytes.size() != byteCount)
        throw std::invalid_argument("a key has 32 bytes");
}

} // namespace vellumry
