// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/MenuLevel.h"

#include <utility>

namespace vellumry {

int MenuLevel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

QVariant MenuLevel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const ActionMenuItem& item = m_items[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case TextRole:
        return item.text;
    case SymbolRole:
        return item.symbol;
    case KeysRole:
        return item.keys;
    case IsEnabledRole:
        return item.isEnabled;
    case IsSeparatorRole:
        return item.isSeparator();
    case HasItemsRole:
        return !item.items.empty();
    case IsCheckableRole:
        return item.check != ActionMenuItem::Check::none;
    case IsCheckedRole:
        return item.check == ActionMenuItem::Check::on;
    case SwatchRole:
        return item.swatch;
    default:
        return {};
    }
}

QHash<int, QByteArray> MenuLevel::roleNames() const {
    return {{TextRole, "text"},
            {SymbolRole, "symbol"},
            {KeysRole, "keys"},
            {IsEnabledRole, "isEnabled"},
            {IsSeparatorRole, "isSeparator"},
            {HasItemsRole, "hasItems"},
            {IsCheckableRole, "isCheckable"},
            {IsCheckedRole, "isChecked"},
            {SwatchRole, "swatch"}};
}

void MenuLevel::setItems(std::vector<ActionMenuItem> items) {
    setCurrent(-1);
    beginResetModel();
    m_items = std::move(items);
    endResetModel();
}

const ActionMenuItem* MenuLevel::itemAt(int row) const {
    return row >= 0 && row < rowCount() ? &m_items[static_cast<std::size_t>(row)] : nullptr;
}

bool MenuLevel::canBeChosen(int row) const {
    const ActionMenuItem* item = itemAt(row);
    return item != nullptr && !item->isSeparator() && item->isEnabled;
}

void MenuLevel::setCurrent(int row) {
    if (!canBeChosen(row))
        row = -1;
    if (std::exchange(m_current, row) != row)
        Q_EMIT currentChanged();
}

void MenuLevel::step(int delta) {
    const int count = rowCount();
    int row = m_current < 0 && delta < 0 ? count : m_current;
    for (int tried = 0; tried < count; ++tried) {
        row = (row + delta + count) % count;
        if (canBeChosen(row)) {
            setCurrent(row);
            return;
        }
    }
}

void MenuLevel::stepToEnd(bool isLast) {
    setCurrent(-1);
    step(isLast ? -1 : 1);
}

void MenuLevel::stepToLetter(QChar letter) {
    const int count = rowCount();
    for (int tried = 1; tried <= count; ++tried) {
        const int row = (m_current + tried + count) % count;
        if (canBeChosen(row) && m_items[static_cast<std::size_t>(row)].text.startsWith(letter, Qt::CaseInsensitive)) {
            setCurrent(row);
            return;
        }
    }
}

} // namespace vellumry
