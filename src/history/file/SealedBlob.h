// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

/// The layout of a sealed blob, AES-256-GCM (NIST SP 800-38D): a random nonce, the ciphertext, the tag; no header, no
/// additional data. Sizes in bytes.
namespace vellumry::sealedblob {

constexpr qsizetype nonceSize = 12;
constexpr qsizetype tagSize = 16;
constexpr qsizetype overhead = nonceSize + tagSize;

} // namespace vellumry::sealedblob
