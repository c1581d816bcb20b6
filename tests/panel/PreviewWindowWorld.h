// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panel/PanelWindowWorld.h"

#include <QAccessible>

namespace vellumry {

/// The open panel, asked about its preview.
class PreviewWindowWorld : public PanelWindowWorld {
protected:
    ClipRef addOfKind(ClipKind kind, const char* text) {
        ClipDraft draft = drafts::text(QString::fromUtf8(text));
        draft.kind = kind;
        return add(std::move(draft));
    }
    [[nodiscard]] PreviewModel& preview() const {
        return *view()->rootObject()->property("preview").value<PreviewModel*>();
    }
    [[nodiscard]] QQuickItem* pane() const { return child("preview"); }
    [[nodiscard]] QQuickItem* child(const char* name) const {
        return view()->rootObject()->findChild<QQuickItem*>(QString::fromLatin1(name));
    }
    [[nodiscard]] QStringList shown() const { return shownTexts(pane()); }
    void layOut() { (void)view()->grabWindow(); }

    /// The item of the first node in the preview with that role and name; null without one.
    [[nodiscard]] QQuickItem* node(QAccessible::Role role, const QString& name) const {
        return find(QAccessible::queryAccessibleInterface(pane()), role, name);
    }
    void press(const QString& name) {
        layOut();
        QQuickItem* button = node(QAccessible::Button, name);
        ASSERT_TRUE(button) << qUtf8Printable(name);
        QTest::mouseClick(view(), Qt::LeftButton, {},
                          button->mapToScene(QPointF(button->width() / 2, button->height() / 2)).toPoint());
    }
    using PanelWindowWorld::press;

private:
    static QQuickItem* find(QAccessibleInterface* node, QAccessible::Role role, const QString& name) {
        if (!node || node->state().invisible)
            return nullptr;
        if (node->role() == role && node->text(QAccessible::Name) == name)
            return qobject_cast<QQuickItem*>(node->object());
        for (int index = 0; index < node->childCount(); ++index) {
            if (QQuickItem* found = find(node->child(index), role, name))
                return found;
        }
        return nullptr;
    }
};

} // namespace vellumry
