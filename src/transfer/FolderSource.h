// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "transfer/ImportSource.h"

#include <QJsonArray>

namespace vellumry {

/// A folder that this program exported. Read only.
class FolderSource : public ImportSource {
public:
    /// Null where the folder holds no finished export.
    [[nodiscard]] static std::unique_ptr<FolderSource> open(const QString& folder);

    [[nodiscard]] std::optional<ImportEntry> next() override;
    [[nodiscard]] bool isDamaged() const override { return m_isDamaged; }

private:
    FolderSource(QString folder, QJsonArray clips)
        : m_folder(std::move(folder))
        , m_clips(std::move(clips)) {}

    QString m_folder;
    QJsonArray m_clips;
    qsizetype m_position = 0;
    bool m_isDamaged = false;
};

} // namespace vellumry
