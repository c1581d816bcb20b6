// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PreviewTextModel.h"

#include "panel/TextSlices.h"

#include <utility>

namespace vellumry {

int PreviewTextModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_starts.size());
}

QVariant PreviewTextModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || (role != TextRole && role != Qt::DisplayRole))
        return {};
    const auto row = static_cast<std::size_t>(index.row());
    const qsizetype start = m_starts[row];
    const qsizetype end = row + 1 < m_starts.size() ? qsizetype(m_starts[row + 1]) : m_end;
    return textslices::shown(QByteArrayView(m_text).sliced(start, end - start), m_tabWidth);
}

QHash<int, QByteArray> PreviewTextModel::roleNames() const {
    return {{TextRole, "slice"}};
}

void PreviewTextModel::setText(QByteArray text, std::vector<quint32> starts, int tabWidth) {
    if (text == m_text && tabWidth == m_tabWidth)
        return;
    beginResetModel();
    m_text = std::move(text);
    m_starts = std::move(starts);
    m_end = m_text.size();
    m_tabWidth = tabWidth;
    endResetModel();
}

void PreviewTextModel::extendTo(QByteArray text, std::vector<quint32> starts) {
    const auto before = static_cast<int>(m_starts.size());
    const auto after = static_cast<int>(starts.size());
    if (before == 0 || after < before) {
        setText(std::move(text), std::move(starts), m_tabWidth);
        return;
    }
    // The last row is completed before others join it.
    const bool grows = after > before;
    m_text = std::move(text);
    m_end = grows ? qsizetype(starts[static_cast<std::size_t>(before)]) : m_text.size();
    Q_EMIT dataChanged(index(before - 1), index(before - 1));
    if (!grows)
        return;
    beginInsertRows({}, before, after - 1);
    m_starts = std::move(starts);
    m_end = m_text.size();
    endInsertRows();
}

} // namespace vellumry
