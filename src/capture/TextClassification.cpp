// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/TextClassification.h"

#include "capture/ContentDetection.h"
#include "capture/DraftTitles.h"
#include "capture/SourceUrl.h"
#include "foundation/Text.h"
#include "foundation/UniformType.h"

#include <array>
#include <cmath>
#include <cstring>

namespace vellumry {

namespace {

constexpr qsizetype longestSearchText = 200'000;
constexpr qsizetype longestColor = 64;
/// Only short texts can be codes, and parsing a web archive for every long copy would be waste.
constexpr qsizetype longestCode = 24;

bool has(const PasteboardItem& item, const QString& type) {
    return item.representations.contains(type);
}

/// The hexadecimal form of application/x-color (freedesktop drag-and-drop): red, green, blue and opacity as 16-bit
/// numbers of the machine's own byte order. Opacity is dropped.
std::optional<QString> hexadecimalColor(const PasteboardItem& item) {
    const auto found = item.representations.find(uniformtype::color);
    std::array<quint16, 4> channels{};
    if (found == item.representations.end() || found->second.size() != qsizetype(sizeof channels))
        return std::nullopt;
    std::memcpy(channels.data(), found->second.constData(), sizeof channels);
    QString result = QStringLiteral("#");
    for (const quint16 channel : {channels[0], channels[1], channels[2]}) {
        const auto value = static_cast<int>(std::lround(channel * 255.0 / 65535.0));
        result += QStringLiteral("%1").arg(value, 2, 16, QLatin1Char('0')).toUpper();
    }
    return result;
}

bool classifyColor(ClipDraft& draft, const PasteboardItem& item) {
    const auto color = hexadecimalColor(item);
    if (!color)
        return false;
    draft.kind = ClipKind::color;
    draft.title = *color;
    draft.searchText = *color;
    return true;
}

bool isSensitive(const QString& text, const PasteboardItem& item, const std::optional<QString>& sourceBundleID) {
    if (isCardNumber(text))
        return true;
    const bool mayBeCode = !text::hasMoreCharactersThan(text, longestCode);
    const std::optional<QUrl> page = mayBeCode ? sourceURL(item) : std::nullopt;
    return isOneTimeCode(text, sourceBundleID, page) || isSecretToken(text);
}

} // namespace

bool classifyText(ClipDraft& draft) {
    if (draft.payload.items.empty())
        return false;
    const PasteboardItem& item = draft.payload.items.front();
    const std::optional<QString> text = plainText(item);
    if (!text || text::isBlank(*text))
        return classifyColor(draft, item);

    draft.searchText = text::firstCharacters(*text, longestSearchText);
    draft.title = titleOf(*text);
    const QString trimmed = text::trimmed(*text);

    if (!text::hasMoreCharactersThan(trimmed, longestColor) && detectColor(trimmed)) {
        draft.kind = ClipKind::color;
        draft.title = trimmed;
    } else if (detectLink(trimmed) || (has(item, uniformtype::url) && !trimmed.contains(u'\n'))) {
        draft.kind = ClipKind::link;
        draft.title = trimmed;
    } else {
        const bool isStyled = has(item, uniformtype::rtf) || has(item, uniformtype::html);
        draft.kind = isStyled ? ClipKind::richText : ClipKind::text;
        draft.isSensitive = isSensitive(*text, item, draft.sourceBundleID);
    }
    return true;
}

} // namespace vellumry
