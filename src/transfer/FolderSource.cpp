// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/FolderSource.h"

#include "capture/PasteboardSnapshot.h"
#include "transfer/ExportFormat.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

namespace vellumry {

namespace {

/// A hundred thousand clips have an index of 40 MB.
constexpr qint64 largestIndex = qint64{512} << 20;

/// Nothing of what is no ordinary file, is larger than that, or cannot be read.
std::optional<QByteArray> contentsOf(const QString& path, qint64 most) {
    const QFileInfo info(path);
    QFile file(path);
    if (!info.isFile() || info.size() > most || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray bytes = file.readAll();
    return file.error() == QFileDevice::NoError ? std::optional(std::move(bytes)) : std::nullopt;
}

} // namespace

std::unique_ptr<FolderSource> FolderSource::open(const QString& folder) {
    const auto bytes = contentsOf(folder + u'/' + exportformat::indexName, largestIndex);
    if (!bytes)
        return nullptr;
    const QJsonObject index = QJsonDocument::fromJson(*bytes).object();
    const QJsonValue clips = index[QStringLiteral("clips")];
    const int version = index[QStringLiteral("vellumryExport")].toInt();
    if (version < 1 || version > exportformat::version || !clips.isArray())
        return nullptr;
    return std::unique_ptr<FolderSource>(new FolderSource(folder, clips.toArray()));
}

std::optional<ImportEntry> FolderSource::next() {
    if (m_position >= m_clips.size())
        return std::nullopt;
    const QJsonObject object = m_clips.at(m_position++).toObject();
    const auto read = [this](const QString& name) -> std::optional<QByteArray> {
        if (!exportformat::isPlainName(name))
            return std::nullopt;
        return contentsOf(m_folder + u'/' + name, SnapshotLimits().maxTotalBytes);
    };
    auto entry = exportformat::decoded(object, read);
    if (entry)
        return entry;
    // The others are still there.
    m_isDamaged = true;
    return ImportEntry();
}

} // namespace vellumry
