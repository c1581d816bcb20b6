// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/Fingerprint.h"

#include "foundation/HexDigits.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <algorithm>

namespace vellumry {

Fingerprint Fingerprint::ofText(QByteArrayView text) {
    Fingerprint fingerprint;
    const qsizetype size = std::ssize(fingerprint.m_bytes);
    bool areDigits = text.size() == 2 * size;
    for (qsizetype at = 0; at < size && areDigits; at += 4)
        areDigits = hexdigits::readEight(text.data() + 2 * at, fingerprint.m_bytes.data() + at);
    return areDigits ? fingerprint : ofCode(QCryptographicHash::hash(text.toByteArray(), QCryptographicHash::Sha256));
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
