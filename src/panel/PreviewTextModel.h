// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractListModel>
#include <QByteArray>
#include <vector>

namespace vellumry {

/// A text as rows of a list, each a slice of it, which becomes a string when a view asks for it: ten megabytes cost a
/// view what its height costs. Main thread.
class PreviewTextModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { TextRole = Qt::UserRole + 1 };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Shows another text, UTF-8, cut where `starts` says. Does nothing for the same one.
    void setText(QByteArray text, std::vector<quint32> starts, int tabWidth);
    /// The text goes on: what is shown stays where it is. `text` begins with the present one.
    void extendTo(QByteArray text, std::vector<quint32> starts);
    void clear() { setText({}, {}, 0); }
    [[nodiscard]] const QByteArray& text() const { return m_text; }

private:
    QByteArray m_text;
    std::vector<quint32> m_starts;
    qsizetype m_end = 0; ///< of the last row
    int m_tabWidth = 0;
};

} // namespace vellumry
