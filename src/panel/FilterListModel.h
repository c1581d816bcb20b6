// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/ClipFilter.h"

#include <QAbstractListModel>
#include <QStringList>

namespace vellumry {

class PanelModel;

/// The filter chips, in the order of `allClipFilters`: what each is called and how many clips it lets through. A change
/// of the history changes numbers only, so a chip that is being pressed stays the same chip. Main thread.
class FilterListModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { TitleRole = Qt::UserRole + 1, CountRole };

    /// `model` must outlive this.
    explicit FilterListModel(const PanelModel& model, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Counts anew.
    void refresh();

    [[nodiscard]] static QString titleOf(ClipFilter filter);

private:
    [[nodiscard]] QStringList counted() const;

    const PanelModel* m_model;
    QStringList m_counts;
};

} // namespace vellumry
