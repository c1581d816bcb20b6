// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/FormListModel.h"

#include <algorithm>

namespace vellumry {

int FormListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant FormListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const FormLine& line = m_lines[static_cast<std::size_t>(index.row())];
    switch (role) {
    case TitleRole:
    case Qt::DisplayRole:
        return line.title;
    case DetailRole:
        return line.detail;
    case NoteRole:
        return line.note;
    case SymbolRole:
        return line.symbol;
    case PictureRole:
        return line.picture;
    case IsChosenRole:
        return line.isChosen;
    case IsGoodRole:
        return line.isGood;
    default:
        return {};
    }
}

QHash<int, QByteArray> FormListModel::roleNames() const {
    return {{TitleRole, "title"},     {DetailRole, "detail"},     {NoteRole, "note"},    {SymbolRole, "symbol"},
            {PictureRole, "picture"}, {IsChosenRole, "isChosen"}, {IsGoodRole, "isGood"}};
}

void FormListModel::setLines(std::vector<FormLine> lines) {
    if (lines == m_lines)
        return;
    const auto identifiersOf = [](const std::vector<FormLine>& of) {
        std::vector<QString> identifiers;
        for (const FormLine& line : of)
            identifiers.push_back(line.identifier);
        return identifiers;
    };
    if (identifiersOf(lines) == identifiersOf(m_lines)) {
        m_lines = std::move(lines);
        Q_EMIT dataChanged(index(0), index(count() - 1));
    } else if (lines.size() + 1 == m_lines.size()) {
        // The usual change: one goes.
        const auto gone = std::ranges::mismatch(m_lines, lines, {}, &FormLine::identifier, &FormLine::identifier).in1;
        const int row = static_cast<int>(gone - m_lines.begin());
        beginRemoveRows({}, row, row);
        m_lines.erase(gone);
        endRemoveRows();
        if (m_lines != lines)
            replace(std::move(lines));
    } else {
        replace(std::move(lines));
    }
    Q_EMIT linesChanged();
}

void FormListModel::replace(std::vector<FormLine> lines) {
    beginResetModel();
    m_lines = std::move(lines);
    endResetModel();
}

} // namespace vellumry
