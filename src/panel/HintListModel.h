// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractListModel>
#include <QString>
#include <vector>

namespace vellumry {

/// The keys that do something now, and what they do, for the panel's footer. Main thread.
class HintListModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { KeysRole = Qt::UserRole + 1, TextRole, RankRole };

    struct Hint {
        QString keys;
        QString text;
        int rank = 0; ///< where room is short, the highest goes first
        bool operator==(const Hint&) const = default;
    };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Emits nothing when they are the same.
    void setHints(std::vector<Hint> hints);

private:
    std::vector<Hint> m_hints;
};

} // namespace vellumry
