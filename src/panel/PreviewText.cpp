// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PreviewText.h"

#include "foundation/Text.h"
#include "history/clips/ClipStore.h"
#include "panel/PreviewContent.h"
#include "panel/StyledPreview.h"
#include "panel/TextSlices.h"

#include <QPointer>
#include <utility>

namespace vellumry {

namespace {

/// A clip keeps the first 200,000 characters of its text: with fewer bytes it has all of it.
constexpr qsizetype wholeBelow = 200'000;
/// Transformed at once; longer ones elsewhere.
constexpr qsizetype transformedAtOnce = 20'000;

/// Searched at once for the first hit; longer ones elsewhere.
constexpr qsizetype searchedAtOnce = 64'000;

/// The clip has a form of its text with styles, which the transforms have not.
bool hasStyles(const ClipRef& clip, std::optional<TextTransform> transform) {
    return clip->kind == ClipKind::richText && !transform;
}

QByteArray transformed(QByteArray text, std::optional<TextTransform> transform) {
    return transform ? apply(*transform, QString::fromUtf8(text)).toUtf8() : text;
}

} // namespace

PreviewText::PreviewText(ClipStore& store, QObject* parent)
    : QObject(parent)
    , m_store(&store) {}

PreviewText::~PreviewText() = default;

SerialExecutor& PreviewText::executor() {
    if (!m_executor)
        m_executor = std::make_unique<SerialExecutor>("preview");
    return *m_executor;
}

void PreviewText::show(const ClipRef& clip, std::optional<TextTransform> transform, int tabWidth) {
    Wanted wanted{clip, transform};
    const bool isSameText = m_wanted && m_wanted->clip->id == clip->id &&
                            m_wanted->clip->searchText == clip->searchText && m_wanted->transform == transform;
    if (isSameText)
        return;
    const bool isOtherClip = !m_wanted || m_wanted->clip->id != clip->id;
    m_wanted = wanted;
    m_tabWidth = tabWidth;
    if (isOtherClip)
        m_characters.reset();
    showBeginning(wanted, tabWidth);
    if (!m_isWorking && m_loaded != m_wanted)
        work();
}

void PreviewText::clear() {
    m_wanted.reset();
    m_loaded.reset();
    m_characters.reset();
    m_lines.clear();
    setHit(-1);
}

void PreviewText::setQuery(const QString& query) {
    if (m_query == query)
        return;
    m_query = query;
    m_lines.setQuery(query);
    findHit();
}

/// Brings the first hit into sight; looked for elsewhere where that takes its time.
void PreviewText::findHit() {
    if (m_query.isEmpty())
        setHit(-1);
    else if (m_lines.text().size() <= searchedAtOnce)
        setHit(textslices::firstHit(m_lines.text(), m_lines.starts(), m_query));
    else
        findHitElsewhere();
}

QCoro::Task<void> PreviewText::findHitElsewhere() {
    const QPointer<PreviewText> self(this);
    const QByteArray text = m_lines.text();
    const QString query = m_query;
    auto finding =
        executor().run([text, starts = m_lines.starts(), query] { return textslices::firstHit(text, starts, query); });
    const int row = co_await finding;
    if (self && m_query == query && m_lines.text() == text)
        setHit(row);
}

void PreviewText::setHit(int row) {
    const bool isNone = row < 0 && m_hitRow < 0;
    m_hitRow = row;
    if (!isNone)
        Q_EMIT hitChanged();
}

/// What can be shown without waiting: all of most texts, the beginning of a long one.
void PreviewText::showBeginning(const Wanted& wanted, int tabWidth) {
    const QByteArray& kept = wanted.clip->searchText.utf8();
    const bool isShort = kept.size() <= transformedAtOnce;
    if (wanted.transform && !isShort)
        return; // the text before stays until the transformed one is there
    QByteArray text = transformed(kept, wanted.transform);
    auto starts = textslices::startsOf(text);
    m_lines.setContent({std::move(text), std::move(starts), {}}, tabWidth);
    findHit();
    if (isShort && !hasStyles(wanted.clip, wanted.transform))
        m_loaded = wanted;
}

/// One text at a time; what was passed over meanwhile is never loaded.
QCoro::Task<void> PreviewText::work() {
    const QPointer<PreviewText> self(this);
    m_isWorking = true;
    while (self && m_wanted && m_loaded != m_wanted) {
        const Wanted wanted = *m_wanted;
        auto loading = load(wanted);
        co_await loading;
        if (self && m_wanted && isWanted(wanted))
            m_loaded = wanted;
    }
    if (self)
        m_isWorking = false;
}

QCoro::Task<void> PreviewText::load(Wanted wanted) {
    const QPointer<PreviewText> self(this);
    std::vector<PasteboardItem> items;
    if (wanted.clip->searchText.utf8().size() >= wholeBelow || hasStyles(wanted.clip, wanted.transform)) {
        auto loading = m_store->payload(wanted.clip->id);
        std::optional<ClipPayload> payload = co_await loading;
        if (!self || !isWanted(wanted))
            co_return;
        if (payload)
            items = std::move(payload->items);
    }
    const QByteArray shown = m_lines.text();
    auto preparing = executor().run([items, wanted, shown] { return prepare(items, wanted, shown); });
    Prepared prepared = co_await preparing;
    if (!self || !isWanted(wanted))
        co_return;
    const QByteArray text = prepared.plain;
    showPrepared(std::move(prepared));
    if (wanted.transform || m_characters || text.size() <= countedAtOnce)
        co_return;
    auto counting = executor().run([text] { return text::characterCount(QString::fromUtf8(text)); });
    const qsizetype characters = co_await counting;
    if (!self || !isWanted(wanted))
        co_return;
    m_characters = characters;
    Q_EMIT charactersChanged();
}

/// On the executor: the whole text, with its styles where the clip has them.
PreviewText::Prepared PreviewText::prepare(const std::vector<PasteboardItem>& items, const Wanted& wanted,
                                           const QByteArray& shown) {
    const auto whole = plainText(items);
    Prepared prepared;
    prepared.plain = transformed(whole ? whole->toUtf8() : wanted.clip->searchText.utf8(), wanted.transform);
    if (hasStyles(wanted.clip, wanted.transform)) {
        if (auto styled = styledpreview::contentOf(items)) {
            prepared.content = std::move(*styled);
            return prepared;
        }
    }
    prepared.content.text = prepared.plain;
    prepared.content.starts = textslices::startsOf(prepared.content.text);
    prepared.continues = !wanted.transform && prepared.content.text.startsWith(shown);
    return prepared;
}

void PreviewText::showPrepared(Prepared prepared) {
    const bool isStyled = !prepared.content.runs.empty();
    if (prepared.continues)
        m_lines.extendTo(std::move(prepared.content.text), std::move(prepared.content.starts));
    else
        m_lines.setContent(std::move(prepared.content), isStyled ? 0 : m_tabWidth);
    findHit();
}

} // namespace vellumry
