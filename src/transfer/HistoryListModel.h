// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files/PeerHistories.h"

#include <QAbstractListModel>
#include <QSet>
#include <qqmlregistration.h>
#include <vector>

namespace vellumry {

/// The histories of other programs, a line each, as a list for views. Main thread.
class HistoryListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The program has it.")

public:
    enum Role { ProgramRole = Qt::UserRole + 1, ContentsRole, CanImportRole, IsDoneRole };

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] const std::vector<PeerHistory>& histories() const { return m_histories; }
    /// `done`: identifiers of those that were imported already.
    void setHistories(std::vector<PeerHistory> histories, QSet<QString> done);

    /// What one holds, or why that is unknown: "1,204 items, 3 of them pictures".
    [[nodiscard]] static QString contentsOf(const PeerHistory& history);

private:
    std::vector<PeerHistory> m_histories;
    QSet<QString> m_done;
};

} // namespace vellumry
