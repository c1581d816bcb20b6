// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/Views.h"

#include "foundation/InterfaceLocale.h"
#include "foundation/Localisation.h"
#include "views/ViewEngine.h"

#include <QAccessible>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPointer>
#include <QQmlEngine>
#include <algorithm>

namespace vellumry {

Views::Views(const ViewEngine& engine)
    : m_engine(&engine) {
    connect(m_engine, &ViewEngine::lookChanged, this, &Views::lookChanged);
}

Views* Views::create(QQmlEngine* engine, QJSEngine*) {
    return new Views(*qobject_cast<ViewEngine*>(engine->parent()));
}

bool Views::isDark() const {
    return m_engine->isDark();
}

ThemeColors Views::colors() const {
    return m_engine->colors();
}

double Views::textScale() const {
    return m_engine->textScale();
}

bool Views::isRightToLeft() const {
    return QGuiApplication::isRightToLeft();
}

bool Views::reducesMotion() const {
    return m_engine->isStill();
}

QString Views::family() const {
    return QGuiApplication::font().family();
}

QString Views::fixedFamily() const {
    return QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
}

QString Views::words(const QString& key) const {
    return localised(key.toUtf8().constData());
}

QString Views::number(int value) const {
    return interfaceLocale().toString(value);
}

void Views::tellSelected(QQuickItem* item) const {
    if (!item || !QAccessible::isActive())
        return;
    QAccessibleEvent event(item, QAccessible::Selection);
    QAccessible::updateAccessibility(&event);
}

void Views::tellFocused(QQuickItem* item) const {
    if (!item || !QAccessible::isActive())
        return;
    QAccessibleEvent event(item, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
    QAccessibleInterface* row = QAccessible::queryAccessibleInterface(item);
    if (row && row->role() == QAccessible::ListItem)
        m_engine->tellActiveRow(*row);
}

void Views::copy(const QString& text) const {
    if (!text.isEmpty())
        m_engine->copyText(text);
}

void Views::pasteInto(QQuickItem* field) {
    m_engine->readText([self = QPointer(this), into = QPointer(field)](const QString& text) {
        if (self && into && !text.isEmpty())
            Q_EMIT self->pasted(into, text);
    });
}

void Views::orderForReading(QQuickItem* content) const {
    if (!content || !QAccessible::isActive())
        return;
    const QList<QQuickItem*> before = content->childItems();
    QList<QQuickItem*> ordered = before;
    std::ranges::stable_sort(ordered, {}, [](const QQuickItem* item) { return item->y(); });
    if (ordered == before)
        return;
    for (qsizetype index = 1; index < ordered.size(); ++index)
        ordered[index]->stackAfter(ordered[index - 1]);
}

} // namespace vellumry
