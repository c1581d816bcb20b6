// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <stdexcept>

namespace vellumry {

/// The library that encrypts failed, or computes something else than it should.
class CryptoError : public std::runtime_error {
public:
    [[nodiscard]] static CryptoError sealFailed() { return CryptoError("Encryption failed."); }
    [[nodiscard]] QString errorDescription() const { return QString::fromUtf8(what()); }

private:
    using std::runtime_error::runtime_error;
};

} // namespace vellumry
