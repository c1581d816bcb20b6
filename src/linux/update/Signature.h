// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>

namespace vellumry::signature {

/// True when `signed64` (64 bytes) is the Ed25519 signature (RFC 8032) of `bytes` by the holder of `publicKey` (32
/// bytes). Any thread.
[[nodiscard]] bool isOf(QByteArrayView bytes, QByteArrayView signed64, QByteArrayView publicKey);

/// The same for a whole file; false when it cannot be read or is empty. Reads all of it: any thread but the main one.
[[nodiscard]] bool isOfFile(const QString& path, QByteArrayView signed64, QByteArrayView publicKey);

} // namespace vellumry::signature
