// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panel/PanelModel.h"

#include <QAbstractListModel>
#include <QHash>
#include <vector>

namespace vellumry {

/// The panel model's sections as the rows of a list: a header, then its clips. A change rebinds the rows that stay and
/// adds or removes at the end, so that a keystroke makes no delegate anew. While nobody sees the list it may lie
/// dormant: it then falls behind the model until told to catch up. Main thread.
class PanelListModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        HeaderRole = Qt::UserRole + 1,
        IsHeaderRole,
        TitleRole,
        SourceNameRole,
        ImageMatchRole,
        SymbolRole,
        ThumbnailRole,
        SwatchRole,
        PillRole,
        NumberKeysRole,
        PinKeysRole,
        PinHintRole,
        IsPinnedRole,
        IsSelectedRole,
        IsSensitiveRole,
    };

    /// The words on the caps of a row's number and of a pin's keys: "%1" is the digit.
    struct KeyWords {
        QString number;
        QString pin;
    };

    /// `model` must outlive this.
    PanelListModel(PanelModel& model, KeyWords words, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Null for a header and for a row out of range.
    [[nodiscard]] ClipRef clipAt(int row) const;
    /// -1 without one.
    [[nodiscard]] int primaryRow() const;

    /// Waking up catches up.
    void setDormant(bool isDormant);
    [[nodiscard]] bool isDormant() const { return m_isDormant; }
    /// Follows once what has changed since it lay dormant; deleted clips are held until then.
    void catchUp();

Q_SIGNALS:
    /// The first change since it was last up to date came while dormant.
    void fellBehind();

private:
    struct Row {
        QString header; ///< of a header; may be empty
        ClipRef clip;   ///< null for a header
    };

    void follow();
    void rebuild();
    void replaceRows(std::vector<Row> rows);
    void repaintSelection();
    [[nodiscard]] QVariant headerValue(const Row& row, int role) const;
    [[nodiscard]] QVariant clipValue(const Clip& clip, int role) const;
    [[nodiscard]] QString pillOf(const Clip& clip) const;
    [[nodiscard]] QString keysOf(const QHash<QUuid, int>& numbers, const Clip& clip, const QString& words) const;

    PanelModel* m_model;
    KeyWords m_words;
    std::vector<Row> m_rows;
    std::vector<int> m_headers; ///< the rows that are headers, ascending
    QHash<QUuid, int> m_rowNumbers;
    QHash<QUuid, int> m_pinNumbers;
    bool m_isDormant = false;
    bool m_isBehind = false;
};

} // namespace vellumry
