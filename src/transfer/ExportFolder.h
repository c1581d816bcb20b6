// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "transfer/ImportSource.h"

#include <QFile>
#include <QString>
#include <QStringList>
#include <expected>
#include <memory>

namespace vellumry {

/// A folder that clips are exported to, readable by its owner alone. The index is named last: a folder without one is
/// no export. Blocks; one thread at a time.
class ExportFolder {
public:
    enum class Failure : quint8 {
        notEmpty,
        refused, ///< read-only, not ours, or its place is not there
        noRoom,
    };

    /// Makes the folder, and nothing above it, or takes one that is empty.
    [[nodiscard]] static std::expected<std::unique_ptr<ExportFolder>, Failure> create(const QString& path);
    /// Takes away what was written, unless it was finished.
    ~ExportFolder();
    ExportFolder(const ExportFolder&) = delete;
    ExportFolder& operator=(const ExportFolder&) = delete;

    [[nodiscard]] std::expected<void, Failure> write(const ImportEntry& entry);
    /// All is on the disk then.
    [[nodiscard]] std::expected<void, Failure> finish();

private:
    explicit ExportFolder(QString path)
        : m_path(std::move(path)) {}
    [[nodiscard]] std::expected<void, Failure> writeFile(const QString& name, const QByteArray& bytes);
    [[nodiscard]] std::expected<void, Failure> append(const QByteArray& bytes);

    QString m_path;
    bool m_isOurs = false; ///< it was not there before
    bool m_isFinished = false;
    int m_clips = 0;
    QStringList m_written;
    QFile m_index;
};

} // namespace vellumry
