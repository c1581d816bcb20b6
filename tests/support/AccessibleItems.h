// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>
#include <QQuickItem>
#include <QStringList>

namespace vellumry {

/// What screen readers are told of `item`.
inline QString accessibleName(const QQuickItem* item) {
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(const_cast<QQuickItem*>(item));
    return face ? face->text(QAccessible::Name) : QString();
}
inline QAccessible::State accessibleState(QQuickItem* item) {
    QAccessibleInterface* face = item ? QAccessible::queryAccessibleInterface(item) : nullptr;
    return face ? face->state() : QAccessible::State();
}

/// The first visible item below `root` with that role and name; null when there is none.
inline QQuickItem* accessibleItem(QQuickItem* root, QAccessible::Role role, const QString& name) {
    if (!root->isVisible())
        return nullptr;
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(root);
    if (face && face->role() == role && face->text(QAccessible::Name) == name)
        return root;
    for (QQuickItem* child : root->childItems()) {
        if (QQuickItem* found = accessibleItem(child, role, name))
            return found;
    }
    return nullptr;
}

/// The visible items that the keyboard reaches and that have no name or no role.
inline QStringList namelessControls(QQuickItem* root) {
    QStringList found;
    if (!root->isVisible())
        return found;
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(root);
    const bool isNamed = face && face->role() != QAccessible::NoRole && !face->text(QAccessible::Name).isEmpty();
    if (root->activeFocusOnTab() && !isNamed)
        found.append(QString::fromLatin1(root->metaObject()->className()));
    for (QQuickItem* child : root->childItems())
        found += namelessControls(child);
    return found;
}

} // namespace vellumry
