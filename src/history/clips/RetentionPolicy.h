// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <optional>

namespace vellumry {

/// How much the history keeps.
struct RetentionPolicy {
    std::optional<double> maxAge = std::nullopt; ///< seconds since the last use of an unpinned clip; absent: no limit
    qint64 maxCount = 5000;                      ///< most unpinned clips
    qint64 maxMediaBytes = qint64{1024} << 20;   ///< most bytes of image and file clips, pinned ones counted

    bool operator==(const RetentionPolicy&) const = default;
};

} // namespace vellumry
