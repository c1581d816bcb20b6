// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/HistoryListModel.h"

#include "foundation/InterfaceLocale.h"
#include "foundation/Localisation.h"

namespace vellumry {

namespace {

QString countOf(const PeerHistory& history) {
    if (history.pictures == 0)
        return localised("%n items", history.clips);
    if (history.pictures == 1)
        return localised("%n items, one of them a picture", history.clips);
    return localised("%n items, %1 of them pictures", history.clips).arg(interfaceLocale().toString(history.pictures));
}

} // namespace

QString HistoryListModel::contentsOf(const PeerHistory& history) {
    switch (history.state) {
    case PeerHistory::State::whole:
        return countOf(history);
    case PeerHistory::State::damaged:
        if (history.clips > 0)
            return localised("Damaged. What can be read: %1").arg(countOf(history));
        return localised("Damaged: nothing in it can be read");
    case PeerHistory::State::locked:
        return localised("Encrypted: nothing in it can be read");
    case PeerHistory::State::tooLarge:
        return localised("Too large to be read");
    case PeerHistory::State::unreadable:
        break;
    }
    return localised("It can't be opened");
}

int HistoryListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_histories.size());
}

QVariant HistoryListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const PeerHistory& history = m_histories[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case ProgramRole:
        return history.program;
    case ContentsRole:
        return contentsOf(history);
    case CanImportRole:
        return history.clips > 0;
    case IsDoneRole:
        return m_done.contains(history.identifier);
    default:
        return {};
    }
}

QHash<int, QByteArray> HistoryListModel::roleNames() const {
    return {{ProgramRole, "program"}, {ContentsRole, "contents"}, {CanImportRole, "canImport"}, {IsDoneRole, "isDone"}};
}

void HistoryListModel::setHistories(std::vector<PeerHistory> histories, QSet<QString> done) {
    if (histories == m_histories) {
        m_done = std::move(done);
        if (!m_histories.empty())
            Q_EMIT dataChanged(index(0), index(rowCount() - 1), {IsDoneRole});
        return;
    }
    beginResetModel();
    m_histories = std::move(histories);
    m_done = std::move(done);
    endResetModel();
}

} // namespace vellumry
