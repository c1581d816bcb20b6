// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <expected>

namespace vellumry {

/// Why something of the system cannot be had: in English, for the log and for `vellumry --status`. Names nothing that
/// belongs to the user (see Logging.h).
struct Reason {
    QString text;
    bool operator==(const Reason&) const = default;
};

/// What a `create()` answers that may find the system without what it needs.
template <typename T>
using OrReason = std::expected<T, Reason>;

} // namespace vellumry
