// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// Text as it lies in a binary property list: UTF-16, the greater byte first, an even number of bytes. Pure; any
/// thread.
namespace vellumry::utf16bytes {

[[nodiscard]] QString toString(QByteArrayView bigEndian);

/// The same text in UTF-8, in exactly as many bytes as it takes; nothing when a surrogate stands alone.
[[nodiscard]] std::optional<QByteArray> toUtf8(QByteArrayView bigEndian);

} // namespace vellumry::utf16bytes
