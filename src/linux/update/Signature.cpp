// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/update/Signature.h"

#include <QFile>
#include <memory>
#include <openssl/evp.h>

namespace vellumry::signature {

namespace {

constexpr qsizetype signatureBytes = 64;
constexpr qsizetype keyBytes = 32;

const unsigned char* bytesOf(QByteArrayView view) {
    return reinterpret_cast<const unsigned char*>(view.data());
}

} // namespace

bool isOf(QByteArrayView bytes, QByteArrayView signed64, QByteArrayView publicKey) {
    if (signed64.size() != signatureBytes || publicKey.size() != keyBytes)
        return false;
    const std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> key(
        EVP_PKEY_new_raw_public_key(EVP_PKEY_ED25519, nullptr, bytesOf(publicKey), std::size_t(keyBytes)),
        &EVP_PKEY_free);
    const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context(EVP_MD_CTX_new(), &EVP_MD_CTX_free);
    return key && context && EVP_DigestVerifyInit(context.get(), nullptr, nullptr, nullptr, key.get()) == 1 &&
           EVP_DigestVerify(context.get(), bytesOf(signed64), std::size_t(signed64.size()), bytesOf(bytes),
                            std::size_t(bytes.size())) == 1;
}

bool isOfFile(const QString& path, QByteArrayView signed64, QByteArrayView publicKey) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() == 0)
        return false;
    // Ed25519 takes the message twice, so it cannot be fed piece by piece.
    const uchar* mapped = file.map(0, file.size());
    return mapped && isOf(QByteArrayView(mapped, file.size()), signed64, publicKey);
}

} // namespace vellumry::signature
