// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/ClipFingerprint.h"

#include "foundation/FileUrl.h"
#include "foundation/UniformType.h"

#include <algorithm>
#include <array>

namespace vellumry {

namespace {

/// The one representation that stands for a picture: of the first item that has any of the four, the best.
QByteArray imageBytes(const ClipPayload& payload) {
    for (const PasteboardItem& item : payload.items) {
        for (const QString& type : {uniformtype::png, uniformtype::tiff, uniformtype::jpeg, uniformtype::heic}) {
            const auto found = item.representations.find(type);
            if (found != item.representations.end())
                return found->second;
        }
    }
    return payload.canonicalData();
}

/// Names that are not UTF-8 may share one path, in which replacement characters stand: their addresses tell them apart.
QByteArrayList ambiguousAddresses(const ClipPayload& payload) {
    QByteArrayList addresses;
    for (const PasteboardItem& item : payload.items) {
        const auto url = item.representations.find(uniformtype::fileUrl);
        const auto path = url == item.representations.end() ? std::nullopt : fileurl::pathOf(url->second);
        if (path && path->contains(QChar::ReplacementCharacter))
            addresses.append(url->second);
    }
    return addresses;
}

QByteArray pathBytes(const ClipDraft& draft) {
    QByteArrayList paths = ambiguousAddresses(draft.payload);
    const bool hasAddresses = !paths.isEmpty();
    for (const FileRef& file : draft.files) {
        if (!hasAddresses || !file.path.contains(QChar::ReplacementCharacter))
            paths.append(file.path.toUtf8());
    }
    std::ranges::sort(paths);
    return paths.join('\n');
}

/// The bytes of `plainText` where they stand in the payload already; most copies are nothing but text, and decoding a
/// long one only to encode it again takes longer than its code.
const QByteArray* standingTextBytes(const ClipPayload& payload) {
    const auto isFile = [](const PasteboardItem& item) { return item.representations.contains(uniformtype::fileUrl); };
    if (payload.items.empty() || std::ranges::any_of(payload.items, isFile))
        return nullptr;
    const auto& representations = payload.items.front().representations;
    const auto found = representations.find(uniformtype::utf8PlainText);
    // Decoding takes a byte order mark away.
    if (found == representations.end() || found->second.startsWith("\xEF\xBB\xBF") || !found->second.isValidUtf8())
        return nullptr;
    return &found->second;
}

QByteArray textBytes(const ClipPayload& payload) {
    if (const QByteArray* const bytes = standingTextBytes(payload))
        return *bytes;
    const auto text = plainText(payload.items);
    return text ? text->toUtf8() : payload.canonicalData();
}

} // namespace

Fingerprint fingerprintOf(const ClipDraft& draft, const ClipCrypto& crypto) {
    QByteArrayView prefix = "text|";
    QByteArray content;
    if (draft.kind == ClipKind::image) {
        prefix = "image|";
        content = imageBytes(draft.payload);
    } else if (draft.kind == ClipKind::file) {
        prefix = "files|";
        content = pathBytes(draft);
    } else {
        content = textBytes(draft.payload);
    }
    const std::array<QByteArrayView, 2> parts{prefix, content};
    return Fingerprint::ofCode(crypto.authenticationCode(parts));
}

} // namespace vellumry
