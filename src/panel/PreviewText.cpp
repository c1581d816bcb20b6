// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PreviewText.h"

#include "foundation/Text.h"
#include "history/clips/ClipStore.h"
#include "panel/PreviewContent.h"
#include "panel/TextSlices.h"

#include <QPointer>
#include <utility>

namespace vellumry {

namespace {

/// A clip keeps the first 200,000 characters of its text: with fewer bytes it has all of it.
constexpr qsizetype wholeBelow = 200'000;
/// Transformed at once; longer ones elsewhere.
constexpr qsizetype transformedAtOnce = 20'000;

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
}

/// What can be shown without waiting: all of most texts, the beginning of a long one.
void PreviewText::showBeginning(const Wanted& wanted, int tabWidth) {
    const QByteArray& kept = wanted.clip->searchText.utf8();
    const bool isShort = kept.size() <= transformedAtOnce;
    if (wanted.transform && !isShort)
        return; // the text before stays until the transformed one is there
    QByteArray text = transformed(kept, wanted.transform);
    auto starts = textslices::startsOf(text);
    m_lines.setText(std::move(text), std::move(starts), tabWidth);
    if (isShort)
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
    if (wanted.clip->searchText.utf8().size() >= wholeBelow) {
        auto loading = m_store->payload(wanted.clip->id);
        std::optional<ClipPayload> payload = co_await loading;
        if (!self || !isWanted(wanted))
            co_return;
        if (payload)
            items = std::move(payload->items);
    }
    const QByteArray shown = m_lines.text();
    auto preparing = executor().run([items, clip = wanted.clip, transform = wanted.transform, shown] {
        const auto whole = plainText(items);
        Prepared prepared;
        prepared.text = transformed(whole ? whole->toUtf8() : clip->searchText.utf8(), transform);
        prepared.starts = textslices::startsOf(prepared.text);
        prepared.continues = !transform && prepared.text.startsWith(shown);
        return prepared;
    });
    Prepared prepared = co_await preparing;
    if (!self || !isWanted(wanted))
        co_return;
    const QByteArray text = prepared.text;
    if (prepared.continues)
        m_lines.extendTo(std::move(prepared.text), std::move(prepared.starts));
    else
        m_lines.setText(std::move(prepared.text), std::move(prepared.starts), m_tabWidth);
    if (wanted.transform || m_characters)
        co_return;
    auto counting = executor().run([text] { return text::characterCount(QString::fromUtf8(text)); });
    const qsizetype characters = co_await counting;
    if (!self || !isWanted(wanted))
        co_return;
    m_characters = characters;
    Q_EMIT charactersChanged();
}

} // namespace vellumry
