// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"
#include "history/file/ClipCrypto.h"

namespace vellumry {

/// What decides which copies count as one clip: a code of what the copy says, not of how it was offered. The same words
/// plain and styled are one clip, as are a link and its text, a picture with whatever else it came with, and the same
/// files in another order. Keyed, so that it cannot be tested against guessed content. Pure; throws
/// `CryptoError::sealFailed` when the library under us fails.
[[nodiscard]] Fingerprint fingerprintOf(const ClipDraft& draft, const ClipCrypto& crypto);

} // namespace vellumry
