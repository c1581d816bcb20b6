// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/Fingerprint.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <algorithm>

namespace vellumry {

namespace {

/// The value of a lower-case hexadecimal digit, -1 for every other byte.
constexpr int valueOf(char digit) {
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    return digit >= 'a' && digit <= 'f' ? digit - 'a' + 10 : -1;
}

} // namespace

Fingerprint Fingerprint::ofText(QByteArrayView text) {
    Fingerprint fingerprint;
    const qsizetype size = std::ssize(fingerprint.m_bytes);
    if (text.size() != 2 * size || std::ranges::any_of(text, [](char digit) { return valueOf(digit) < 0; }))
        return ofCode(QCryptographicHash::hash(text.toByteArray(), QCryptographicHash::Sha256));
    for (qsizetype i = 0; i < size; ++i) {
        const int byte = valueOf(text[2 * i]) << 4 | valueOf(text[2 * i + 1]);
        fingerprint.m_bytes[static_cast<std::size_t>(i)] = static_cast<char>(byte);
    }
    return fingerprint;
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
