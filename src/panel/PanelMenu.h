// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panel/MenuLevel.h"

#include <QObject>
#include <QPoint>
#include <QPointF>
#include <QString>
#include <qqmlregistration.h>

namespace vellumry {

/// A menu that is open over the panel: its entries, the submenu that is open beside them, and what keys and pointer do
/// to them. Menus are two boards deep at most. Main thread.
class PanelMenu : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the panel")
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged)
    Q_PROPERTY(QString name READ name NOTIFY isOpenChanged)
    Q_PROPERTY(QPointF place READ place NOTIFY isOpenChanged)
    Q_PROPERTY(vellumry::MenuLevel* root READ root CONSTANT)
    Q_PROPERTY(vellumry::MenuLevel* sub READ sub CONSTANT)
    Q_PROPERTY(int subRow READ subRow NOTIFY subRowChanged)

public:
    /// How a menu was asked for: by keys, its first entry is current.
    enum class Way : quint8 { byPointer, byKeys };

    using QObject::QObject;

    /// In place of a menu that is open already. `place`: the corner of the menu, as the panel's view counts; `name` is
    /// what screen readers say. A menu without entries does not open.
    void open(std::vector<ActionMenuItem> items, const QString& name, QPointF place, Way way);
    Q_INVOKABLE void close();
    /// While a menu is open all keys are its own.
    void keyPressed(int key, Qt::KeyboardModifiers modifiers);
    /// The pointer came onto that entry; -1 for none.
    Q_INVOKABLE void pointed(vellumry::MenuLevel* level, int row);
    /// It is on that entry now: as `pointed` where it has moved since it was last told of, and nothing where the entry
    /// has come up under it.
    Q_INVOKABLE void entered(vellumry::MenuLevel* level, int row);
    /// It has stayed there for a moment: on an entry of the root board that opens its submenu, and closes another's.
    Q_INVOKABLE void rested(int row);
    /// Closes the menu and does what the entry is for, or opens its submenu.
    Q_INVOKABLE void choose(vellumry::MenuLevel* level, int row);

    [[nodiscard]] bool isOpen() const { return m_isOpen; }
    [[nodiscard]] QString name() const { return m_name; }
    [[nodiscard]] QPointF place() const { return m_place; }
    [[nodiscard]] MenuLevel* root() { return &m_root; }
    [[nodiscard]] MenuLevel* sub() { return &m_sub; }
    /// The entry whose submenu is open; -1 for none.
    [[nodiscard]] int subRow() const { return m_subRow; }

Q_SIGNALS:
    void isOpenChanged();
    void subRowChanged();

private:
    void openSub(int row, Way way);
    void closeSub();
    void stepIn(MenuLevel& level);

    MenuLevel m_root;
    MenuLevel m_sub;
    bool m_isOpen = false;
    QString m_name;
    QPointF m_place;
    QPoint m_pointerAt; ///< when the menu opened, or when it was told of last
    int m_subRow = -1;
};

} // namespace vellumry
