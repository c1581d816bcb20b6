// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/RowIdentity.h"

#include <array>

namespace vellumry::rowidentity {

namespace {

/// The value of each hexadecimal digit, -1 for every other byte.
constexpr std::array<qint8, 256> hexValues = [] {
    std::array<qint8, 256> values{};
    values.fill(-1);
    for (int i = 0; i < 16; ++i) {
        values[static_cast<quint8>("0123456789abcdef"[i])] = static_cast<qint8>(i);
        values[static_cast<quint8>("0123456789ABCDEF"[i])] = static_cast<qint8>(i);
    }
    return values;
}();

} // namespace

QString textOf(const QUuid& id) {
    return id.toString(QUuid::WithoutBraces).toUpper();
}

std::optional<QUuid> uuidOf(QByteArrayView text) {
    if (text.size() != 36)
        return std::nullopt;
    std::array<char, 16> bytes{};
    std::size_t digits = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (i == 8 || i == 13 || i == 18 || i == 23) {
            if (text[i] != '-')
                return std::nullopt;
            continue;
        }
        const int value = hexValues[static_cast<quint8>(text[i])];
        if (value < 0)
            return std::nullopt;
        bytes[digits / 2] = static_cast<char>(bytes[digits / 2] << 4 | value);
        ++digits;
    }
    return QUuid::fromRfc4122(QByteArrayView(bytes.data(), bytes.size()));
}

} // namespace vellumry::rowidentity
