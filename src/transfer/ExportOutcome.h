// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace vellumry {

/// What an export has done so far.
struct ExportOutcome {
    enum class Result : quint8 { done, notEmpty, refused, noRoom, stopped };

    Result result = Result::done;
    int clips = 0;
    int secrets = 0;    ///< left out
    int unreadable = 0; ///< the history itself could not read them

    /// What is told of it at the end, in whole sentences; `folder` as the user knows it.
    [[nodiscard]] QString text(const QString& folder) const;

    bool operator==(const ExportOutcome&) const = default;
};

} // namespace vellumry
