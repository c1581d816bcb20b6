// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractListModel>
#include <QUrl>
#include <qqmlregistration.h>
#include <vector>

namespace vellumry {

/// A line of a list in a form.
struct FormLine {
    QString identifier{}; ///< what stands for it in the settings; not shown
    QString title{};
    QString detail{};
    QString note{};
    QString symbol{}; ///< one of our own; shown where there is no picture
    QUrl picture{};
    bool isChosen = false;
    bool isGood = true; ///< nothing needs to be done about it

    bool operator==(const FormLine&) const = default;
};

/// Lines for a form's list. Main thread.
class FormListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The settings have them.")
    Q_PROPERTY(int count READ count NOTIFY linesChanged)

public:
    enum Role { TitleRole = Qt::UserRole + 1, DetailRole, NoteRole, SymbolRole, PictureRole, IsChosenRole, IsGoodRole };

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] int count() const { return static_cast<int>(m_lines.size()); }
    [[nodiscard]] const std::vector<FormLine>& lines() const { return m_lines; }
    /// Lines that stay keep their delegates, and the keyboard with them.
    void setLines(std::vector<FormLine> lines);

Q_SIGNALS:
    void linesChanged();

private:
    void replace(std::vector<FormLine> lines);

    std::vector<FormLine> m_lines;
};

} // namespace vellumry
