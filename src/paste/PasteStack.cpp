// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/PasteStack.h"

#include "paste/PasteboardWriter.h"
#include "platform/display/Pasteboard.h"

#include <iterator>
#include <utility>

namespace vellumry {

PasteStack::PasteStack(Pasteboard& pasteboard, std::function<bool()> plainText, ResolvingFiles resolvingFiles,
                       QObject* parent)
    : QObject(parent)
    , m_pasteboard(&pasteboard)
    , m_plainText(std::move(plainText))
    , m_resolvingFiles(std::move(resolvingFiles)) {}

PasteStack::~PasteStack() = default;

void PasteStack::start(std::vector<Item> items) {
    m_items = std::move(items);
    m_pastedCount = 0;
    m_isActive = true;
    Q_EMIT changed();
}

void PasteStack::stop() {
    m_items.clear();
    m_pastedCount = 0;
    m_isActive = false;
    Q_EMIT changed();
}

void PasteStack::enqueue(Item item) {
    if (!m_isActive)
        return;
    m_items.push_back(std::move(item));
    Q_EMIT changed();
}

void PasteStack::setReversed(bool value) {
    if (m_isReversed == value)
        return;
    m_isReversed = value;
    Q_EMIT changed();
}

const PasteStack::Item* PasteStack::nextItem() const {
    if (m_items.empty())
        return nullptr;
    return m_isReversed ? &m_items.back() : &m_items.front();
}

bool PasteStack::pasteNext() {
    if (!m_isActive)
        return false;

    while (!m_items.empty()) {
        const Item item = takeNext();
        auto contents = contentsOf(item);
        if (contents && m_pasteboard->write(std::move(*contents))) {
            ++m_pastedCount;
            if (onWritten)
                onWritten(item);
            if (m_items.empty())
                finish();
            else
                Q_EMIT changed();
            return true;
        }
        Q_EMIT changed();
        if (onSkip)
            onSkip(item);
    }

    // Nothing was pasted yet: it waits for copies. After a paste there is nothing left to wait for.
    if (m_isActive && m_pastedCount > 0)
        finish();
    return false;
}

PasteStack::Item PasteStack::takeNext() {
    const auto next = m_isReversed ? std::prev(m_items.end()) : m_items.begin();
    Item item = std::move(*next);
    m_items.erase(next);
    return item;
}

std::optional<std::vector<PasteboardItem>> PasteStack::contentsOf(const Item& item) const {
    const bool hasPlainForm =
        item.kind == ClipKind::text || item.kind == ClipKind::richText || item.kind == ClipKind::link;
    if (item.kind != ClipKind::file)
        return PasteboardWriter::prepared(item.payload.items, hasPlainForm && m_plainText());
    const auto items = m_resolvingFiles(item.payload.items, item.files);
    return items ? PasteboardWriter::prepared(*items, false) : std::nullopt;
}

std::optional<std::vector<PasteboardItem>> PasteStack::nextContents() const {
    const auto count = m_items.size();
    for (std::size_t i = 0; m_isActive && i < count; ++i) {
        if (auto contents = contentsOf(m_items[m_isReversed ? count - 1 - i : i]))
            return contents;
    }
    return std::nullopt;
}

void PasteStack::finish() {
    m_isActive = false;
    Q_EMIT changed();
    if (onFinish)
        onFinish();
}

} // namespace vellumry
