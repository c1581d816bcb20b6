// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/StyledText.h"
#include "panel/PreviewMarkup.h"

#include <QAbstractListModel>
#include <QByteArray>
#include <optional>
#include <vector>

namespace vellumry {

/// A text as rows of a list, each a slice of it, which becomes a string when a view asks for it: ten megabytes cost a
/// view what its height costs. A slice that has styles or holds what is searched for is markup as well. Main thread.
class PreviewTextModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { TextRole = Qt::UserRole + 1, MarkupRole };

    /// A text in UTF-8, cut where `starts` says; the runs count its bytes.
    struct Content {
        QByteArray text{};
        std::vector<quint32> starts{};
        std::vector<StyledRun> runs{};
        bool operator==(const Content&) const = default;
    };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Shows another text. Does nothing for the same one.
    void setContent(Content content, int tabWidth);
    /// The text goes on: what is shown stays where it is. The new text begins with the present one and has no styles.
    void extendTo(QByteArray text, std::vector<quint32> starts);
    void clear() { setContent({}, 0); }
    [[nodiscard]] const QByteArray& text() const { return m_content.text; }
    [[nodiscard]] const std::vector<quint32>& starts() const { return m_content.starts; }

    /// What is marked where it occurs; empty: nothing.
    void setQuery(const QString& query);
    void setLook(const markup::Look& look);
    /// The slice at `row` up to the end of its first hit, as markup; empty without one.
    [[nodiscard]] QString upToHit(int row) const;

private:
    [[nodiscard]] std::pair<qsizetype, qsizetype> bytesOf(int row) const;
    [[nodiscard]] QString shown(int row) const;
    [[nodiscard]] std::vector<StyledRun> runsOf(int row) const;
    [[nodiscard]] QString markupOf(int row) const;
    void tellAllMarkup();

    Content m_content;
    qsizetype m_end = 0; ///< of the last row
    int m_tabWidth = 0;
    QString m_query;
    markup::Look m_look;
};

} // namespace vellumry
