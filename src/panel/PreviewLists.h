// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panel/PreviewContent.h"

#include <QAbstractListModel>
#include <utility>
#include <vector>

namespace vellumry {

/// Rows of a value type that are bound anew when they change, so that views keep what they made for them. Main thread.
template <typename Row>
class PreviewRows : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }

    void setRows(const std::vector<Row>& rows) {
        if (rows == m_rows)
            return;
        const auto before = static_cast<int>(m_rows.size());
        const auto after = static_cast<int>(rows.size());
        const int shared = std::min(before, after);
        if (after < before) {
            beginRemoveRows({}, after, before - 1);
            m_rows.resize(rows.size());
            endRemoveRows();
        }
        for (int row = 0; row < shared; ++row) {
            const auto place = static_cast<std::size_t>(row);
            if (m_rows[place] == rows[place])
                continue;
            m_rows[place] = rows[place];
            Q_EMIT dataChanged(index(row), index(row));
        }
        if (after > before) {
            beginInsertRows({}, before, after - 1);
            m_rows = rows;
            endInsertRows();
        }
    }

protected:
    /// Null out of range.
    [[nodiscard]] const Row* at(const QModelIndex& index) const {
        return checkIndex(index, CheckIndexOption::IndexIsValid) ? &m_rows[static_cast<std::size_t>(index.row())]
                                                                 : nullptr;
    }

private:
    std::vector<Row> m_rows;
};

/// The buttons of the preview.
class PreviewButtonModel : public PreviewRows<PreviewContent::Button> {
    Q_OBJECT

public:
    enum Role { ActionRole = Qt::UserRole + 1, TitleRole, HelpRole, SymbolRole, IsProminentRole };

    using PreviewRows::PreviewRows;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
};

/// The files of a clip, or some of several clips.
class PreviewEntryModel : public PreviewRows<PreviewContent::Entry> {
    Q_OBJECT

public:
    enum Role {
        NameRole = Qt::UserRole + 1,
        SymbolRole,
        ThumbnailRole,
        SwatchRole,
        ToldRole, ///< accessible description, without the name
        HasNoteRole,
        IsMissingRole,
        IsFileRole
    };

    using PreviewRows::PreviewRows;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
};

} // namespace vellumry
