// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelListModel.h"

#include "history/clips/ClipStore.h"

#include <algorithm>
#include <iterator>
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
    std::vector<Row> rows;
    std::vector<int> headers;
    const std::vector<PanelModel::Section>& sections = m_model->sections();
    std::size_t count = sections.size();
    for (const PanelModel::Section& section : sections)
        count += section.clips.size();
    rows.reserve(count);
    for (const PanelModel::Section& section : sections) {
        headers.push_back(static_cast<int>(rows.size()));
        rows.push_back({section.title, nullptr});
        for (const ClipRef& clip : section.clips)
            rows.push_back({QString(), clip});
    }
    m_headers = std::move(headers);
    m_rowNumbers = m_model->rowNumbers();
    m_pinNumbers = m_model->pinNumbers();

    const bool isSameSearch = m_model->query() == m_shownQuery && m_model->filter() == m_shownFilter;
    m_shownQuery = m_model->query();
    m_shownFilter = m_model->filter();
    if (!isSameSearch || m_isDormant)
        rebindRows(std::move(rows));
    else if (const auto gone = runBetween(m_rows, rows))
        removeRun(*gone, std::move(rows));
    else if (const auto come = runBetween(rows, m_rows))
        insertRun(*come, std::move(rows));
    else
        rebindRows(std::move(rows));
}

std::optional<PanelListModel::Run> PanelListModel::runBetween(const std::vector<Row>& longer,
                                                              const std::vector<Row>& shorter) {
    const auto isSame = [](const Row& one, const Row& other) {
        if (one.clip == other.clip)
            return one.clip != nullptr || one.header == other.header;
        return one.clip && other.clip && one.clip->id == other.clip->id;
    };
    if (shorter.size() >= longer.size())
        return std::nullopt;
    const auto first = std::ranges::mismatch(longer, shorter, isSame).in1;
    const auto last = first + std::ptrdiff_t(longer.size() - shorter.size());
    const auto place = first - longer.begin();
    if (!std::equal(last, longer.end(), shorter.begin() + place, shorter.end(), isSame))
        return std::nullopt;
    return Run{static_cast<int>(place), static_cast<int>(last - first)};
}

void PanelListModel::removeRun(Run run, std::vector<Row> rows) {
    const auto first = m_rows.begin() + run.row;
    const auto headers = std::count_if(first, first + run.count, [](const Row& row) { return !row.clip; });
    beginRemoveRows({}, run.row, run.row + run.count - 1);
    m_rows = std::move(rows);
    endRemoveRows();
    tellAllChanged();
    Q_EMIT gapClosed(run.row, run.count - static_cast<int>(headers), static_cast<int>(headers));
}

void PanelListModel::insertRun(Run run, std::vector<Row> rows) {
    beginInsertRows({}, run.row, run.row + run.count - 1);
    m_rows = std::move(rows);
    endInsertRows();
    tellAllChanged();
}

void PanelListModel::tellAllChanged() {
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

/// Rows that stay are rebound before any are added and after any are removed: views may look at them in between.
void PanelListModel::rebindRows(std::vector<Row> rows) {
    const auto before = static_cast<int>(m_rows.size());
    const auto after = static_cast<int>(rows.size());
    const int shared = std::min(before, after);
    if (after < before) {
        beginRemoveRows({}, after, before - 1);
        m_rows.resize(rows.size());
        endRemoveRows();
    }
    std::vector<Row> added(std::make_move_iterator(rows.begin() + shared), std::make_move_iterator(rows.end()));
    rows.resize(static_cast<std::size_t>(shared));
    m_rows = std::move(rows);
    tellAllChanged();
    if (!added.empty()) {
        beginInsertRows({}, before, after - 1);
        m_rows.insert(m_rows.end(), std::make_move_iterator(added.begin()), std::make_move_iterator(added.end()));
        endInsertRows();
    }
}

void PanelListModel::repaintSelection() {
    if (m_isDormant)
        follow();
    else if (!m_rows.empty())
        Q_EMIT dataChanged(index(0), index(static_cast<int>(m_rows.size()) - 1), {IsSelectedRole});
}

int PanelListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

ClipRef PanelListModel::clipAt(int row) const {
    return row >= 0 && row < rowCount() ? m_rows[static_cast<std::size_t>(row)].clip : nullptr;
}

int PanelListModel::rowOf(const QUuid& id) const {
    const auto found = std::ranges::find_if(m_rows, [&](const Row& row) { return row.clip && row.clip->id == id; });
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

int PanelListModel::primaryRow() const {
    if (m_isBehind) // the model's places are of rows to come
        return m_model->selectedID() ? rowOf(*m_model->selectedID()) : -1;
    const int index = m_model->selectedIndex();
    if (index < 0)
        return -1;
    // One header stands above each section, so a clip lies as many rows lower as sections begin up to it.
    int row = index;
    for (const int header : m_headers) {
        if (header > row)
            break;
        ++row;
    }
    return row < rowCount() ? row : -1;
}

QVariant PanelListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (role != Qt::DisplayRole && (role < HeaderRole || role > IsSensitiveRole))
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    if (role == IsHeaderRole)
        return !row.clip;
    return row.clip ? clipValue(*row.clip, role) : headerValue(row, role);
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
