// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/ClipCrypto.h"

#include "foundation/CryptoError.h"
#include "history/file/SealedBlob.h"
#include "history/file/Unsealer.h"

#include <array>
#include <limits>
#include <memory>
#include <openssl/core_names.h>
#include <openssl/evp.h>
#include <openssl/params.h>
#include <openssl/rand.h>

namespace vellumry {

namespace {

template <auto Free>
struct Freeing {
    template <typename T>
    void operator()(T* pointer) const {
        Free(pointer);
    }
};
using CipherContext = std::unique_ptr<EVP_CIPHER_CTX, Freeing<EVP_CIPHER_CTX_free>>;
using Mac = std::unique_ptr<EVP_MAC, Freeing<EVP_MAC_free>>;
using MacContext = std::unique_ptr<EVP_MAC_CTX, Freeing<EVP_MAC_CTX_free>>;

const unsigned char* unsignedBytes(QByteArrayView bytes) {
    return reinterpret_cast<const unsigned char*>(bytes.data());
}

void require(bool succeeded) {
    if (!succeeded)
        throw CryptoError::sealFailed();
}

/// Of `blob`, the bytes between the room for the nonce and that for the tag; the cipher reads and writes them in place.
void sealWithNonce(const SymmetricKey& key, QByteArrayView nonce, QByteArray& blob) {
    const qsizetype size = blob.size() - sealedblob::overhead;
    require(size >= 0 && blob.size() <= std::numeric_limits<int>::max());
    std::copy(nonce.begin(), nonce.end(), blob.data());
    auto* const bytes = reinterpret_cast<unsigned char*>(blob.data()) + sealedblob::nonceSize;

    const CipherContext context(EVP_CIPHER_CTX_new());
    require(context != nullptr);
    require(EVP_EncryptInit_ex(context.get(), EVP_aes_256_gcm(), nullptr, key.bytes().data(), unsignedBytes(nonce)) ==
            1);
    int written = 0;
    require(EVP_EncryptUpdate(context.get(), bytes, &written, bytes, static_cast<int>(size)) == 1);
    int rest = 0;
    require(EVP_EncryptFinal_ex(context.get(), bytes + written, &rest) == 1);
    require(written + rest == size);
    require(EVP_CIPHER_CTX_ctrl(context.get(), EVP_CTRL_GCM_GET_TAG, sealedblob::tagSize, bytes + size) == 1);
}

QByteArray withRoom(QByteArrayView bytes) {
    QByteArray blob(bytes.size() + sealedblob::overhead, Qt::Uninitialized);
    std::copy(bytes.begin(), bytes.end(), blob.data() + sealedblob::nonceSize);
    return blob;
}

} // namespace

QByteArray ClipCrypto::seal(QByteArrayView bytes) const {
    QByteArray blob = withRoom(bytes);
    sealInPlace(blob);
    return blob;
}

void ClipCrypto::sealInPlace(QByteArray& blob) const {
    std::array<char, sealedblob::nonceSize> nonce{};
    try {
        require(RAND_bytes(reinterpret_cast<unsigned char*>(nonce.data()), sealedblob::nonceSize) == 1);
        sealWithNonce(m_key, QByteArrayView(nonce.data(), sealedblob::nonceSize), blob);
    } catch (...) {
        wipe(blob.data(), static_cast<std::size_t>(blob.size()));
        throw;
    }
}

QByteArray ClipCrypto::unseal(QByteArrayView blob) const {
    if (blob.size() < sealedblob::overhead)
        throw UnsealError(UnsealError::Case::incorrectSize);
    Unsealer unsealer(m_key);
    const auto plain = unsealer.open(blob);
    if (!plain)
        throw UnsealError(UnsealError::Case::notAuthentic);
    return plain->toByteArray();
}

QByteArray ClipCrypto::authenticationCode(std::span<const QByteArrayView> parts) const {
    const Mac mac(EVP_MAC_fetch(nullptr, OSSL_MAC_NAME_HMAC, nullptr));
    require(mac != nullptr);
    const MacContext context(EVP_MAC_CTX_new(mac.get()));
    require(context != nullptr);
    std::array<char, 7> digest{"SHA256"};
    const std::array parameters{OSSL_PARAM_construct_utf8_string(OSSL_MAC_PARAM_DIGEST, digest.data(), 0),
                                OSSL_PARAM_construct_end()};
    require(EVP_MAC_init(context.get(), m_key.bytes().data(), m_key.bytes().size(), parameters.data()) == 1);
    for (const QByteArrayView part : parts)
        require(EVP_MAC_update(context.get(), unsignedBytes(part), static_cast<std::size_t>(part.size())) == 1);
    QByteArray code(32, Qt::Uninitialized);
    std::size_t size = 0;
    require(EVP_MAC_final(context.get(), reinterpret_cast<unsigned char*>(code.data()), &size, 32) == 1);
    require(size == 32);
    return code;
}

void ClipCrypto::selfTest() {
    const auto hex = [](const char* digits) { return QByteArray::fromHex(digits); };

    const ClipCrypto sealing{SymmetricKey(hex("feffe9928665731c6d6a8f9467308308feffe9928665731c6d6a8f9467308308"))};
    const QByteArray nonce = hex("cafebabefacedbaddecaf888");
    const QByteArray plain = hex("d9313225f88406e5a55909c5aff5269a86a7a9531534f7da2e4c303d8a318a72"
                                 "1c3c0c95956809532fcf0e2449a6b525b16aedf5aa0de657ba637b391aafd255");
    const QByteArray expected = nonce + hex("522dc1f099567d07f47f37a32a84427d643a8cdcbfe5c0c97598a2bd2555d1aa"
                                            "8cb08e48590dbb3da7b08b1056828838c5f61e6393ba7a0abcc9f662898015ad"
                                            "b094dac5d93471bdec1a502270e3cc6c");
    QByteArray sealed = withRoom(plain);
    sealWithNonce(sealing.m_key, nonce, sealed);
    require(sealed == expected);
    Unsealer unsealer(sealing.m_key);
    const auto opened = unsealer.open(expected);
    require(opened.has_value() && *opened == plain);
    QByteArray changed = expected;
    changed[sealedblob::nonceSize] = static_cast<char>(changed[sealedblob::nonceSize] ^ 1);
    require(!unsealer.open(changed).has_value());

    // HMAC pads a key to its block with zeros, so the vector's short key may be given with its first zeros already
    // there.
    const ClipCrypto keyed{SymmetricKey(QByteArray("Jefe").leftJustified(SymmetricKey::byteCount, '\0'))};
    const std::array<QByteArrayView, 2> parts{"what do ya want ", "for nothing?"};
    require(keyed.authenticationCode(parts) == hex("5bdcc146bf60754e6a042426089575c75a003f089d2739839dec58b964ec3843"));
}

} // namespace vellumry
