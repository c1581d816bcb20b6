// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelMenu.h"

#include <QCursor>
#include <QGuiApplication>
#include <utility>

namespace vellumry {

void PanelMenu::open(std::vector<ActionMenuItem> items, const QString& name, QPointF place, Way way) {
    close();
    if (items.empty())
        return;
    m_root.setItems(std::move(items));
    m_name = name;
    m_place = place;
    m_pointerAt = QCursor::pos();
    m_isOpen = true;
    Q_EMIT isOpenChanged();
    if (way == Way::byKeys)
        m_root.stepToEnd(false);
}

void PanelMenu::close() {
    if (!m_isOpen)
        return;
    closeSub();
    m_isOpen = false;
    Q_EMIT isOpenChanged();
    m_root.setItems({});
}

void PanelMenu::openSub(int row, Way way) {
    const ActionMenuItem* item = m_root.itemAt(row);
    if (item == nullptr || item->items.empty())
        return;
    m_root.setCurrent(row);
    if (row != m_subRow) {
        m_sub.setItems(item->items);
        m_subRow = row;
        Q_EMIT subRowChanged();
    }
    if (way == Way::byKeys)
        m_sub.stepToEnd(false);
}

void PanelMenu::closeSub() {
    if (std::exchange(m_subRow, -1) < 0)
        return;
    Q_EMIT subRowChanged();
    m_sub.setItems({});
}

void PanelMenu::keyPressed(int key, Qt::KeyboardModifiers modifiers) {
    MenuLevel& level = m_subRow >= 0 ? m_sub : m_root;
    if (QGuiApplication::isRightToLeft() && (key == Qt::Key_Left || key == Qt::Key_Right))
        key = key == Qt::Key_Left ? Qt::Key_Right : Qt::Key_Left;
    switch (key) {
    case Qt::Key_Up:
        level.step(-1);
        break;
    case Qt::Key_Down:
        level.step(1);
        break;
    case Qt::Key_Home:
    case Qt::Key_PageUp:
        level.stepToEnd(false);
        break;
    case Qt::Key_End:
    case Qt::Key_PageDown:
        level.stepToEnd(true);
        break;
    case Qt::Key_Right:
        openSub(m_root.current(), Way::byKeys);
        break;
    case Qt::Key_Left:
        closeSub();
        break;
    case Qt::Key_Escape:
        m_subRow >= 0 ? closeSub() : close();
        break;
    case Qt::Key_Menu:
    case Qt::Key_F10:
        close();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        stepIn(level);
        break;
    default:
        // Keys that type nothing have codes beyond those of letters.
        if ((modifiers & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0 && key < Qt::Key_Escape && key <= 0xFFFF)
            level.stepToLetter(QChar(key));
        break;
    }
}

void PanelMenu::stepIn(MenuLevel& level) {
    const ActionMenuItem* item = level.itemAt(level.current());
    if (item == nullptr)
        return;
    if (&level == &m_root && !item->items.empty())
        openSub(level.current(), Way::byKeys);
    else
        choose(&level, level.current());
}

/// A quick hand's motion may come as one event, which is this one.
void PanelMenu::entered(MenuLevel* level, int row) {
    if (QCursor::pos() != m_pointerAt)
        pointed(level, row);
}

void PanelMenu::pointed(MenuLevel* level, int row) {
    m_pointerAt = QCursor::pos();
    // The pointer that leaves the root for the submenu keeps the entry marked that the submenu belongs to.
    if (level == &m_root && row < 0 && m_subRow >= 0)
        level->setCurrent(m_subRow);
    else
        level->setCurrent(row);
}

void PanelMenu::rested(int row) {
    if (row == m_subRow)
        return;
    closeSub();
    openSub(row, Way::byPointer);
}

void PanelMenu::choose(MenuLevel* level, int row) {
    const ActionMenuItem* item = level->itemAt(row);
    if (item == nullptr || item->isSeparator() || !item->isEnabled)
        return;
    if (level == &m_root && !item->items.empty()) {
        openSub(row, Way::byPointer);
        return;
    }
    const auto handler = item->handler;
    close();
    if (handler)
        handler();
}

} // namespace vellumry
