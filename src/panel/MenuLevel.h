// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/ActionMenuItem.h"

#include <QAbstractListModel>
#include <qqmlregistration.h>
#include <vector>

namespace vellumry {

/// One board of an open menu: its entries, and the one that the keys or the pointer stand on. Main thread.
class MenuLevel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to a menu")
    Q_PROPERTY(int current READ current NOTIFY currentChanged)

public:
    enum Role {
        TextRole = Qt::UserRole + 1,
        SymbolRole,
        KeysRole,
        IsEnabledRole,
        IsSeparatorRole,
        HasItemsRole,
        IsCheckableRole,
        IsCheckedRole,
        SwatchRole,
    };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Nothing stands on an entry afterwards.
    void setItems(std::vector<ActionMenuItem> items);
    /// Null out of range.
    [[nodiscard]] const ActionMenuItem* itemAt(int row) const;
    /// -1 for none.
    [[nodiscard]] int current() const { return m_current; }
    /// A separator, a disabled entry and what is out of range stand for none.
    void setCurrent(int row);
    /// To the next entry that can be chosen, `delta` 1, or the one before, -1; around the ends.
    void step(int delta);
    /// To the first entry that can be chosen, or the last.
    void stepToEnd(bool isLast);
    /// To the next entry that begins with that letter; stays without one.
    void stepToLetter(QChar letter);

Q_SIGNALS:
    void currentChanged();

private:
    [[nodiscard]] bool canBeChosen(int row) const;

    std::vector<ActionMenuItem> m_items;
    int m_current = -1;
};

} // namespace vellumry
