// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/StackHUDModel.h"

#include "foundation/InterfaceLocale.h"
#include "foundation/Localisation.h"
#include "foundation/Text.h"
#include "foundation/UniformType.h"
#include "paste/PasteStack.h"

namespace vellumry {

namespace {

/// What the bar has room for, and some more.
constexpr qsizetype longestNext = 120;
/// A long text is not decoded for its first words.
constexpr qsizetype bytesLooked = 4 * longestNext;

QString firstWords(const PasteStack::Item& item) {
    if (item.payload.items.empty())
        return {};
    const auto& forms = item.payload.items.front().representations;
    const auto utf8 = forms.find(uniformtype::utf8PlainText);
    const QString text = utf8 != forms.end() ? QString::fromUtf8(utf8->second.left(bytesLooked))
                                             : plainText(item.payload.items).value_or(QString());
    return text::firstCharacters(text.left(bytesLooked).simplified(), longestNext);
}

} // namespace

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

QString StackHUDModel::next() const {
    const PasteStack::Item* item = m_stack->isActive() ? m_stack->nextItem() : nullptr;
    if (item == nullptr)
        return {};
    if (item->isSensitive)
        return localised("Hidden");
    if (item->kind == ClipKind::image)
        return localised("Image");
    QStringList names;
    for (const FileRef& file : item->files)
        names.append(file.name);
    return names.isEmpty() ? firstWords(*item) : names.join(QStringLiteral(", ")).left(longestNext);
}

QString StackHUDModel::spokenNext() const {
    const QString words = next();
    return words.isEmpty() ? QString() : localised("Next: %1").arg(words);
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
