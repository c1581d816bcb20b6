// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/SecureBytes.h"

#include <QByteArray>
#include <QByteArrayView>
#include <span>
#include <stdexcept>

namespace vellumry {

/// A sealed blob that could not be opened.
class UnsealError : public std::runtime_error {
public:
    enum class Case {
        incorrectSize, ///< shorter than any blob that was ever sealed; not tried
        notAuthentic,  ///< another key, or a changed byte
    };
    explicit UnsealError(Case kind)
        : std::runtime_error(kind == Case::incorrectSize ? "The sealed data is too short."
                                                         : "The sealed data could not be opened.")
        , m_case(kind) {}
    [[nodiscard]] Case kind() const { return m_case; }

private:
    Case m_case;
};

/// Seals everything that could show what was copied, and keys the fingerprints, all with the one history key.
///
/// A sealed blob is laid out as in SealedBlob.h. A value; any thread.
class ClipCrypto {
public:
    explicit ClipCrypto(SymmetricKey key)
        : m_key(std::move(key)) {}
    /// With a fresh random key.
    [[nodiscard]] static ClipCrypto withRandomKey() { return ClipCrypto(SymmetricKey::random()); }

    /// Throws `CryptoError::sealFailed`. The nonce is fresh, so two seals of the same bytes differ.
    [[nodiscard]] QByteArray seal(QByteArrayView bytes) const;
    /// Seals bytes where they lie, between the room for the nonce and the room for the tag: `blob` becomes what `seal`
    /// makes. Throws `CryptoError::sealFailed`, the bytes wiped.
    void sealInPlace(QByteArray& blob) const;
    /// Throws `UnsealError`.
    [[nodiscard]] QByteArray unseal(QByteArrayView blob) const;
    /// HMAC-SHA256 (RFC 2104) of the concatenated parts, 32 bytes. Throws `CryptoError::sealFailed`.
    [[nodiscard]] QByteArray authenticationCode(std::span<const QByteArrayView> parts) const;

    [[nodiscard]] const SymmetricKey& key() const { return m_key; }

    /// Checks sealing, opening, the refusal of a changed blob, and the authentication code against published vectors
    /// (NIST's GCM test case 15, RFC 4231 test case 2). Throws `CryptoError::sealFailed` when the library under us
    /// computes anything else. Run it before a key is first used.
    static void selfTest();

private:
    SymmetricKey m_key;
};

} // namespace vellumry
