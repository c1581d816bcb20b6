// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/Unsealer.h"

#include "foundation/CryptoError.h"
#include "history/file/SealedBlob.h"

#include <algorithm>
#include <limits>
#include <openssl/evp.h>

namespace vellumry {

namespace {

const unsigned char* unsignedBytes(QByteArrayView bytes) {
    return reinterpret_cast<const unsigned char*>(bytes.data());
}

} // namespace

void Unsealer::ContextDeleter::operator()(evp_cipher_ctx_st* context) const {
    EVP_CIPHER_CTX_free(context);
}

Unsealer::Unsealer(const SymmetricKey& key)
    : m_context(EVP_CIPHER_CTX_new()) {
    if (!m_context || EVP_DecryptInit_ex(m_context.get(), EVP_aes_256_gcm(), nullptr, key.bytes().data(), nullptr) != 1)
        throw CryptoError::sealFailed();
}

Unsealer::~Unsealer() {
    if (m_buffer)
        wipe(m_buffer.get(), static_cast<std::size_t>(m_capacity));
}

char* Unsealer::buffer(qsizetype size) {
    if (size > m_capacity) {
        const qsizetype capacity = std::max({size, m_capacity * 2, qsizetype{4096}});
        auto larger = std::make_unique<char[]>(static_cast<std::size_t>(capacity));
        if (m_buffer)
            wipe(m_buffer.get(), static_cast<std::size_t>(m_capacity));
        m_buffer = std::move(larger);
        m_capacity = capacity;
    }
    return m_buffer.get();
}

std::optional<QByteArrayView> Unsealer::open(QByteArrayView blob) {
    const qsizetype size = blob.size() - sealedblob::overhead;
    if (size < 0 || size > std::numeric_limits<int>::max())
        return std::nullopt;
    const QByteArrayView nonce = blob.first(sealedblob::nonceSize);
    const QByteArrayView ciphertext = blob.sliced(sealedblob::nonceSize, size);
    const QByteArrayView tag = blob.last(sealedblob::tagSize);

    char* const plain = buffer(std::max<qsizetype>(size, 1));
    auto* const out = reinterpret_cast<unsigned char*>(plain);
    int written = 0;
    int rest = 0;
    const bool isOpen =
        EVP_DecryptInit_ex(m_context.get(), nullptr, nullptr, nullptr, unsignedBytes(nonce)) == 1 &&
        EVP_DecryptUpdate(m_context.get(), out, &written, unsignedBytes(ciphertext), static_cast<int>(size)) == 1 &&
        // The interface takes the tag to compare with as writable memory; it only reads it.
        EVP_CIPHER_CTX_ctrl(m_context.get(), EVP_CTRL_GCM_SET_TAG, sealedblob::tagSize,
                            const_cast<char*>(tag.data())) == 1 &&
        EVP_DecryptFinal_ex(m_context.get(), out + written, &rest) == 1;
    if (!isOpen)
        return std::nullopt;
    return QByteArrayView(plain, size);
}

} // namespace vellumry
