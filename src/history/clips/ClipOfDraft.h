// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"

namespace vellumry {

/// The clip that a draft becomes. A copy of known content keeps the identity, the age and the pin of the clip it
/// replaces (`existing`, null for new content), and the text read from an unchanged picture. Its expiry is the draft's
/// verdict alone: `lifetime` seconds behind `now` when it is sensitive. Pure but for the identity of a new clip, which
/// is random.
[[nodiscard]] Clip clipOfDraft(const ClipDraft& draft, const ClipRef& existing, const Fingerprint& fingerprint,
                               Date now, double lifetime);

} // namespace vellumry
