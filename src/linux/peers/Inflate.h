// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <expected>

namespace vellumry {

enum class InflateFailure : quint8 { damaged, tooLarge };

/// What a whole zlib stream (RFC 1950) holds, unless that is more than `most` bytes: no number that the stream brings
/// along is believed, and no more than that is ever in memory. Any thread.
[[nodiscard]] std::expected<QByteArray, InflateFailure> inflated(QByteArrayView stream, qsizetype most);

} // namespace vellumry
