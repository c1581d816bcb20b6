// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/Fingerprint.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <algorithm>
#include <array>

namespace vellumry {

namespace {

/// The value of a lower-case hexadecimal digit, -1 for every other byte.
constexpr int valueOf(char digit) {
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    return digit >= 'a' && digit <= 'f' ? digit - 'a' + 10 : -1;
}

/// `valueOf` every byte: a start asks for that of each clip.
constexpr std::array<qint8, 256> values = [] {
    std::array<qint8, 256> result{};
    for (int byte = 0; byte < 256; ++byte)
        result[static_cast<std::size_t>(byte)] = static_cast<qint8>(valueOf(static_cast<char>(byte)));
    return result;
}();

} // namespace

Fingerprint Fingerprint::ofText(QByteArrayView text) {
    Fingerprint fingerprint;
    const qsizetype size = std::ssize(fingerprint.m_bytes);
    int all = text.size() == 2 * size ? 0 : -1;
    for (qsizetype i = 0; i < size && all >= 0; ++i) {
        const int high = values[static_cast<unsigned char>(text[2 * i])];
        const int low = values[static_cast<unsigned char>(text[2 * i + 1])];
        all |= high | low;
        fingerprint.m_bytes[static_cast<std::size_t>(i)] = static_cast<char>(high << 4 | low);
    }
    return all >= 0 ? fingerprint : ofCode(QCryptographicHash::hash(text.toByteArray(), QCryptographicHash::Sha256));
}

Fingerprint Fingerprint::ofCode(QByteArrayView code) {
    Fingerprint fingerprint;
    const auto size = std::min(code.size(), static_cast<qsizetype>(fingerprint.m_bytes.size()));
    std::copy_n(code.begin(), size, fingerprint.m_bytes.begin());
    return fingerprint;
}

QString Fingerprint::toString() const {
    return QString::fromLatin1(QByteArray::fromRawData(m_bytes.data(), std::ssize(m_bytes)).toHex());
}

} // namespace vellumry
