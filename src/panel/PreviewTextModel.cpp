// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PreviewTextModel.h"

#include "panel/TextSlices.h"

#include <algorithm>
#include <utility>

namespace vellumry {

int PreviewTextModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_content.starts.size());
}

QVariant PreviewTextModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case TextRole:
        return shown(index.row());
    case MarkupRole:
        return markupOf(index.row());
    default:
        return {};
    }
}

QHash<int, QByteArray> PreviewTextModel::roleNames() const {
    return {{TextRole, "slice"}, {MarkupRole, "markup"}};
}

std::pair<qsizetype, qsizetype> PreviewTextModel::bytesOf(int row) const {
    const auto place = static_cast<std::size_t>(row);
    const auto& starts = m_content.starts;
    return {starts[place], place + 1 < starts.size() ? qsizetype(starts[place + 1]) : m_end};
}

QString PreviewTextModel::shown(int row) const {
    const auto [start, end] = bytesOf(row);
    return textslices::shown(QByteArrayView(m_content.text).sliced(start, end - start), m_tabWidth);
}

/// The styles of one slice, in units of what is shown of it.
std::vector<StyledRun> PreviewTextModel::runsOf(int row) const {
    const auto [first, last] = bytesOf(row);
    const auto& runs = m_content.runs;
    const auto endOf = [](const StyledRun& run) { return run.start + run.length; };
    std::vector<StyledRun> found;
    const auto units = [this](qsizetype from, qsizetype to) {
        return QString::fromUtf8(QByteArrayView(m_content.text).sliced(from, to - from)).size();
    };
    auto run = std::ranges::upper_bound(runs, first, {}, endOf);
    qsizetype place = first;
    qsizetype shownBefore = 0;
    for (; run != runs.end() && run->start < last; ++run) {
        const qsizetype start = std::max(run->start, first);
        const qsizetype end = std::min(endOf(*run), last);
        shownBefore += units(place, start);
        const qsizetype length = units(start, end);
        found.push_back({shownBefore, length, run->style});
        shownBefore += length;
        place = end;
    }
    return found;
}

QString PreviewTextModel::markupOf(int row) const {
    const QString text = shown(row);
    const auto runs = runsOf(row);
    const auto hits = markup::hitsIn(m_query, text);
    return runs.empty() && hits.empty() ? QString() : markup::styled(text, runs, hits, m_look);
}

QString PreviewTextModel::upToHit(int row) const {
    if (row < 0 || row >= rowCount())
        return {};
    const QString text = shown(row);
    return markup::upToFirstHit(text, runsOf(row), markup::hitsIn(m_query, text), m_look);
}

void PreviewTextModel::setContent(Content content, int tabWidth) {
    if (content == m_content && tabWidth == m_tabWidth)
        return;
    beginResetModel();
    m_content = std::move(content);
    m_end = m_content.text.size();
    m_tabWidth = tabWidth;
    endResetModel();
}

void PreviewTextModel::extendTo(QByteArray text, std::vector<quint32> starts) {
    const auto before = rowCount();
    const auto after = static_cast<int>(starts.size());
    if (before == 0 || after < before || !m_content.runs.empty()) {
        setContent({std::move(text), std::move(starts), {}}, m_tabWidth);
        return;
    }
    // The last row is completed before others join it.
    const bool grows = after > before;
    m_content.text = std::move(text);
    m_end = grows ? qsizetype(starts[static_cast<std::size_t>(before)]) : m_content.text.size();
    Q_EMIT dataChanged(index(before - 1), index(before - 1));
    if (!grows)
        return;
    beginInsertRows({}, before, after - 1);
    m_content.starts = std::move(starts);
    m_end = m_content.text.size();
    endInsertRows();
}

void PreviewTextModel::setQuery(const QString& query) {
    if (std::exchange(m_query, query) != query)
        tellAllMarkup();
}

void PreviewTextModel::setLook(const markup::Look& look) {
    if (std::exchange(m_look, look) != look)
        tellAllMarkup();
}

void PreviewTextModel::tellAllMarkup() {
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {MarkupRole});
}

} // namespace vellumry
