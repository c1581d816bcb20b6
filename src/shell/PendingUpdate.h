// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace vellumry {

/// A newer version of the program, and how near it is.
struct PendingUpdate {
    enum class State : quint8 {
        available, ///< known to exist
        ready      ///< here and verified; the next start is its own
    };
    QString version;
    State state = State::available;

    bool operator==(const PendingUpdate&) const = default;
};

} // namespace vellumry
