// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/Utf16Bytes.h"

#include <QtEndian>

namespace vellumry::utf16bytes {

namespace {

/// How many bytes of UTF-8 the units take; nothing when a surrogate stands alone.
std::optional<qsizetype> utf8Size(QByteArrayView bigEndian) {
    qsizetype size = 0;
    for (qsizetype i = 0; i < bigEndian.size(); i += 2) {
        const auto unit = qFromBigEndian<quint16>(bigEndian.data() + i);
        if (QChar::isHighSurrogate(unit)) {
            i += 2;
            if (i >= bigEndian.size() || !QChar::isLowSurrogate(qFromBigEndian<quint16>(bigEndian.data() + i)))
                return std::nullopt;
            size += 4;
        } else if (QChar::isLowSurrogate(unit)) {
            return std::nullopt;
        } else {
            size += unit < 0x80 ? 1 : unit < 0x800 ? 2 : 3;
        }
    }
    return size;
}

} // namespace

QString toString(QByteArrayView bigEndian) {
    QString string(bigEndian.size() / 2, Qt::Uninitialized);
    qFromBigEndian<char16_t>(bigEndian.data(), string.size(), string.data());
    return string;
}

std::optional<QByteArray> toUtf8(QByteArrayView bigEndian) {
    const auto size = utf8Size(bigEndian);
    if (!size)
        return std::nullopt;
    QByteArray result(*size, Qt::Uninitialized);
    char* out = result.data();
    const auto tail = [&out](char32_t scalar, int shift) { *out++ = static_cast<char>(0x80 | (scalar >> shift & 0x3F)); };
    for (qsizetype i = 0; i < bigEndian.size(); i += 2) {
        char32_t scalar = qFromBigEndian<quint16>(bigEndian.data() + i);
        if (scalar < 0x80) {
            *out++ = static_cast<char>(scalar);
        } else if (scalar < 0x800) {
            *out++ = static_cast<char>(0xC0 | scalar >> 6);
            tail(scalar, 0);
        } else if (!QChar::isSurrogate(scalar)) {
            *out++ = static_cast<char>(0xE0 | scalar >> 12);
            tail(scalar, 6);
            tail(scalar, 0);
        } else {
            i += 2;
            scalar = QChar::surrogateToUcs4(static_cast<char16_t>(scalar), qFromBigEndian<quint16>(bigEndian.data() + i));
            *out++ = static_cast<char>(0xF0 | scalar >> 18);
            tail(scalar, 12);
            tail(scalar, 6);
            tail(scalar, 0);
        }
    }
    return result;
}

} // namespace vellumry::utf16bytes
