// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <memory>
#include <openssl/evp.h>
#include <stdexcept>

namespace vellumry {

/// A publisher's key, made for one test.
class SigningKey {
public:
    SigningKey()
        : m_key(EVP_PKEY_Q_keygen(nullptr, nullptr, "ED25519"), &EVP_PKEY_free) {
        std::size_t length = 32;
        publicKey.resize(qsizetype(length));
        if (EVP_PKEY_get_raw_public_key(m_key.get(), reinterpret_cast<unsigned char*>(publicKey.data()), &length) != 1)
            throw std::runtime_error("no key");
    }

    [[nodiscard]] QByteArray sign(const QByteArray& bytes) const {
        const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context(EVP_MD_CTX_new(), &EVP_MD_CTX_free);
        QByteArray signature(64, '\0');
        std::size_t length = 64;
        if (EVP_DigestSignInit(context.get(), nullptr, nullptr, nullptr, m_key.get()) != 1 ||
            EVP_DigestSign(context.get(), reinterpret_cast<unsigned char*>(signature.data()), &length,
                           reinterpret_cast<const unsigned char*>(bytes.constData()), std::size_t(bytes.size())) != 1)
            throw std::runtime_error("not signed");
        return signature;
    }
    /// A feed with its signature as the last line.
    [[nodiscard]] QByteArray signedFeed(const QByteArray& content) const {
        return content + "<!-- signature: " + sign(content).toBase64() + " -->\n";
    }

    QByteArray publicKey;

private:
    std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> m_key;
};

} // namespace vellumry
