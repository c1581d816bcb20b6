// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/PasteboardWriter.h"

#include "foundation/UniformType.h"
#include "history/clips/Clip.h"
#include "platform/display/Pasteboard.h"

#include <algorithm>

namespace vellumry {

namespace {

// Decoding leaves it out.
constexpr QByteArrayView byteOrderMark{"\xEF\xBB\xBF"};
// Whether a longer one is UTF-8 takes more time to find out than a key can wait on a busy machine.
constexpr qsizetype longestCheckedText = 16 * 1024 * 1024;

bool staysBehind(const QString& type) {
    return type.startsWith(u"dyn.") || type.startsWith(u"CorePasteboardFlavorType") || type.startsWith(u"NeXT ") ||
           (type.startsWith(u"Apple ") && type.endsWith(u"pasteboard type")) ||
           (type.startsWith(u"NS") && type.endsWith(u"PboardType")) ||
           type == u"com.apple.traditional-mac-plain-text" ||
           // It was about the other program's copy, and not about ours.
           uniformtype::isRefusalMark(type);
}

void addMarker(PasteboardItem& item) {
    item.representations.insert_or_assign(uniformtype::ownMarker, QByteArray(""));
    item.order->removeAll(uniformtype::ownMarker);
    item.order->append(uniformtype::ownMarker);
}

/// What `plainText` gives, as UTF-8. A text that is that already is not decoded: a key of the user may be waiting, and
/// texts may be very long.
std::optional<QByteArray> plainBytes(const std::vector<PasteboardItem>& items) {
    const bool hasFiles = std::ranges::any_of(
        items, [](const PasteboardItem& item) { return item.representations.contains(uniformtype::fileUrl); });
    if (!items.empty() && !hasFiles) {
        const auto found = items.front().representations.find(uniformtype::utf8PlainText);
        if (found != items.front().representations.end() && !found->second.startsWith(byteOrderMark) &&
            (found->second.size() > longestCheckedText || found->second.isValidUtf8()))
            return found->second;
    }
    const auto text = plainText(items);
    return text ? std::optional(text->toUtf8()) : std::nullopt;
}

std::vector<PasteboardItem> textItems(const QByteArray& utf8) {
    PasteboardItem item{{{uniformtype::utf8PlainText, utf8}}, QStringList{uniformtype::utf8PlainText}};
    addMarker(item);
    return {item};
}

std::vector<PasteboardItem> makePasteboardItems(const std::vector<PasteboardItem>& items) {
    std::vector<PasteboardItem> made;
    made.reserve(items.size());
    for (const auto& item : items)
        made.push_back(PasteboardWriter::makePasteboardItem(item, qsizetype(made.size())));
    return made;
}

} // namespace

PasteboardItem PasteboardWriter::makePasteboardItem(const PasteboardItem& item, qsizetype index) {
    auto types = orderedTypes(item);
    types.removeIf(staysBehind);
    // A program that looks at the first type only must see a file, whatever else stands for it.
    if (const auto position = types.indexOf(uniformtype::fileUrl); position > 0)
        types.move(position, 0);

    PasteboardItem result;
    result.order.emplace();
    for (const auto& type : types) {
        if (const auto found = item.representations.find(type); found != item.representations.end()) {
            result.representations.insert(*found);
            result.order->append(type);
        }
    }
    if (index == 0)
        addMarker(result);
    return result;
}

std::optional<std::vector<PasteboardItem>> PasteboardWriter::prepared(const std::vector<PasteboardItem>& items,
                                                                      bool asPlainText) {
    if (!asPlainText)
        return makePasteboardItems(items);
    const auto bytes = plainBytes(items);
    return bytes ? std::optional(textItems(*bytes)) : std::nullopt;
}

bool PasteboardWriter::write(const std::vector<PasteboardItem>& items, bool asPlainText, Pasteboard& pasteboard) {
    auto made = prepared(items, asPlainText);
    return made && pasteboard.write(std::move(*made));
}

bool PasteboardWriter::takeOver(const std::vector<PasteboardItem>& items, Pasteboard& pasteboard) {
    return pasteboard.takeOver(makePasteboardItems(items));
}

bool PasteboardWriter::writeText(const QString& text, Pasteboard& pasteboard) {
    return pasteboard.write(textItems(text.toUtf8()));
}

} // namespace vellumry
