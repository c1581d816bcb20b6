// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/SecureBytes.h"

#include <QByteArrayView>
#include <memory>
#include <optional>

struct evp_cipher_ctx_st;

namespace vellumry {

/// Opens many blobs sealed with one key: the key is expanded once and the plain text lies in one buffer that is wiped
/// when it grows and when the unsealer goes. One thread at a time.
class Unsealer {
public:
    /// Throws `CryptoError::sealFailed` when the cipher cannot be set up.
    explicit Unsealer(const SymmetricKey& key);
    ~Unsealer();
    Unsealer(const Unsealer&) = delete;
    Unsealer& operator=(const Unsealer&) = delete;

    /// The plain bytes, valid until the next call; nothing for a blob that is too short, changed, or sealed with
    /// another key.
    [[nodiscard]] std::optional<QByteArrayView> open(QByteArrayView blob);

private:
    /// Room for `size` bytes.
    char* buffer(qsizetype size);
    struct ContextDeleter {
        void operator()(evp_cipher_ctx_st* context) const;
    };
    std::unique_ptr<evp_cipher_ctx_st, ContextDeleter> m_context;
    std::unique_ptr<char[]> m_buffer;
    qsizetype m_capacity = 0;
};

} // namespace vellumry
