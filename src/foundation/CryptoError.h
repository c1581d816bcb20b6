// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <stdexcept>
#include <string>

namespace vellumry {

/// What can go wrong between the history and its key.
class CryptoError : public std::runtime_error {
public:
    enum class Case { keychain, sealFailed, invalidKeyData };

    [[nodiscard]] static CryptoError keychain(qint32 status) {
        return {Case::keychain, status, "Keychain error " + std::to_string(status) + "."};
    }
    [[nodiscard]] static CryptoError sealFailed() { return {Case::sealFailed, 0, "Encryption failed."}; }
    [[nodiscard]] static CryptoError invalidKeyData() {
        return {Case::invalidKeyData, 0, "The stored encryption key is damaged."};
    }

    [[nodiscard]] Case kind() const { return m_case; }
    /// The key store's own code; 0 for the other cases.
    [[nodiscard]] qint32 status() const { return m_status; }
    [[nodiscard]] QString errorDescription() const { return QString::fromUtf8(what()); }

private:
    CryptoError(Case kind, qint32 status, const std::string& text)
        : std::runtime_error(text)
        , m_case(kind)
        , m_status(status) {}
    Case m_case;
    qint32 m_status;
};

} // namespace vellumry
