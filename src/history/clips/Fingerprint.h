// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>
#include <array>
#include <compare>

namespace vellumry {

/// A clip's fingerprint, which the file has as 64 lower-case hexadecimal characters, in 32 bytes. A value; any thread.
class Fingerprint {
public:
    /// All zeros.
    Fingerprint() = default;
    /// From the file's form. Any other text, which this program never wrote, gets a fingerprint of its own that no copy
    /// has.
    [[nodiscard]] static Fingerprint ofText(QByteArrayView text);
    /// From the 32 bytes of an authentication code.
    [[nodiscard]] static Fingerprint ofCode(QByteArrayView code);

    [[nodiscard]] QString toString() const;

    bool operator==(const Fingerprint&) const = default;

private:
    std::array<char, 32> m_bytes{};
};

} // namespace vellumry
