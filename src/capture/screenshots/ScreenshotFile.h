// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Date.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

namespace vellumry {

/// What the disk says of a file that may be a screenshot. Blocking; any thread.
struct ScreenshotFile {
    enum class State {
        readable,   ///< the other fields are filled
        incomplete, ///< being written, or gone, or not readable now
        unsuitable, ///< no regular file, too large, or of no type that screenshots have
    };
    State state = State::unsuitable;
    QString type; ///< uniform type of the picture
    QByteArray bytes;
    std::optional<Date> createdAt;
    /// Its name or an extended attribute says that it is a screenshot.
    bool isMarked = false;
    /// False when no mark of a screenshot can be in its bytes.
    bool mayHoldMark = false;

    /// Largest file that is looked at.
    static constexpr qint64 mostBytes = qint64{100} << 20;

    /// Reads the file at `path`; a symbolic link is no file. Complete by its structure when readable.
    [[nodiscard]] static ScreenshotFile load(const QString& path);
    /// The names in a folder, in the order of the disk; nothing when it cannot be listed, empty when there is no such
    /// folder.
    [[nodiscard]] static std::optional<QStringList> namesIn(const QString& folder);
};

} // namespace vellumry
