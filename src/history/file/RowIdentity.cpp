// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/RowIdentity.h"

#include "foundation/HexDigits.h"

#include <algorithm>
#include <array>

namespace vellumry::rowidentity {

QString textOf(const QUuid& id) {
    return id.toString(QUuid::WithoutBraces).toUpper();
}

std::optional<QUuid> uuidOf(QByteArrayView text) {
    constexpr std::array<qsizetype, 5> groups{8, 4, 4, 4, 12};
    std::array<char, 32> digits{};
    if (text.size() != 36)
        return std::nullopt;
    const char* in = text.data();
    char* out = digits.data();
    for (const qsizetype group : groups) {
        if (in != text.data() && *in++ != '-')
            return std::nullopt;
        out = std::copy_n(in, group, out);
        in += group;
    }
    for (char& digit : digits)
        digit = static_cast<char>(digit | (digit & 0x40) >> 1); // to lower case
    std::array<char, 16> bytes{};
    for (std::size_t at = 0; at < bytes.size(); at += 4) {
        if (!hexdigits::readEight(digits.data() + 2 * at, bytes.data() + at))
            return std::nullopt;
    }
    return QUuid::fromRfc4122(QByteArrayView(bytes.data(), bytes.size()));
}

} // namespace vellumry::rowidentity
