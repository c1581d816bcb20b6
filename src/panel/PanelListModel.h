// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panel/PanelListRows.h"
#include "panel/PanelModel.h"

#include <QAbstractListModel>
#include <QHash>

namespace vellumry {

/// The panel model's sections as the rows of a list: a header, then its clips. Rows that come or go in one run while
/// the same search is shown are inserted and removed where they are, so that every other row stays what it is, for
/// screen readers too. Any other change rebinds the rows and adds or removes at the end, so that a keystroke makes no
/// delegate anew. While the list is hidden it may lie dormant: it then falls behind the model until told to catch up.
/// Main thread.
class PanelListModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        HeaderRole = Qt::UserRole + 1,
        IsHeaderRole,
        TitleRole,
        MarkedTitleRole,
        SourceNameRole,
        ImageMatchRole,
        SymbolRole,
        ThumbnailRole,
        SwatchRole,
        PillRole,
        NumberRole,
        PinNumberRole,
        PinHintRole,
        DescriptionRole,
        IsPinnedRole,
        IsSelectedRole,
        IsSensitiveRole,
    };

    /// `model` must outlive this. `pinKeys`: the words for the keys that paste a pin anywhere, "%1" is the digit.
    PanelListModel(PanelModel& model, QString pinKeys, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Null for a header and for a row out of range.
    [[nodiscard]] ClipRef clipAt(int row) const;
    /// The row of the clip with that id; -1 without one.
    [[nodiscard]] int rowOf(const QUuid& id) const;
    /// -1 without one.
    [[nodiscard]] int primaryRow() const;

    /// Nothing is followed while dormant; waking up catches up.
    void setDormant(bool isDormant);
    [[nodiscard]] bool isDormant() const { return m_isDormant; }
    /// While a finger is down nothing moves; what changed meanwhile is followed when it is up. Selection shows at once.
    void setHeld(bool isHeld);
    [[nodiscard]] bool isHeld() const { return m_isHeld; }
    /// Follows once what has changed since it lay dormant; deleted clips are held until then.
    void catchUp();

Q_SIGNALS:
    /// While dormant, something came to be held that is not to be seen any more: a deleted clip, or hits of a search
    /// that was ended.
    void fellBehind();
    /// Rows went from above that one while the user looked at the same search: so many of clips and of headers.
    void gapClosed(int row, int clips, int headers);

private:
    void follow();
    void followDormant();
    void rebuild();
    using Run = PanelListRows::Run;
    void rebindRows(PanelListRows rows);
    void removeRun(Run run, PanelListRows rows);
    void insertRun(Run run, PanelListRows rows);
    void tellAllChanged();
    void repaintSelection();
    [[nodiscard]] QVariant headerValue(const QString& header, int role) const;
    [[nodiscard]] QVariant clipValue(const Clip& clip, int role) const;
    [[nodiscard]] QString pillOf(const Clip& clip) const;
    [[nodiscard]] QString hintOf(const Clip& clip) const;
    [[nodiscard]] QString descriptionOf(const Clip& clip) const;
    [[nodiscard]] QString imageMatchOf(const Clip& clip) const;
    [[nodiscard]] static QString digitOf(const QHash<QUuid, int>& numbers, const Clip& clip);

    PanelModel* m_model;
    QString m_pinKeys;
    PanelListRows m_rows;
    QHash<QUuid, int> m_rowNumbers;
    QHash<QUuid, int> m_pinNumbers;
    bool m_isDormant = false;
    bool m_isBehind = false;
    qint64 m_deletions = 0; ///< the store's, as far as the rows have followed
    bool m_isHeld = false;
    QString m_shownQuery;
    ClipFilter m_shownFilter = ClipFilter::all;
};

} // namespace vellumry
