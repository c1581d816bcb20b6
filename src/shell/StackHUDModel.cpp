// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/StackHUDModel.h"

#include "foundation/Localisation.h"
#include "paste/PasteStack.h"

#include <QLocale>

namespace vellumry {

StackHUDModel::StackHUDModel(PasteStack& stack)
    : m_stack(&stack) {
    connect(m_stack, &PasteStack::changed, this, &StackHUDModel::changed);
}

bool StackHUDModel::isOver() const {
    return !m_stack->isActive() && m_stack->pastedCount() > 0;
}

bool StackHUDModel::countsDown() const {
    return !isOver() && m_stack->count() > 0;
}

bool StackHUDModel::isReversed() const {
    return m_stack->isReversed();
}

QString StackHUDModel::number() const {
    return countsDown() ? QLocale().toString(m_stack->count()) : QString();
}

QString StackHUDModel::sentence() const {
    if (countsDown())
        return localised("to paste");
    if (!isOver())
        return localised("Copy what you need, then ⌘V");
    if (m_stack->pastedCount() == 1)
        return localised("Pasted");
    return localised("All %1 pasted").arg(QLocale().toString(m_stack->pastedCount()));
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
