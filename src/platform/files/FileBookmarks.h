// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace vellumry {

/// Remembers a file by its identity, so that it is found again after a move. May touch the disk; any thread.
class FileBookmarks {
public:
    virtual ~FileBookmarks() = default;
    /// Opaque bytes that identify the file at `path`; nothing when it cannot be examined.
    [[nodiscard]] virtual std::optional<QByteArray> make(const QString& path) const = 0;
    /// Where the file is now; nothing when it was not found. Never mounts, wakes or prompts.
    [[nodiscard]] virtual std::optional<QString> resolve(const QByteArray& bookmark) const = 0;
    /// True when `path` lies in a Trash folder.
    [[nodiscard]] virtual bool isInTrash(const QString& path) const = 0;
};

} // namespace vellumry
