// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelFacade.h"

#include "foundation/Localisation.h"
#include "foundation/Text.h"
#include "history/clips/ClipStore.h"
#include "paste/PasteStack.h"

#include <algorithm>
#include <utility>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

/// As long as the rows of a hidden panel may hold what was deleted.
constexpr auto catchUpDelay = 500ms;

} // namespace

PanelFacade::PanelFacade(PanelModel& model, Pasteboard& pasteboard, std::function<QString()> openPanelKeys)
    : m_model(&model)
    , m_pasteboard(pasteboard)
    , m_openPanelKeys(std::move(openPanelKeys))
    , m_rows(model, localised("⌃") + localised("⌥") + QStringLiteral("%1"))
    , m_filters(model)
    , m_drag(model) {
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
    connect(&m_rows, &PanelListModel::gapClosed, this, [this](int row, int clips, int headers) {
        if (!m_isStill)
            Q_EMIT gapClosed(row, clips, headers);
    });
    connect(&m_rows, &PanelListModel::fellBehind, this, [this] {
        if (!m_catchUp.isActive())
            m_catchUp.start();
    });
    connect(m_model, &PanelModel::focusTokenChanged, this, &PanelFacade::focusTokenChanged);
    connect(m_model, &PanelModel::transformChanged, this, &PanelFacade::transformChanged);
    connect(m_model, &PanelModel::undoChanged, this, &PanelFacade::undoChanged);
    connect(m_model, &PanelModel::undoChanged, this, &PanelFacade::countTextChanged);
    connect(m_model, &PanelModel::hasAccessibilityChanged, this, &PanelFacade::hasAccessibilityChanged);
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

void PanelFacade::pasteIntoField() {
    // One at a time: keys pressed while an owner stalls must not pile up.
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
    m_menu.close();
    m_drag.forget();
    m_followsDrag = false;
    ++m_showing;
    Q_EMIT presented();
}

void PanelFacade::setDormant(bool isDormant) {
    if (isDormant == m_rows.isDormant())
        return;
    if (isDormant)
        m_drag.cancel();
    m_rows.setDormant(isDormant);
    if (isDormant)
        m_menu.close();
    else
        catchUp();
}

void PanelFacade::catchUp() {
    m_catchUp.stop();
    m_rows.catchUp();
    m_filters.refresh();
    Q_EMIT primaryRowChanged();
    Q_EMIT contentChanged();
    Q_EMIT revealed();
    tellHints();
}

void PanelFacade::tellContent() {
    if (m_rows.isDormant() || m_rows.isHeld())
        return;
    closeStaleMenu();
    m_filters.refresh();
    Q_EMIT primaryRowChanged();
    Q_EMIT contentChanged();
    tellHints();
}

void PanelFacade::tellSelection() {
    if (m_rows.isDormant())
        return;
    Q_EMIT primaryRowChanged();
    if (!m_isPointing)
        Q_EMIT revealed();
    tellHints();
}

bool PanelFacade::hasQuery() const {
    return !text::isBlank(m_model->query());
}

QStringList PanelFacade::emptyLines() const {
    if (hasQuery()) {
        QStringList lines{localised("No clips match “%1”").arg(m_model->query())};
        if (m_model->store().isLoading())
            lines.append(localised("Loading the history…"));
        return lines;
    }
    return {localised("Nothing here yet"), localised("Copy something. It shows up here."),
            localised("Press %1 anytime to open Vellumry.").arg(m_openPanelKeys())};
}

QString PanelFacade::countText() const {
    if (const int deleted = m_model->undoCount(); deleted > 0)
        return localised("%n clips deleted", deleted);
    if (const int chosen = m_model->selectedCount(); chosen > 1)
        return localised("%n clips selected", chosen);
    const auto count = static_cast<int>(m_model->count(ClipFilter::all));
    if (m_model->store().isLoading())
        return localised("Loading the history…");
    return m_model->store().isMemoryOnly() ? localised("%n clips · Not saved: kept until you quit", count)
                                           : localised("%n clips · encrypted on this Mac", count);
}

/// What the keys do with what is chosen now; a key that would do nothing is not named.
void PanelFacade::tellHints() {
    Q_EMIT countTextChanged();
    const std::vector<ClipRef> chosen = m_model->selectedClips();
    std::vector<HintListModel::Hint> hints;
    if (!chosen.empty())
        hints.push_back({QStringLiteral("↑↓"), localised("Choose"), 4});
    const bool hasImage =
        std::ranges::any_of(chosen, [](const ClipRef& clip) { return clip->kind == ClipKind::image; });
    if (chosen.size() > 1) {
        if (!hasImage)
            hints.push_back({localised("↩"), localised("Merge & paste"), 0});
    } else if (chosen.size() == 1) {
        const Clip& clip = *chosen.front();
        hints.push_back({localised("↩"), localised("Paste"), 0});
        if (clip.kind == ClipKind::text || clip.kind == ClipKind::richText)
            hints.push_back({localised("⇧↩"), localised("Plain text"), 1});
        if (clip.canBeTransformed())
            hints.push_back({localised("⌘") + QLatin1Char('T'), localised("Transform"), 3});
    }
    if (!chosen.empty())
        hints.push_back({localised("⌘⌫"), localised("Delete"), 2});
    m_hints.setHints(std::move(hints));
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
