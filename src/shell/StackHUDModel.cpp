// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/StackHUDModel.h"

#include "foundation/InterfaceLocale.h"
#include "foundation/Localisation.h"
#include "paste/PasteStack.h"

namespace vellumry {

StackHUDModel::StackHUDModel(PasteStack& stack)
    : m_stack(&stack) {
    connect(m_stack, &PasteStack::changed, this, &StackHUDModel::changed);
}

bool StackHUDModel::isOver() const {
    return !m_stack->isActive() && m_stack->pastedCount() > 0;
}

bool StackHUDModel::isReversed() const {
    return m_stack->isReversed();
}

QString StackHUDModel::sentence() const {
    return said(QStringLiteral("<b>%1</b>"));
}

QString StackHUDModel::spoken() const {
    return said(QStringLiteral("%1"));
}

/// `number` is how the number of waiting items is written.
QString StackHUDModel::said(const QString& number) const {
    if (!isOver() && m_stack->count() > 0)
        return localised("%1 to paste").arg(number.arg(interfaceLocale().toString(m_stack->count())));
    if (!isOver())
        return localised("Copy what you need, then ⌘V");
    if (m_stack->pastedCount() == 1)
        return localised("Pasted");
    return localised("All %n pasted", m_stack->pastedCount());
}

QString StackHUDModel::orderHelp() const {
    return m_stack->isReversed() ? localised("Newest first. Click for oldest first")
                                 : localised("Oldest first. Click for newest first");
}

QString StackHUDModel::stopHelp() const {
    return localised("Stop Paste Stack (⌃⌘S)");
}

void StackHUDModel::turnAround() {
    m_stack->setReversed(!m_stack->isReversed());
}

} // namespace vellumry
