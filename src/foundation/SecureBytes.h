// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <cstddef>
#include <span>

namespace vellumry {

/// Overwrites memory in a way the compiler may not leave out.
void wipe(void* memory, std::size_t size);

/// Bytes that are wiped when they go, kept out of swap and out of core dumps where the system allows. Copies are copies
/// of the secret and wiped likewise. Any thread, one owner.
class SecureBytes {
public:
    SecureBytes() = default;
    /// `size` bytes of zero.
    explicit SecureBytes(std::size_t size);
    explicit SecureBytes(QByteArrayView bytes);
    SecureBytes(const SecureBytes& other);
    SecureBytes(SecureBytes&& other) noexcept;
    SecureBytes& operator=(SecureBytes other) noexcept;
    ~SecureBytes();

    [[nodiscard]] std::span<const unsigned char> bytes() const { return {m_data, m_size}; }
    [[nodiscard]] std::span<unsigned char> bytes() { return {m_data, m_size}; }
    [[nodiscard]] std::size_t size() const { return m_size; }

    /// Compares in time that does not depend on the content.
    bool operator==(const SecureBytes& other) const;

private:
    unsigned char* m_data = nullptr;
    std::size_t m_size = 0;
};

/// A 256-bit key.
class SymmetricKey {
public:
    static constexpr std::size_t byteCount = 32;
    /// A fresh random key. Throws std::runtime_error when the system gives no randomness.
    [[nodiscard]] static SymmetricKey random();
    /// `bytes` must be exactly `byteCount` long.
    explicit SymmetricKey(QByteArrayView bytes);
    [[nodiscard]] std::span<const unsigned char> bytes() const { return m_bytes.bytes(); }
    bool operator==(const SymmetricKey&) const = default;

private:
    explicit SymmetricKey(SecureBytes bytes);
    SecureBytes m_bytes;
};

} // namespace vellumry
