// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelListModel.h"

#include "history/clips/ClipStore.h"

#include <algorithm>
#include <utility>

namespace vellumry {

PanelListModel::PanelListModel(PanelModel& model, QString pinKeys, QObject* parent)
    : QAbstractListModel(parent)
    , m_model(&model)
    , m_pinKeys(std::move(pinKeys)) {
    connect(m_model, &PanelModel::sectionsChanged, this, &PanelListModel::follow);
    connect(m_model, &PanelModel::fileStatusesChanged, this, &PanelListModel::follow);
    connect(m_model, &PanelModel::availablePinnedNumbersChanged, this, &PanelListModel::follow);
    connect(m_model, &PanelModel::selectionChanged, this, &PanelListModel::repaintSelection);
    rebuild();
}

void PanelListModel::setDormant(bool isDormant) {
    m_isDormant = isDormant;
    m_isHeld = false;
    if (!isDormant)
        catchUp();
}

void PanelListModel::catchUp() {
    if (std::exchange(m_isBehind, false))
        rebuild();
}

void PanelListModel::setHeld(bool isHeld) {
    m_isHeld = isHeld;
    if (!isHeld && !m_isDormant)
        catchUp();
}

void PanelListModel::follow() {
    if (m_isDormant)
        followDormant();
    else if (m_isHeld)
        m_isBehind = true;
    else
        rebuild();
}

void PanelListModel::followDormant() {
    m_isBehind = true;
    if (m_deletions != m_model->store().deletions() || m_shownQuery != m_model->query())
        Q_EMIT fellBehind();
}

void PanelListModel::rebuild() {
    m_deletions = m_model->store().deletions();
    PanelListRows rows(m_model->listing());
    m_rowNumbers = m_model->rowNumbers();
    m_pinNumbers = m_model->pinNumbers();

    const bool isSameSearch = m_model->query() == m_shownQuery && m_model->filter() == m_shownFilter;
    m_shownQuery = m_model->query();
    m_shownFilter = m_model->filter();
    if (!isSameSearch || m_isDormant)
        rebindRows(std::move(rows));
    else if (const auto gone = m_rows.runBeyond(rows))
        removeRun(*gone, std::move(rows));
    else if (const auto come = rows.runBeyond(m_rows))
        insertRun(*come, std::move(rows));
    else
        rebindRows(std::move(rows));
}

void PanelListModel::removeRun(Run run, PanelListRows rows) {
    const int headers = m_rows.headersIn(run);
    beginRemoveRows({}, run.row, run.row + run.count - 1);
    m_rows = std::move(rows);
    endRemoveRows();
    tellAllChanged();
    Q_EMIT gapClosed(run.row, run.count - headers, headers);
}

void PanelListModel::insertRun(Run run, PanelListRows rows) {
    beginInsertRows({}, run.row, run.row + run.count - 1);
    m_rows = std::move(rows);
    endInsertRows();
    tellAllChanged();
}

void PanelListModel::tellAllChanged() {
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

/// Rows that stay are rebound before any are added and after any are removed: views may look at them in between.
void PanelListModel::rebindRows(PanelListRows rows) {
    const int before = m_rows.count();
    const int after = rows.count();
    if (after < before) {
        beginRemoveRows({}, after, before - 1);
        m_rows.cut(after);
        endRemoveRows();
    }
    m_rows = std::move(rows);
    m_rows.cut(std::min(before, after));
    tellAllChanged();
    if (after > before) {
        beginInsertRows({}, before, after - 1);
        m_rows.cut(after);
        endInsertRows();
    }
}

void PanelListModel::repaintSelection() {
    if (m_isDormant)
        follow();
    else if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {IsSelectedRole});
}

int PanelListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows.count();
}

ClipRef PanelListModel::clipAt(int row) const {
    return row >= 0 && row < rowCount() ? m_rows.clipAt(row) : nullptr;
}

int PanelListModel::rowOf(const QUuid& id) const {
    return m_rows.rowOf(id).value_or(-1);
}

int PanelListModel::primaryRow() const {
    if (m_isBehind) // the model's places are of rows to come
        return m_model->selectedID() ? rowOf(*m_model->selectedID()) : -1;
    return m_rows.rowOfClip(m_model->selectedIndex()).value_or(-1);
}

QVariant PanelListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (role != Qt::DisplayRole && (role < HeaderRole || role > IsSensitiveRole))
        return {};
    const Clip* const clip = m_rows.peek(index.row());
    if (role == IsHeaderRole)
        return clip == nullptr;
    return clip != nullptr ? clipValue(*clip, role) : headerValue(*m_rows.headerAt(index.row()), role);
}

QHash<int, QByteArray> PanelListModel::roleNames() const {
    return {
        {HeaderRole, "header"},
        {IsHeaderRole, "isHeader"},
        {TitleRole, "title"},
        {MarkedTitleRole, "markedTitle"},
        {SourceNameRole, "sourceName"},
        {ImageMatchRole, "imageMatch"},
        {SymbolRole, "symbol"},
        {ThumbnailRole, "thumbnail"},
        {SwatchRole, "swatch"},
        {PillRole, "pill"},
        {NumberRole, "number"},
        {PinNumberRole, "pinNumber"},
        {PinHintRole, "pinHint"},
        {DescriptionRole, "description"},
        {IsPinnedRole, "isPinned"},
        {IsSelectedRole, "isSelected"},
        {IsSensitiveRole, "isSensitive"},
    };
}

} // namespace vellumry
