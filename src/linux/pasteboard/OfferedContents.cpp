// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/pasteboard/OfferedContents.h"

#include "foundation/UniformType.h"
#include "linux/pasteboard/FileList.h"
#include "linux/pasteboard/TargetCoding.h"

#include <algorithm>

namespace vellumry {

namespace {

QByteArray representation(const PasteboardItem& item, const QString& type) {
    const auto found = item.representations.find(type);
    return found == item.representations.end() ? QByteArray() : found->second;
}

} // namespace

std::shared_ptr<const OfferedContents> OfferedContents::of(std::vector<PasteboardItem> items, FileOperation operation) {
    const auto contents = std::make_shared<OfferedContents>();
    contents->m_items = std::move(items);
    contents->m_operation = operation;
    contents->offerFiles();
    contents->offerText();
    contents->offerRepresentations();
    return contents;
}

QStringList OfferedContents::typesOf(const PasteboardItem& item) {
    QStringList types;
    for (const QString& type : item.order.value_or(QStringList())) {
        if (item.representations.contains(type) && !types.contains(type))
            types.append(type);
    }
    for (const auto& [type, bytes] : item.representations) {
        if (!types.contains(type))
            types.append(type);
    }
    return types;
}

std::optional<QByteArray> OfferedContents::data(const QString& target) const {
    const auto source = m_sources.constFind(target);
    if (source == m_sources.constEnd())
        return std::nullopt;
    return targetcoding::encode(source->uniformType, target, source->bytes);
}

void OfferedContents::offer(const QString& target, const QString& uniformType, const QByteArray& bytes) {
    if (m_sources.contains(target))
        return;
    m_targets.append(target);
    m_sources.insert(target, Source{uniformType, bytes});
}

/// Files of several items are one list to the desktop.
void OfferedContents::offerFiles() {
    QByteArrayList urls;
    for (const PasteboardItem& item : m_items) {
        if (const QByteArray url = representation(item, uniformtype::fileUrl); !url.isEmpty())
            urls.append(url);
    }
    if (!urls.isEmpty()) {
        offer(filelist::uriList, filelist::uriList, filelist::asUriList(urls));
        QByteArray original;
        if (m_operation == FileOperation::asCopied) {
            original = representation(m_items.front(), filelist::copiedFiles);
            if (original.isEmpty())
                original = representation(m_items.front(), filelist::cutSelection);
        }
        offer(filelist::copiedFiles, filelist::copiedFiles, filelist::asCopiedFiles(urls, original));
        const bool hasText = std::ranges::any_of(m_items, [](const PasteboardItem& item) {
            return item.representations.contains(uniformtype::utf8PlainText);
        });
        if (!hasText) {
            for (const QString& target : uniformtype::targetsFor(uniformtype::utf8PlainText))
                offer(target, uniformtype::utf8PlainText, filelist::asPaths(urls));
        }
        return;
    }
    for (const PasteboardItem& item : m_items) {
        if (const QByteArray url = representation(item, uniformtype::url); !url.isEmpty())
            urls.append(url);
    }
    const bool hasList = std::ranges::any_of(
        m_items, [](const PasteboardItem& item) { return item.representations.contains(filelist::uriList); });
    if (!urls.isEmpty() && !hasList)
        offer(filelist::uriList, filelist::uriList, filelist::asUriList(urls));
}

/// The desktop knows one text at a time: those of several items become its lines.
void OfferedContents::offerText() {
    QByteArrayList texts;
    for (const PasteboardItem& item : m_items) {
        const auto found = item.representations.find(uniformtype::utf8PlainText);
        if (found != item.representations.end())
            texts.append(found->second);
    }
    if (texts.isEmpty())
        offerAddressesAsText();
    if (texts.size() < 2)
        return;
    const QByteArray joined = texts.join('\n');
    for (const QString& target : uniformtype::targetsFor(uniformtype::utf8PlainText))
        offer(target, uniformtype::utf8PlainText, joined);
}

/// A link that came without a text, as some browsers give it, still goes into a text field.
void OfferedContents::offerAddressesAsText() {
    QByteArrayList addresses;
    for (const PasteboardItem& item : m_items) {
        const bool hasPicture = std::ranges::any_of(item.representations, [](const auto& entry) {
            return entry.first == uniformtype::png || entry.first == uniformtype::tiff ||
                   entry.first == uniformtype::jpeg || entry.first == uniformtype::heic;
        });
        if (const QByteArray url = representation(item, uniformtype::url); !url.isEmpty() && !hasPicture)
            addresses.append(url);
    }
    if (addresses.isEmpty())
        return;
    for (const QString& target : uniformtype::targetsFor(uniformtype::utf8PlainText))
        offer(target, uniformtype::utf8PlainText, addresses.join('\n'));
}

void OfferedContents::offerRepresentations() {
    for (const PasteboardItem& item : m_items) {
        for (const QString& type : typesOf(item)) {
            // History files of earlier versions hold some that are of no use to anybody.
            if (type == uniformtype::fileUrl || uniformtype::isProcessLocal(type))
                continue;
            QByteArray bytes = representation(item, type);
            if (m_operation == FileOperation::copy)
                bytes = filelist::withoutCut(type, bytes);
            for (const QString& target : uniformtype::targetsFor(type))
                offer(target, type, bytes);
        }
    }
    // Text that Latin-1 has no letters for is not offered as such; long text is not worth looking through for that.
    constexpr qsizetype longText = 1024 * 1024;
    for (const QString& latin : {QStringLiteral("STRING"), QStringLiteral("COMPOUND_TEXT")}) {
        const auto source = m_sources.constFind(latin);
        if (source != m_sources.constEnd() && (source->bytes.size() > longText || !data(latin))) {
            m_sources.remove(latin);
            m_targets.removeAll(latin);
        }
    }
}

} // namespace vellumry
