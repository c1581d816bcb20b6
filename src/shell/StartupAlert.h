// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/file/HistoryFailure.h"

#include <QString>
#include <QStringList>
#include <optional>

namespace vellumry {

/// What the user is told about a start that did not go as usual.
struct StartupAlert {
    QString title;
    QString text;
    bool operator==(const StartupAlert&) const = default;
};

/// Why the history is kept in memory only, and what the user can do about it. `folder` is where its file lies.
[[nodiscard]] StartupAlert memoryOnlyAlert(HistoryFailure failure, const QString& folder);

/// A history could not be read and was put aside; of the paths of such `backups` the last is named. Nothing without
/// any.
[[nodiscard]] std::optional<StartupAlert> backupAlert(const QStringList& backups);

} // namespace vellumry
