// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/HintListModel.h"

#include <utility>

namespace vellumry {

int HintListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_hints.size());
}

QVariant HintListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Hint& hint = m_hints[static_cast<std::size_t>(index.row())];
    switch (role) {
    case KeysRole:
        return hint.keys;
    case TextRole:
    case Qt::DisplayRole:
        return hint.text;
    case RankRole:
        return hint.rank;
    default:
        return {};
    }
}

QHash<int, QByteArray> HintListModel::roleNames() const {
    return {{KeysRole, "keys"}, {TextRole, "text"}, {RankRole, "rank"}};
}

void HintListModel::setHints(std::vector<Hint> hints) {
    if (hints == m_hints)
        return;
    beginResetModel();
    m_hints = std::move(hints);
    endResetModel();
}

} // namespace vellumry
