// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelFacade.h"

#include "foundation/Localisation.h"
#include "foundation/Text.h"
#include "history/clips/ClipStore.h"
#include "panel/KeyTranslation.h"
#include "paste/PasteStack.h"

#include <QLocale>
#include <utility>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

/// As long as the rows of a hidden panel may show what was deleted.
constexpr auto catchUpDelay = 500ms;

} // namespace

PanelFacade::PanelFacade(PanelModel& model, Pasteboard& pasteboard, std::function<QString()> openPanelKeys)
    : m_model(&model)
    , m_pasteboard(pasteboard)
    , m_openPanelKeys(std::move(openPanelKeys))
    , m_rows(model, {localised("⌘") + QStringLiteral("%1"), localised("⌃") + localised("⌥") + QStringLiteral("%1")})
    , m_filters(model) {
    tellHints();
    connect(m_model, &PanelModel::queryChanged, this, [this] {
        m_typed.reset();
        Q_EMIT queryChanged();
    });
    connect(m_model, &PanelModel::filterChanged, this, &PanelFacade::filterChanged);
    connect(m_model, &PanelModel::sectionsChanged, this, &PanelFacade::tellContent);
    connect(m_model, &PanelModel::selectionChanged, this, &PanelFacade::tellSelection);
    m_catchUp.setSingleShot(true);
    m_catchUp.setInterval(catchUpDelay);
    connect(&m_catchUp, &QTimer::timeout, this, &PanelFacade::catchUp);
    connect(&m_rows, &PanelListModel::fellBehind, &m_catchUp, qOverload<>(&QTimer::start));
    connect(m_model, &PanelModel::focusTokenChanged, this, &PanelFacade::focusTokenChanged);
    connect(m_model, &PanelModel::transformChanged, this, &PanelFacade::transformChanged);
}

void PanelFacade::setQuery(const QString& text) {
    const bool isDue = m_typed.has_value();
    m_typed = text;
    if (!isDue)
        QMetaObject::invokeMethod(this, &PanelFacade::searchTyped, Qt::QueuedConnection);
}

void PanelFacade::searchTyped() {
    if (const auto typed = std::exchange(m_typed, std::nullopt))
        m_model->searchTextEdited(*typed);
}

void PanelFacade::setFilter(int filter) {
    searchTyped();
    m_model->setFilterIndex(filter);
}

bool PanelFacade::keyPressed(int key, int modifiers, quint32 scanCode, bool hasTextSelection) {
    const auto place = [this, scanCode] { return keyCodeOf ? keyCodeOf(scanCode) : std::nullopt; };
    const KeyMeaning meaning = meaningOf(key, Qt::KeyboardModifiers(modifiers), query().isEmpty(), place);
    // A command is meant for what was typed before it; a letter has time.
    if (meaning.command || meaning.chord)
        searchTyped();
    if (meaning.command)
        return m_model->handle(*meaning.command);
    if (meaning.chord)
        return m_model->keyEquivalent(meaning.chord->keyCode, meaning.chord->flags, hasTextSelection);
    return false;
}

void PanelFacade::pasteIntoField() {
    // One at a time: keys pressed while an owner keeps silent shall not pile up.
    if (m_fetchedFor != m_showing)
        fetchPasted(m_showing);
}

/// The text belongs to the showing in which it was asked for.
QCoro::Task<void> PanelFacade::fetchPasted(int showing) {
    const QPointer<PanelFacade> self(this);
    m_fetchedFor = showing;
    auto fetching = m_pasteboard.text();
    const QString text = co_await fetching;
    if (!self)
        co_return;
    if (std::exchange(m_fetchedFor, -1) == showing && showing == m_showing && !text.isEmpty())
        Q_EMIT pasted(text);
}

void PanelFacade::copyFromField(const QString& text) {
    if (!text.isEmpty())
        m_pasteboard.setText(text);
}

bool PanelFacade::isStackActive() const {
    return m_stack && m_stack->isActive();
}

void PanelFacade::setStack(PasteStack& stack) {
    m_stack = &stack;
    connect(&stack, &PasteStack::changed, this, &PanelFacade::stackChanged);
    Q_EMIT stackChanged();
}

void PanelFacade::toggleStack() {
    m_model->onToggleStack(m_model->stackSeed());
}

void PanelFacade::present() {
    ++m_showing;
    Q_EMIT presented();
}

void PanelFacade::setDormant(bool isDormant) {
    if (isDormant == m_rows.isDormant())
        return;
    m_rows.setDormant(isDormant);
    if (!isDormant)
        catchUp();
}

void PanelFacade::catchUp() {
    m_catchUp.stop();
    m_rows.catchUp();
    m_filters.refresh();
    Q_EMIT contentChanged();
    Q_EMIT primaryRowChanged();
    tellHints();
}

void PanelFacade::tellContent() {
    if (m_rows.isDormant())
        return;
    m_filters.refresh();
    Q_EMIT contentChanged();
    Q_EMIT primaryRowChanged();
}

void PanelFacade::tellSelection() {
    if (m_rows.isDormant())
        return;
    Q_EMIT primaryRowChanged();
    tellHints();
}

void PanelFacade::rowHovered(int row) {
    const ClipRef clip = m_rows.clipAt(row);
    m_model->setHoveredID(clip ? std::optional(clip->id) : std::nullopt);
}

QString PanelFacade::helpOf(int row) const {
    return m_rows.clipAt(row) ? m_rows.data(m_rows.index(row), PanelListModel::PinHintRole).toString() : QString();
}

void PanelFacade::rowPressed(int row, int modifiers) {
    if (const ClipRef clip = m_rows.clipAt(row))
        m_collapsesOnRelease = m_model->click(clip->id, eventFlags(Qt::KeyboardModifiers(modifiers)));
}

void PanelFacade::rowReleased(int row) {
    const ClipRef clip = m_rows.clipAt(row);
    if (m_collapsesOnRelease && clip)
        m_model->selectOnly(clip->id);
    m_collapsesOnRelease = false;
}

void PanelFacade::rowDoubleClicked(int row) {
    m_collapsesOnRelease = false;
    if (const ClipRef clip = m_rows.clipAt(row))
        m_model->pasteRow(clip->id);
}

void PanelFacade::transformChosen(int index) {
    const ClipRef clip = m_model->currentClip();
    if (!clip || index < 0 || index >= static_cast<int>(PanelModel::transformList.size()))
        return;
    m_model->toggleTransforms();
    m_model->pasteClip(clip, true, PanelModel::transformList[static_cast<std::size_t>(index)]);
}

void PanelFacade::grabbed() {
    onGrabbed();
}
void PanelFacade::dragged() {
    onDragged();
}
void PanelFacade::dropped() {
    onDropped();
}

bool PanelFacade::hasQuery() const {
    return !text::isBlank(m_model->query());
}

QStringList PanelFacade::emptyLines() const {
    if (hasQuery())
        return {localised("No clips match “") + m_model->query() + QStringLiteral("”")};
    // The sentence names the default keys; who chose others reads those.
    QString invitation = localised("Press ⌃⌘V anytime to open Vellumry.");
    invitation.replace(localised("⌃") + localised("⌘") + QLatin1Char('V'), m_openPanelKeys());
    return {localised("Nothing here yet"), localised("Copy something. It shows up here."), invitation};
}

QString PanelFacade::countText() const {
    return QLocale().toString(m_model->count(ClipFilter::all)) + localised(" clips · encrypted on this Mac");
}

void PanelFacade::tellHints() {
    const bool several = m_model->selectedCount() > 1;
    m_hints.setHints({
        {QStringLiteral("↑↓"), localised("Choose")},
        {localised("↩"), several ? localised("Merge & paste") : localised("Paste")},
        {localised("⇧↩"), localised("Plain text")},
        {localised("⌘") + QLatin1Char('T'), localised("Transform")},
        {localised("⌘⌫"), localised("Delete")},
    });
}

QStringList PanelFacade::transforms() const {
    QStringList titles;
    for (const TextTransform transform : PanelModel::transformList)
        titles.append(transformTitle(transform));
    return titles;
}

void PanelFacade::setShadowMargin(int shadowMargin) {
    if (m_shadowMargin == shadowMargin)
        return;
    m_shadowMargin = shadowMargin;
    Q_EMIT shadowMarginChanged();
}

} // namespace vellumry
