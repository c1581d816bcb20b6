// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/FilterListModel.h"

#include "foundation/InterfaceLocale.h"
#include "foundation/Localisation.h"
#include "panel/PanelModel.h"

#include <utility>

namespace vellumry {

FilterListModel::FilterListModel(const PanelModel& model, QObject* parent)
    : QAbstractListModel(parent)
    , m_model(&model)
    , m_counts(counted()) {}

QString FilterListModel::titleOf(ClipFilter filter) {
    switch (filter) {
    case ClipFilter::all:
        return localised("All");
    case ClipFilter::text:
        return localised("Text");
    case ClipFilter::links:
        return localised("Links");
    case ClipFilter::images:
        return localised("Images");
    case ClipFilter::files:
        return localised("Files");
    case ClipFilter::colors:
        return localised("Colors");
    case ClipFilter::pinned:
        return localised("Pinned");
    }
    return QString();
}

QStringList FilterListModel::counted() const {
    QStringList counts;
    for (const ClipFilter filter : allClipFilters)
        counts.append(interfaceLocale().toString(m_model->count(filter)));
    return counts;
}

void FilterListModel::refresh() {
    QStringList counts = counted();
    if (counts == m_counts)
        return;
    m_counts = std::move(counts);
    Q_EMIT dataChanged(index(0), index(rowCount() - 1), {CountRole});
}

int FilterListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(allClipFilters.size());
}

QVariant FilterListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (role == CountRole)
        return m_counts.at(index.row());
    if (role == TitleRole || role == Qt::DisplayRole)
        return titleOf(allClipFilters[static_cast<std::size_t>(index.row())]);
    return {};
}

QHash<int, QByteArray> FilterListModel::roleNames() const {
    return {{TitleRole, "title"}, {CountRole, "count"}};
}

} // namespace vellumry
