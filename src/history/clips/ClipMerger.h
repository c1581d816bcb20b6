// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"

#include <QHash>
#include <QUuid>
#include <variant>
#include <vector>

/// Makes one copy out of several. Pure; any thread.
namespace vellumry::ClipMerger {

enum class Failure { notEnoughClips, containsImages };

using Payloads = QHash<QUuid, ClipPayload>;

/// One draft of all `clips` in the order in which they were copied, whatever the order they are given in: files when
/// all are files, each path once; else plain text. It is sensitive when one of them is. A clip without an entry in
/// `payloads` gives what it knows itself. Images cannot be merged; fewer than two clips, or files without any path, are
/// not enough.
[[nodiscard]] std::variant<ClipDraft, Failure> merge(const std::vector<ClipRef>& clips, const Payloads& payloads);

} // namespace vellumry::ClipMerger
